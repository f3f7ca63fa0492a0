#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

// "PATH cannot be VERB: REASON" for an error number. A full or read-only file system is named by
// where it is mounted.
std::string failureText(std::string_view path, std::string_view verb, int error);

// The words of a command that failed. It says "no space" also of a file system without free inodes:
// this is added if it is true of the one that holds the path.
std::string clarified(std::string words, std::string_view path);

}  // namespace tarnwick
