#include "cli/RestoreWatch.h"

#include "core/SafeguardPaths.h"
#include "guard/LineWords.h"

namespace tarnwick {

int RestoreWatch::run(const std::string& line) {
    const LineWords words(line);
    if (words.program() == "cp" && words.operand().starts_with(paths::unpackedTree) &&
        !files_.exists(words.operand()))
        feedback_.noteNotFound(words.operand().substr(paths::scratchFolder.size()));
    return runner_.run(line);
}

}  // namespace tarnwick
