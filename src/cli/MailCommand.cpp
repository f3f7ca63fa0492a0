#include <ctime>
#include <sstream>

#include "cli/Commands.h"
#include "mail/MailMessage.h"
#include "mail/MimeForm.h"
#include "mail/Transport.h"

namespace tarnwick {

namespace {

using Recipients = std::vector<std::string>;

// Addresses stand between commas, semicolons or blanks.
Recipients recipientsIn(std::string line) {
    for (char& character : line)
        if (character == ',' || character == ';')
            character = ' ';
    std::istringstream words(line);
    Recipients recipients;
    for (std::string word; words >> word;)
        recipients.push_back(word);
    return recipients;
}

// Asks for recipients where none were named. If there is nobody to ask or no good answer, gives the
// status to end with.
std::optional<ExitStatus> completeRecipients(Session& session, Recipients& recipients) {
    if (!recipients.empty() || session.arguments.dryRun)
        return std::nullopt;
    if (!session.questions.canAsk()) {
        session.output.complaint("this asks whom to mail; without a terminal to ask on, say --to");
        return WrongUsage;
    }
    recipients = recipientsIn(session.questions.ask("To: "));
    return recipients.empty() ? std::optional(NotAllDone) : std::nullopt;
}

std::string listed(const Recipients& recipients) {
    std::string text;
    for (const std::string& recipient : recipients)
        text += (text.empty() ? "" : ", ") + recipient;
    return text;
}

void send(Session& session, const MailMessage& mail) {
    if (!mail.attachments.front().data)
        session.output.complaint("there is no saved package list to read: the attachment is empty");
    if (session.arguments.dryRun) {
        session.runner.run(mailerLine(session.world.mailerProgram));
        return;
    }
    const auto fault =
        handToMailer(mimeForm(mail, std::time(nullptr)), session.world.mailerProgram);
    if (fault) {
        session.output.problem("Mail sent failure: " + *fault, {{"failure", *fault}});
        session.feedback.noteProblem();
        return;
    }
    const std::string recipients = listed(mail.recipients);
    session.output.result("Mail sent: " + recipients, {{"sent", recipients}});
}

}  // namespace

ExitStatus mailPackageList(Session& session, const std::vector<std::string>&) {
    MailMessage mail = packageListMail(session.files);
    mail.recipients = session.arguments.to;
    if (const auto refused = completeRecipients(session, mail.recipients))
        return *refused;
    if (const auto fault = session.arguments.dryRun ? std::nullopt : faultOf(mail)) {
        session.output.complaint(*fault);
        return WrongUsage;
    }
    return session.perform([&] { send(session, mail); }, {});
}

}  // namespace tarnwick
