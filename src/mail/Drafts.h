#pragma once

#include <ctime>
#include <optional>
#include <string>

namespace tarnwick {

// Where drafts are kept: a Maildir, which mail programs share.
struct DraftPlace {
    // The home of the device's owner, which the environment of a program that runs as root does not
    // name.
    std::string home = "/var/mobile";
    std::string folder = "Library/Mail/Drafts";  // below it
};

// Keeps the message as a draft of the device's owner, with the rights of that user: the file is the
// user's, and no link in the user's home can lead elsewhere. It appears in the folder once it is
// complete. Returns why it could not be kept, as a sentence, and then leaves nothing but the
// folders; null if it was kept. Any thread.
std::optional<std::string> keepDraft(const std::string& message, std::time_t now,
                                     const DraftPlace& place = {});

}  // namespace tarnwick
