#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/FileManager.h"

namespace tarnwick {

struct MailAttachment {
    std::string name;
    std::string type;                 // "text/plain", for example
    std::optional<std::string> data;  // null makes an empty entry
};

// A mail as a value. Texts are UTF-8.
struct MailMessage {
    std::string subject;
    std::vector<std::string> recipients;
    std::string body;
    std::vector<MailAttachment> attachments;
};

// The saved list of installed packages as an attachment, without a recipient yet. If there is no
// list, the attachment has no data.
MailMessage packageListMail(const FileReader& files);

// Whether the text is one bare address, such as "me@example.org".
bool isWellFormedRecipient(std::string_view recipient);

// The addresses in a text that was typed, with commas, semicolons or white space between them.
std::vector<std::string> recipientsIn(std::string_view text);

// Why the message can be neither sent nor kept, as a sentence; null if it can. A line break in a
// header would start another header.
std::optional<std::string> headerFaultOf(const MailMessage& message);

// Why the message cannot be sent, as a sentence; null if it can.
std::optional<std::string> faultOf(const MailMessage& message);

}  // namespace tarnwick
