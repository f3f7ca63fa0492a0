#include "platform/windows/AlertView.h"

#include <QKeyEvent>
#include <QQuickWindow>
#include <algorithm>
#include <utility>

#include "platform/views/QmlEngine.h"
#include "platform/views/Scrolling.h"

namespace tarnwick {

namespace {

constexpr double firstOpacity = 0.01;  // assistive technology passes over what has none
constexpr double largeScale = 1.15;    // it comes from nearer

QQuickItem* partOf(const QQuickItem* panel, const char* name) {
    return panel->property(name).value<QQuickItem*>();
}

bool standsBefore(const QQuickItem* one, const QQuickItem* other) {
    return std::pair(one->y(), one->x()) < std::pair(other->y(), other->x());
}

}  // namespace

AlertView::AlertView(const Alert& alert, QQuickItem* parent)
    : InputBlocker(parent), alert_(alert), panel_(nullptr), settling_(this) {
    setFlag(ItemIsFocusScope);
    connect(parent, &QQuickItem::widthChanged, this, &AlertView::fillParent);
    connect(parent, &QQuickItem::heightChanged, this, &AlertView::fillParent);
    fillParent();
    panel_ = createQmlItem("AlertPanel", this,
                           {{"title", QString::fromStdString(alert.title)},
                            {"message", QString::fromStdString(alert.message)},
                            {"hasCancelButton", hasCancelButton()},
                            {"hairline", hairline()}});
    // From the top down: the cancel button is the last.
    int index = 1;
    for (const std::string& caption : alert.otherButtonTitles)
        addButton(caption, index++);
    if (hasCancelButton())
        addButton(alert.cancelButtonTitle, 0);
    connect(panel_, SIGNAL(buttonClicked(int)), this, SIGNAL(buttonPressed(int)));
    connect(partOf(panel_, "buttonArea"), &QQuickItem::heightChanged, this,
            &AlertView::scrollToFocus);
}

AlertView::~AlertView() {
    // While this can still be told of what happens to it.
    delete panel_;
}

void AlertView::addButton(const std::string& caption, int index) {
    createQmlItem("AlertButton", partOf(panel_, "buttonGrid"),
                  {{"panel", QVariant::fromValue(panel_)},
                   {"text", QString::fromStdString(caption)},
                   {"index", index},
                   {"isDestructive", index > 0 && index == alert_.destructiveButton}});
}

double AlertView::hairline() const {
    return 1.0 / (window() != nullptr ? window()->effectiveDevicePixelRatio() : 1.0);
}

void AlertView::fillParent() {
    setSize(parentItem()->size());
}

std::vector<QQuickItem*> AlertView::buttons() const {
    const auto children = partOf(panel_, "buttonGrid")->childItems();
    std::vector<QQuickItem*> found(children.begin(), children.end());
    std::stable_sort(found.begin(), found.end(), standsBefore);
    return found;
}

QQuickItem* AlertView::firstFocus() const {
    const auto made = partOf(panel_, "buttonGrid")->childItems();
    if (made.isEmpty())
        return nullptr;
    return hasCancelButton() ? made.back() : made.front();
}

void AlertView::comeForward(Qt::FocusReason reason) {
    settling_.start({panel_}, [this] {
        if (hasActiveFocus())
            takeFocus(focusReason_);
    });
    takeFocus(reason);
}

void AlertView::takeFocus(Qt::FocusReason reason) {
    QQuickItem* item = scopedFocusItem() != nullptr ? scopedFocusItem() : firstFocus();
    focus(item != nullptr ? item : this, reason);
}

void AlertView::focus(QQuickItem* item, Qt::FocusReason reason) {
    focusReason_ = reason;
    item->forceActiveFocus(reason);
    // Where there is just one button it has the focus already, but may not show it yet.
    item->setProperty("focusReason", reason);
    scrollToFocus();
}

void AlertView::moveFocus(int step, Qt::FocusReason reason) {
    const auto all = buttons();
    const auto now = std::find(all.begin(), all.end(), scopedFocusItem());
    if (now == all.end())
        return;
    const auto count = static_cast<int>(all.size());
    const auto next = (static_cast<int>(now - all.begin()) + step + count) % count;
    focus(all[static_cast<std::size_t>(next)], reason);
}

void AlertView::scrollToFocus() {
    const QQuickItem* button = scopedFocusItem();
    if (button != nullptr && button->property("visualFocus").toBool())
        scrollToShow(partOf(panel_, "buttonArea"), button, button->boundingRect(), 0);
}

void AlertView::appear() {
    applyAtOnce({{panel_, Change::Property::Opacity, firstOpacity},
                 {panel_, Change::Property::Scale, largeScale}});
    animate(alertAppearDuration, Easing::Out,
            {{panel_, Change::Property::Opacity, 1.0}, {panel_, Change::Property::Scale, 1.0}});
}

void AlertView::leave(Animated animated, std::function<void()> task) {
    setEnabled(false);
    if (animated == Animated::No || !isVisible())
        return task();
    animate(alertLeaveDuration, Easing::Out, {{panel_, Change::Property::Opacity, 0.0}},
            [task = std::move(task)](bool finished) {
                if (finished)
                    task();
            });
}

void AlertView::itemChange(ItemChange change, const ItemChangeData& data) {
    InputBlocker::itemChange(change, data);
    if (change == ItemActiveFocusHasChanged && !data.boolValue && isVisible() && isEnabled())
        emit focusLost();
}

bool AlertView::event(QEvent* event) {
    // No shortcut of what lies below.
    if (event->type() == QEvent::ShortcutOverride)
        event->accept();
    return InputBlocker::event(event);
}

// False if the key does not go from button to button.
bool AlertView::moveFocusBy(int key) {
    switch (key) {
        case Qt::Key_Down:
        case Qt::Key_Right:
        case Qt::Key_Tab:
            moveFocus(1, Qt::TabFocusReason);
            break;
        case Qt::Key_Up:
        case Qt::Key_Left:
        case Qt::Key_Backtab:
            moveFocus(-1, Qt::BacktabFocusReason);
            break;
        default:
            return false;
    }
    return buttons().size() > 1;
}

void AlertView::moveFocusToEnd(int key) {
    const auto all = buttons();
    if (key == Qt::Key_Home && !all.empty())
        focus(all.front(), Qt::BacktabFocusReason);
    if (key == Qt::Key_End && !all.empty())
        focus(all.back(), Qt::TabFocusReason);
}

void AlertView::cancelByKey(const QKeyEvent& event) {
    if (hasCancelButton() && !event.isAutoRepeat() && !settling_.isUnderWay())
        emit buttonPressed(0);
}

void AlertView::keyPressEvent(QKeyEvent* event) {
    event->accept();
    if (event->key() == Qt::Key_Escape)
        cancelByKey(*event);
    else if (!moveFocusBy(event->key()) && !scrollByKey(partOf(panel_, "textArea"), *event))
        moveFocusToEnd(event->key());
}

}  // namespace tarnwick
