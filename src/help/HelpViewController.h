#pragma once

#include "platform/controllers/NavigationBar.h"
#include "platform/controllers/Outlet.h"
#include "platform/controllers/ViewController.h"

namespace tarnwick {

// The Help screen: static text.
class HelpViewController : public ViewController {
    Q_OBJECT

public:
    Outlet<BarButtonItem> sidebarButton{this, "sidebarButton"};
    Outlet<QQuickItem> contentView{this, "contentView"};
    Outlet<QQuickItem> mainHelp{this, "mainHelp"};
    Outlet<QQuickItem> questionUntether{this, "questionUntether"};
    Outlet<QQuickItem> replyUntether{this, "replyUntether"};
    Outlet<QQuickItem> questionMajorIosUpdate{this, "questionMajorIosUpdate"};
    Outlet<QQuickItem> replyMAjorIosUpdate{this, "replyMAjorIosUpdate"};
    Outlet<QQuickItem> questionTime{this, "questionTime"};
    Outlet<QQuickItem> replyTime{this, "replyTime"};
    Outlet<QQuickItem> questionCydia{this, "questionCydia"};
    Outlet<QQuickItem> replyCydia{this, "replyCydia"};

protected:
    void viewDidLoad() override;
};

}  // namespace tarnwick
