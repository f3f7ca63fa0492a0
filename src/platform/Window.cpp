#include "platform/Window.h"

#include <utility>

#include "platform/Frames.h"
#include "platform/ScrollToVisible.h"
#include "platform/ViewController.h"

namespace tarnwick {

Window::Window()
    : arbiter_(this, [this](QEvent* event) { QQuickWindow::event(event); }),
      stage_(contentItem()),
      alerts_(stage_, *contentItem()) {
    addFillingSubview(contentItem(), &stage_);
    connect(this, &QQuickWindow::activeFocusItemChanged, this, &Window::followFocus);
    connect(&stage_, &Stage::coveredChanged, this, [this] { arbiter_.interrupt(); });
}

Window::~Window() = default;

void Window::setRootViewController(const std::shared_ptr<ViewController>& root) {
    if (const auto old = std::exchange(root_, root))
        removeFromSuperview(old->view());
    if (root_)
        addFillingSubview(&stage_, root_->view());
}

// The keyboard also goes to what is scrolled away.
void Window::followFocus() {
    if (const QQuickItem* item = activeFocusItem(); item != nullptr && stage_.isAncestorOf(item))
        scrollToVisible(item);
}

bool Window::event(QEvent* event) {
    if (!arbiter_.takes(event))
        return QQuickWindow::event(event);
    event->accept();
    return true;
}

}  // namespace tarnwick
