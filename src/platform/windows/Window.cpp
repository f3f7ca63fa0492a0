#include "platform/windows/Window.h"

#include <QGuiApplication>
#include <utility>

#include "platform/controllers/ViewController.h"
#include "platform/motion/Frames.h"
#include "platform/views/Scrolling.h"

namespace tarnwick {

Window::Window()
    : arbiter_(this, [this](QEvent* event) { QQuickWindow::event(event); }),
      stage_(contentItem()),
      screen_(&stage_),
      modalPresentation_(screen_, stage_),
      alerts_(stage_, *contentItem()) {
    addFillingSubview(contentItem(), &stage_);
    addFillingSubview(&stage_, &screen_);
    connect(this, &QQuickWindow::activeFocusItemChanged, this, &Window::followFocus);
    connect(&stage_, &Stage::coveredChanged, this, [this] { arbiter_.interrupt(); });
    connect(&screen_, &Stage::coveredChanged, this, [this] { arbiter_.interrupt(); });
}

Window::~Window() {
    // What had the keyboard goes with its stage, which is then no longer there to be asked.
    disconnect(this, &QQuickWindow::activeFocusItemChanged, this, nullptr);
    // While there are alerts that its controller may close.
    modalPresentation_.cutShort();
}

void Window::setRootViewController(const std::shared_ptr<ViewController>& root) {
    modalPresentation_.cutShort();
    if (const auto old = std::exchange(root_, root))
        removeFromSuperview(old->view());
    if (root_)
        addFillingSubview(&screen_, root_->view());
}

void Window::makeKeyAndVisible() {
    show();
    // Elsewhere the activation alone does it, and the toolkit complains.
    if (QGuiApplication::platformName() == "xcb")
        raise();
    requestActivate();
}

// The keyboard also goes to what is scrolled away. A sheet sees to that itself.
void Window::followFocus() {
    if (const QQuickItem* item = activeFocusItem(); item != nullptr && screen_.isAncestorOf(item))
        scrollToVisible(item);
}

// What no item has a use for scrolls.
void Window::keyPressEvent(QKeyEvent* event) {
    QQuickWindow::keyPressEvent(event);
    QQuickItem* area = event->isAccepted() ? nullptr : scrolledByKeys(activeFocusItem(), &stage_);
    if (area != nullptr)
        event->setAccepted(scrollByKey(area, *event));
}

bool Window::event(QEvent* event) {
    if (!arbiter_.takes(event))
        return QQuickWindow::event(event);
    event->accept();
    return true;
}

}  // namespace tarnwick
