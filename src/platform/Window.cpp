#include "platform/Window.h"

#include <utility>

#include "platform/Frames.h"
#include "platform/ViewController.h"

namespace tarnwick {

Window::Window()
    : arbiter_(this, [this](QEvent* event) { QQuickWindow::event(event); }),
      stage_(contentItem()),
      alerts_(stage_, *contentItem()) {
    addFillingSubview(contentItem(), &stage_);
}

Window::~Window() = default;

void Window::setRootViewController(const std::shared_ptr<ViewController>& root) {
    if (const auto old = std::exchange(root_, root))
        removeFromSuperview(old->view());
    if (root_)
        addFillingSubview(&stage_, root_->view());
}

bool Window::event(QEvent* event) {
    if (!arbiter_.takes(event))
        return QQuickWindow::event(event);
    event->accept();
    return true;
}

}  // namespace tarnwick
