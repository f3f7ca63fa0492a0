#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace tarnwick {

// The system's mailer, which reads a message from its standard input and finds the recipients in
// it.
inline constexpr const char* systemMailer = "/usr/sbin/sendmail";

// Whether there is a mailer that can be started. Any thread.
bool isInstalled(const std::string& program);

// The command line, for a rehearsal.
std::string mailerLine(const std::string& program);

// A mailer may wait for a server, but not forever.
inline constexpr std::chrono::minutes mailerLimit(2);

// Starts the mailer, without a shell, and waits until it has accepted the message; kills it after
// the limit. Returns why it did not accept it, as a sentence; null if it did. Any thread.
std::optional<std::string> handToMailer(const std::string& message,
                                        const std::string& program = systemMailer,
                                        std::chrono::milliseconds limit = mailerLimit);

}  // namespace tarnwick
