#pragma once

#include <ctime>
#include <string>

#include "mail/MailMessage.h"

namespace tarnwick {

// The message as it travels: lines of seven-bit characters that end with a line feed. The sender is
// left to the mailer, which knows who that is. The message must have no fault in its headers. Any
// thread.
std::string mimeForm(const MailMessage& message, std::time_t date);

}  // namespace tarnwick
