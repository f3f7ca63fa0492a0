#pragma once

#include <list>
#include <optional>
#include <string>

#include "copy/CopyProgress.h"
#include "copy/OutgoingFile.h"

namespace tarnwick {

// Writes a copy of the files, which have their digests, to the descriptor. Returns what failed, in
// words; what was written by then has no end, and no reader takes it for whole.
std::optional<std::string> writeCopy(int output, Manifest manifest, std::list<OutgoingFile>& files,
                                     const CopyProgress& progress);

}  // namespace tarnwick
