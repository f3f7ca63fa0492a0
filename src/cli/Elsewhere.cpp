// In the light program: the verbs that another program does, see WithArchives.h. They run only if
// that one could not be started.
#include "cli/Commands.h"
#include "cli/WithArchives.h"

namespace tarnwick {

namespace {

ExitStatus cannotStart(Session& session) {
    session.output().complaint(programWithArchives() + " cannot be started");
    return NotAllDone;
}

}  // namespace

ExitStatus checkForWipe(Session& session, const std::vector<std::string>&) {
    return cannotStart(session);
}

ExitStatus compareFiles(Session& session, const std::vector<std::string>&) {
    return cannotStart(session);
}

ExitStatus exportSafeguard(Session& session, const std::vector<std::string>&) {
    return cannotStart(session);
}

ExitStatus importSafeguard(Session& session, const std::vector<std::string>&) {
    return cannotStart(session);
}

}  // namespace tarnwick
