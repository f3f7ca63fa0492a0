#pragma once

namespace tarnwick {

// Makes the program's symbols known to scenes: "shield", its own sign, and one for each screen by
// the scene's name. Main thread.
void addProgramSymbols();

}  // namespace tarnwick
