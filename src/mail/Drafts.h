#pragma once

#include <ctime>
#include <optional>
#include <string>

namespace tarnwick {

// Where drafts are kept: a mail folder with a file for each message, as mail programs share it.
struct DraftPlace {
    // The home of the device's owner. The program runs as root: neither its own home nor what the
    // environment says is the owner's.
    std::string home = "/var/mobile";
    std::string folder = "Library/Mail/Drafts";  // below it
};

// Keeps the message as a draft of the device's owner: with the rights of that user, so that no link
// in the user's home can lead elsewhere and the file is the user's. It appears in the folder when
// it is whole. Returns why it could not be kept, as a sentence; nothing is left behind then but the
// folders. Any thread.
std::optional<std::string> keepDraft(const std::string& message, std::time_t now,
                                     const DraftPlace& place = {});

}  // namespace tarnwick
