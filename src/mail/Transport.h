#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace tarnwick {

// The system's own mailer, which takes a message on its standard input and finds the recipients in
// it.
inline constexpr const char* systemMailer = "/usr/sbin/sendmail";

// The command line, for those who only tell what would be done.
std::string mailerLine(const std::string& program);

// A mailer that talks to a server itself may wait for it, but not for ever.
inline constexpr std::chrono::minutes mailerLimit(2);

// Starts the mailer, without a shell, and waits until it has taken the message; after the limit it
// is ended. Returns why it did not take it, as a sentence; none if it did. Any thread.
std::optional<std::string> handToMailer(const std::string& message,
                                        const std::string& program = systemMailer,
                                        std::chrono::milliseconds limit = mailerLimit);

}  // namespace tarnwick
