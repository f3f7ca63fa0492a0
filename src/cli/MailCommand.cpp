#include <ctime>

#include "cli/Commands.h"
#include "core/JoinedText.h"
#include "mail/MailMessage.h"
#include "mail/MimeForm.h"
#include "mail/Transport.h"

namespace tarnwick {

namespace {

using Recipients = std::vector<std::string>;

// Asks for recipients if there are none. Returns the status to end with if that fails.
std::optional<ExitStatus> completeRecipients(Session& session, Recipients& recipients) {
    if (!recipients.empty() || session.arguments().dryRun)
        return std::nullopt;
    if (!session.questions().canAsk()) {
        session.output().complaint("mail needs a recipient; without a terminal, use --to");
        return WrongUsage;
    }
    recipients = recipientsIn(session.questions().ask("To: "));
    return recipients.empty() ? std::optional(NotAllDone) : std::nullopt;
}

void send(Session& session, const MailMessage& mail) {
    if (!mail.attachments.front().data)
        session.output().complaint("there is no saved package list: the attachment is empty");
    if (session.arguments().dryRun) {
        session.runner().run(mailerLine(session.world().mailerProgram));
        return;
    }
    const auto fault =
        handToMailer(mimeForm(mail, std::time(nullptr)), session.world().mailerProgram);
    if (fault) {
        session.output().problem("Mail sent failure: " + *fault, {{"problem", *fault}});
        session.feedback().noteProblem();
        return;
    }
    const std::string recipients = joined(mail.recipients, ", ");
    session.output().result("Mail sent: " + recipients, {{"sent", mail.recipients}});
}

}  // namespace

ExitStatus mailPackageList(Session& session, const std::vector<std::string>&) {
    MailMessage mail = packageListMail(session.files());
    mail.recipients = session.arguments().to;
    if (const auto refused = completeRecipients(session, mail.recipients))
        return *refused;
    if (const auto fault = session.arguments().dryRun ? std::nullopt : faultOf(mail)) {
        session.output().complaint(*fault);
        return WrongUsage;
    }
    return session.perform({.work = [&] { send(session, mail); }});
}

}  // namespace tarnwick
