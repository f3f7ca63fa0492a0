#pragma once

#include <QSize>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "platform/windows/Window.h"

namespace tarnwick {

// A picture to take: its file's name, the size of the window in points, and how to make the window
// and bring it there.
struct Shot {
    QString name;
    QSize size;
    std::function<std::unique_ptr<Window>()> make;
    std::function<void(Window& window)> stage;
};

// Whether the program was started to take pictures: "--shots FOLDER", or by takeShots() itself.
bool isToTakeShots(int count, char** values);

// Takes all pictures at one and two pixels a point, each into a file of its own and all of them on
// one sheet. Answers the program's exit status. Makes the application object, so it must be called
// before that.
int takeShots(int count, char** values, const std::function<std::vector<Shot>()>& shots);

// Runs the event loop until what fades or slides has come to rest.
void waitForRest();

}  // namespace tarnwick
