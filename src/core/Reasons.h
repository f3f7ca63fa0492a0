#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

// "PATH cannot be VERB: REASON" for an error number. A full or read-only file system is named by
// where it is mounted.
std::string failureText(std::string_view path, std::string_view verb, int error);

}  // namespace tarnwick
