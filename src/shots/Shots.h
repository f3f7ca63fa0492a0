#pragma once

#include <QSize>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "platform/windows/Window.h"

namespace tarnwick {

// A picture to take: the file's name, the size of the window in points, how to make the window, and
// how to bring it into the state to show.
struct Shot {
    QString name;
    QSize size;
    std::function<std::unique_ptr<Window>()> make;
    std::function<void(Window& window)> stage;
};

// Whether the program was started to take pictures: "--shots FOLDER", or by takeShots() itself.
bool isToTakeShots(int count, char** values);

// Takes all pictures at one and two pixels a point, one file each, and a contact sheet. Creates the
// application object, so there must be none yet. Returns the program's exit status.
int takeShots(int count, char** values, const std::function<std::vector<Shot>()>& shots);

// Runs the event loop until animations have come to rest.
void waitForRest();

}  // namespace tarnwick
