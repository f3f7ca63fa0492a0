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
    std::optional<std::string> data;  // none makes an empty entry
};

// A mail as a value. Texts are UTF-8.
struct MailMessage {
    std::string subject;
    std::vector<std::string> recipients;
    std::string body;
    std::vector<MailAttachment> attachments;
};

// The saved list of installed packages as an attachment, to nobody yet. Where there is no list, the
// attachment has no data.
MailMessage packageListMail(const FileManager& files);

// Whether the text is one bare address, such as "me@example.org".
bool isWellFormedRecipient(std::string_view recipient);

// Why the message can be neither sent nor kept, as a sentence; none if it can. A line's end in a
// header would begin another header.
std::optional<std::string> headerFaultOf(const MailMessage& message);

// Why the message cannot be sent; none if it can.
std::optional<std::string> faultOf(const MailMessage& message);

}  // namespace tarnwick
