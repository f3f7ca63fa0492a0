#pragma once

#include <ctime>
#include <string>

#include "mail/MailMessage.h"

namespace tarnwick {

// The message in MIME form: seven-bit lines that end with a line feed. It names no sender, which
// the mailer knows. The headers must have no fault. Any thread.
std::string mimeForm(const MailMessage& message, std::time_t date);

}  // namespace tarnwick
