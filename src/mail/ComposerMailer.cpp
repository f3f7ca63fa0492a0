#include "mail/ComposerMailer.h"

#include <ctime>
#include <utility>

#include "mail/MailMessage.h"
#include "mail/MimeForm.h"

namespace tarnwick {

namespace {

MailAttachment asAttachment(const ComposedAttachment& composed) {
    return {
        .name = composed.fileName.toStdString(),
        .type = composed.mimeType.toStdString(),
        .data = composed.data.isNull() ? std::nullopt : std::optional(composed.data.toStdString())};
}

MailMessage asMessage(const ComposedMail& mail) {
    MailMessage message;
    message.subject = mail.subject.toStdString();
    message.body = mail.body.toStdString();
    for (const QString& recipient : mail.recipients)
        message.recipients.push_back(recipient.toStdString());
    for (const ComposedAttachment& attachment : mail.attachments)
        message.attachments.push_back(asAttachment(attachment));
    return message;
}

std::optional<std::string> keepAsDraft(const MailMessage& message, const DraftPlace& drafts) {
    const std::time_t now = std::time(nullptr);
    const auto fault = headerFaultOf(message);
    return fault ? fault : keepDraft(mimeForm(message, now), now, drafts);
}

}  // namespace

ComposerMailer::ComposerMailer(TaskQueues& queues, std::string program, DraftPlace drafts)
    : queues_(queues), program_(std::move(program)), drafts_(std::move(drafts)) {}

bool ComposerMailer::canSend() const {
    return isInstalled(program_);
}

QStringList ComposerMailer::recipientsIn(const QString& text) const {
    QStringList recipients;
    for (const std::string& recipient : tarnwick::recipientsIn(text.toStdString()))
        recipients.append(QString::fromStdString(recipient));
    return recipients;
}

bool ComposerMailer::isRecipient(const QString& text) const {
    return isWellFormedRecipient(text.toStdString());
}

void ComposerMailer::send(const ComposedMail& mail, Answer whenDone) {
    inBackground(
        [message = asMessage(mail), program = program_, drafts = drafts_] {
            auto fault = faultOf(message);
            if (!fault)
                fault = handToMailer(mimeForm(message, std::time(nullptr)), program);
            if (fault && !keepAsDraft(message, drafts))
                *fault += " The mail is kept as a draft.";
            return fault;
        },
        std::move(whenDone));
}

void ComposerMailer::keepDraft(const ComposedMail& mail, Answer whenDone) {
    inBackground(
        [message = asMessage(mail), drafts = drafts_] { return keepAsDraft(message, drafts); },
        std::move(whenDone));
}

void ComposerMailer::inBackground(Work work, Answer whenDone) {
    queues_.runInBackground(
        [&queues = queues_, work = std::move(work), whenDone = std::move(whenDone)] {
            std::optional<QString> fault;
            if (const auto reason = work())
                fault = QString::fromStdString(*reason);
            queues.dispatchToMainQueue([whenDone, fault] { whenDone(fault); });
        });
}

}  // namespace tarnwick
