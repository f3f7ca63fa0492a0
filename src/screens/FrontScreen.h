#pragma once

#include <vector>

#include "platform/controllers/NavigationBar.h"
#include "platform/controllers/Outlet.h"
#include "platform/controllers/ViewController.h"

namespace tarnwick {

class StyledOutlet;

// A screen that the menu brings to the front.
class FrontScreen : public ViewController {
    Q_OBJECT

public:
    Outlet<BarButtonItem> sidebarButton{this, "sidebarButton"};
    Outlet<QQuickItem> contentView{this, "contentView"};

protected:
    // The last steps of every viewDidLoad(): styles the outlets in the order of their declaration,
    // spans the content over the width of the screen, and wires the menu.
    void completeView();

private:
    friend class StyledOutlet;

    std::vector<const StyledOutlet*> styledOutlets_;
};

// An outlet that its screen styles.
class StyledOutlet : public Outlet<QQuickItem> {
public:
    using Style = void (*)(QQuickItem* element);

    StyledOutlet(FrontScreen* screen, const char* name, Style style)
        : Outlet(screen, name), style_(style) {
        screen->styledOutlets_.push_back(this);
    }

    void applyStyle() const { style_(get()); }

private:
    const Style style_;
};

}  // namespace tarnwick
