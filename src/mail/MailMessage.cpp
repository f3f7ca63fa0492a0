#include "mail/MailMessage.h"

#include <algorithm>

#include "core/Characters.h"
#include "core/SafeguardPaths.h"

namespace tarnwick {

namespace {

// The lengths that mail servers must take.
constexpr std::size_t longestLocalPart = 64;
constexpr std::size_t longestRecipient = 254;

// Words with single dots between.
bool isDotted(std::string_view text) {
    return !text.empty() && text.front() != '.' && text.back() != '.' &&
           text.find("..") == std::string_view::npos;
}

bool isDomain(std::string_view text) {
    return isDotted(text) && consistsOf(text, ".-") && text.front() != '-' && text.back() != '-' &&
           text.find(".-") == std::string_view::npos && text.find("-.") == std::string_view::npos;
}

bool isLocalPart(std::string_view text) {
    return isDotted(text) && text.size() <= longestLocalPart &&
           consistsOf(text, ".!#$%&'*+-/=?^_`{|}~");
}

bool breaksLine(std::string_view text) {
    constexpr std::string_view breaks("\r\n\0", 3);
    return text.find_first_of(breaks) != std::string_view::npos;
}

std::optional<std::string> lineBreakIn(const char* what, std::string_view text) {
    if (!breaksLine(text))
        return std::nullopt;
    return std::string(what) + " of a mail must not contain a line break.";
}

}  // namespace

MailMessage packageListMail(const FileReader& files) {
    return {.subject = "My Cydia Packages Backup",
            .recipients = {},
            .body = "",
            .attachments = {{.name = "installed-packages.txt",
                             .type = "text/plain",
                             .data = files.readData(paths::savedPackages)}}};
}

bool isWellFormedRecipient(std::string_view recipient) {
    const std::size_t at = recipient.find('@');
    return at != std::string_view::npos && recipient.size() <= longestRecipient &&
           isLocalPart(recipient.substr(0, at)) && isDomain(recipient.substr(at + 1));
}

std::vector<std::string> recipientsIn(std::string_view text) {
    constexpr std::string_view separators = ",; \t\r\n\f\v";
    std::vector<std::string> recipients;
    for (auto start = text.find_first_not_of(separators); start != std::string_view::npos;
         start = text.find_first_not_of(separators, start)) {
        const auto end = std::min(text.find_first_of(separators, start), text.size());
        recipients.emplace_back(text.substr(start, end - start));
        start = end;
    }
    return recipients;
}

std::optional<std::string> headerFaultOf(const MailMessage& message) {
    if (auto fault = lineBreakIn("The subject", message.subject))
        return fault;
    for (const std::string& recipient : message.recipients)
        if (auto fault = lineBreakIn("A recipient", recipient))
            return fault;
    for (const MailAttachment& attachment : message.attachments) {
        if (auto fault = lineBreakIn("The name of an attachment", attachment.name))
            return fault;
        if (auto fault = lineBreakIn("The type of an attachment", attachment.type))
            return fault;
    }
    return std::nullopt;
}

std::optional<std::string> faultOf(const MailMessage& message) {
    if (auto fault = headerFaultOf(message))
        return fault;
    if (message.recipients.empty())
        return "The mail has no recipient.";
    for (const std::string& recipient : message.recipients)
        if (!isWellFormedRecipient(recipient))
            return "\"" + recipient + "\" is not a mail address.";
    return std::nullopt;
}

}  // namespace tarnwick
