#pragma once

#include <optional>
#include <string>

namespace tarnwick {

// Why an archive must not be unpacked, if there is a reason: it holds an entry that no save puts
// there, which may go where other users have links, or it cannot be read. An archive that does not
// exist does no harm.
std::optional<std::string> faultOfEntries(const std::string& archive);

}  // namespace tarnwick
