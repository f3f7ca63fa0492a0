#include "mail/CloudViewController.h"

#include "core/SafeguardPaths.h"
#include "mail/MailMessage.h"
#include "screens/SavedTexts.h"

namespace tarnwick {

namespace {

// Null where there is no data, which is not the same as empty.
QByteArray bytesOf(const std::optional<std::string>& data) {
    return data ? QByteArray(data->data(), static_cast<qsizetype>(data->size())) : QByteArray();
}

QString packageListText(const FileReader& files) {
    const auto time = files.modificationTime(paths::savedPackages);
    if (!time)
        return "No list of packages is saved yet.";
    return "A list of packages was saved on " + dateText(*time) + ".";
}

}  // namespace

CloudViewController::CloudViewController(const FileReader& files, Mailer& mailer, Log& log)
    : files_(files), mailer_(mailer), log_(log) {
    addAction("sendBackup", [this](QQuickItem* sender) { sendBackup(sender); });
}

void CloudViewController::viewDidLoad() {
    FrontScreen::viewDidLoad();
    setTitle("Cloud");
    completeView();
    packageListState->setProperty("text", packageListText(files_));
    mailerState->setProperty("text", mailer_.canSend()
                                         ? "This device can send mail."
                                         : "This device has no mailer, so that it can "
                                           "only keep a mail as a draft.");
}

void CloudViewController::sendBackup(QQuickItem*) {
    const auto composer = makeViewController<MailComposeViewController>(mailer_);
    composer->setMailComposeDelegate(
        std::static_pointer_cast<CloudViewController>(shared_from_this()));
    const MailMessage mail = packageListMail(files_);
    composer->setSubject(QString::fromStdString(mail.subject));
    for (const MailAttachment& attachment : mail.attachments)
        composer->addAttachmentData(bytesOf(attachment.data),
                                    QString::fromStdString(attachment.type),
                                    QString::fromStdString(attachment.name));
    composer->setMessageBody(QString::fromStdString(mail.body), IsHtml::No);
    presentModalViewController(composer, Animated::Yes);
}

void CloudViewController::mailComposeControllerDidFinishWithResult(MailComposeViewController&,
                                                                   MailComposeResult result,
                                                                   const QString& error) {
    switch (result) {
        case MailComposeResultCancelled:
            log_.write("Mail cancelled");
            break;
        case MailComposeResultSaved:
            log_.write("Mail saved");
            break;
        case MailComposeResultSent:
            log_.write("Mail sent");
            break;
        case MailComposeResultFailed:
            log_.write("Mail sent failure: " + error.toStdString());
            break;
        default:
            break;
    }
    dismissViewControllerAnimated(Animated::Yes);
}

}  // namespace tarnwick
