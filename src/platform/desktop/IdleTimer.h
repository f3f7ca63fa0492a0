#pragma once

class QWindow;

namespace tarnwick {

// Asks the desktop not to dim or lock the screen while the window is in front, for as long as the
// program runs. A desktop or device without such a service is left alone, and nothing waits for an
// answer. Main thread.
void setIdleTimerDisabled(QWindow* window);

}  // namespace tarnwick
