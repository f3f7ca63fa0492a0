#pragma once

#include "cli/Arguments.h"
#include "cli/ExitStatus.h"
#include "cli/Session.h"

namespace tarnwick {

// Does what was typed. Everything that the run takes from its environment comes with the world.
ExitStatus runCommandLine(const Arguments& arguments, const World& world);

}  // namespace tarnwick
