#include "platform/mail/MailComposeViewController.h"

#include <QLocale>
#include <QQuickWindow>
#include <QTextDocumentFragment>
#include <algorithm>
#include <utility>

#include "platform/controllers/NavigationBar.h"
#include "platform/views/QmlEngine.h"
#include "platform/views/Scrolling.h"
#include "platform/windows/Window.h"

namespace tarnwick {

namespace {

constexpr int deleteIndex = 1;
constexpr int keepIndex = 2;

const QString noMailer = "This device cannot send mail. Sending keeps this one as a draft.";

// Points that keep the line that is written on clear of the form's edges.
constexpr double roomAroundCursor = 12;

const Alert draftQuestion = {.title = "Delete or Keep Draft",
                             .message = "A draft can be finished in another mail program.",
                             .cancelButtonTitle = "Cancel",
                             .otherButtonTitles = {"Delete Draft", "Save Draft"},
                             .kind = AlertKind::Question,
                             .destructiveButton = deleteIndex};

QString sizeText(const QByteArray& data) {
    if (data.isNull())
        return QStringLiteral("no data");
    return QLocale::c().formattedDataSize(data.size(), 1, QLocale::DataSizeTraditionalFormat);
}

QVariantList rowsOf(const QList<ComposedAttachment>& attachments) {
    QVariantList rows;
    for (const ComposedAttachment& attachment : attachments)
        rows.append(
            QVariantMap{{"name", attachment.fileName}, {"size", sizeText(attachment.data)}});
    return rows;
}

}  // namespace

MailComposeViewController::MailComposeViewController(Mailer& mailer) : mailer_(mailer) {
    addAction("cancel", [this](QQuickItem*) { cancel(); });
    addAction("send", [this](QQuickItem*) { send(); });
}

void MailComposeViewController::setMessageBody(const QString& text, IsHtml isHtml) {
    preset_.body =
        isHtml == IsHtml::Yes ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

void MailComposeViewController::addAttachmentData(const QByteArray& data, const QString& mimeType,
                                                  const QString& fileName) {
    preset_.attachments.append({.data = data, .mimeType = mimeType, .fileName = fileName});
}

void MailComposeViewController::loadView() {
    const NavigationBarLook& look = NavigationBarLook::ofApplication();
    setView(createQmlItem(QStringLiteral("MailComposer"), nullptr,
                          {{"barTint", look.barTint},
                           {"itemTint", look.itemTint},
                           {"titleColor", look.titleColor},
                           {"titleFont", look.titleFont},
                           {"titleShadowColor", look.titleShadowColor},
                           {"titleShadowOffset", look.titleShadowOffset},
                           {"subject", preset_.subject},
                           {"body", preset_.body},
                           {"notice", mailer_.canSend() ? QString() : noMailer},
                           {"attachments", rowsOf(preset_.attachments)}}));
}

void MailComposeViewController::viewDidLoad() {
    ViewController::viewDidLoad();
    connect(recipientsField_.get(), SIGNAL(textChanged()), this, SLOT(offerSend()));
    for (const QQuickItem* field :
         {recipientsField_.get(), subjectField_.get(), bodyField_.get()}) {
        connect(field, SIGNAL(cursorRectangleChanged()), this, SLOT(keepFocusSeen()));
        connect(field, &QQuickItem::activeFocusChanged, this,
                &MailComposeViewController::keepFocusSeen);
    }
    connect(form_.get(), SIGNAL(heightChanged()), this, SLOT(keepFocusSeen()));
    connect(form_.get(), SIGNAL(contentHeightChanged()), this, SLOT(keepFocusSeen()));
}

void MailComposeViewController::offerSend() {
    const QStringList recipients = written().recipients;
    const bool all =
        std::all_of(recipients.begin(), recipients.end(),
                    [this](const QString& recipient) { return mailer_.isRecipient(recipient); });
    view()->setProperty("canSend", all && !recipients.isEmpty());
}

void MailComposeViewController::keepFocusSeen() {
    for (const QQuickItem* field : {recipientsField_.get(), subjectField_.get(), bodyField_.get()})
        if (field->hasActiveFocus())
            scrollToShow(form_.get(), field, field->property("cursorRectangle").toRectF(),
                         roomAroundCursor);
}

ComposedMail MailComposeViewController::written() const {
    ComposedMail mail = preset_;
    mail.recipients = mailer_.recipientsIn(recipientsField_->property("text").toString());
    // One line, whatever was pasted.
    mail.subject = subjectField_->property("text").toString().simplified();
    mail.body = bodyField_->property("text").toString();
    return mail;
}

bool MailComposeViewController::isUntouched() const {
    const ComposedMail mail = written();
    return mail.recipients.isEmpty() && mail.subject == preset_.subject.simplified() &&
           mail.body == preset_.body;
}

void MailComposeViewController::cancel() {
    if (isUntouched())
        return finish(MailComposeResultCancelled, {});
    if (auto* window = qobject_cast<Window*>(view()->window()))
        question_ = window->alerts().show(
            draftQuestion, std::static_pointer_cast<MailComposeViewController>(shared_from_this()));
}

void MailComposeViewController::closeQuestion() {
    if (auto* window = qobject_cast<Window*>(view()->window()))
        window->alerts().dismiss(question_, 0, Animated::No);
}

void MailComposeViewController::presentationWillBeCutShort(const std::function<void()>& whenKept) {
    closeQuestion();
    // The system's mailer sends on without the program.
    if (underWay_ == MailComposeResultSent)
        return whenKept();
    whenFinished_ = whenKept;
    if (isDeleted_ || isUntouched())
        finish(MailComposeResultCancelled, {});
    else
        keepDraft();
}

void MailComposeViewController::alertClickedButtonAtIndex(const Alert&, int index) {
    isDeleted_ = index == deleteIndex;
}

void MailComposeViewController::alertDidDismissWithButtonIndex(const Alert&, int index) {
    if (index == deleteIndex)
        finish(MailComposeResultCancelled, {});
    else if (index == keepIndex)
        keepDraft();
}

void MailComposeViewController::keepDraft() {
    handOver(&Mailer::keepDraft, MailComposeResultSaved, QStringLiteral("Saving…"));
}

void MailComposeViewController::send() {
    handOver(&Mailer::send, MailComposeResultSent, QStringLiteral("Sending…"));
}

void MailComposeViewController::handOver(Order order, MailComposeResult result,
                                         const QString& meanwhile) {
    if (std::exchange(underWay_, result))
        return;
    view()->setProperty("busyWith", meanwhile);
    // Both are told what became of the mail, whatever is in front by then.
    (mailer_.*order)(written(), [this, self = shared_from_this(), delegate = delegate_.lock(),
                                 result](const std::optional<QString>& fault) {
        finish(fault ? MailComposeResultFailed : result, fault.value_or(QString()));
    });
}

void MailComposeViewController::finish(MailComposeResult result, const QString& error) {
    if (const auto delegate = std::exchange(delegate_, {}).lock())
        delegate->mailComposeControllerDidFinishWithResult(*this, result, error);
    std::exchange(whenFinished_, [] {})();
}

}  // namespace tarnwick
