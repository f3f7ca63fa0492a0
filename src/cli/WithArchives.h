#pragma once

#include <string>

#include "cli/Arguments.h"

namespace tarnwick {

// The command a second time, with the libraries that copies and archives take. To load them with
// each start would double its time.
std::string programWithArchives();

// Becomes that program if the verb is one of its own; returns if it is not, or if that fails.
void becomeProgramWithArchives(const Arguments& arguments, char** values);

}  // namespace tarnwick
