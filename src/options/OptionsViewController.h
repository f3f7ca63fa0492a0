#pragma once

#include "options/OptionsOperations.h"
#include "screens/TaskScreen.h"

namespace tarnwick {

// The Options screen.
class OptionsViewController : public TaskScreen {
    Q_OBJECT

public:
    explicit OptionsViewController(const ScreenServices& services);

    Outlet<QQuickItem> mainOptions{this, "mainOptions"};
    Outlet<QQuickItem> applicationFilesAndFoldersTitle{this, "applicationFilesAndFoldersTitle"};
    Outlet<QQuickItem> recreateApplicationFoldersButton{this, "recreateApplicationFoldersButton"};
    Outlet<QQuickItem> removeSafeguardButton{this, "removeSafeguardButton"};
    Outlet<QQuickItem> removeSourcesListButton{this, "removeSourcesListButton"};
    Outlet<QQuickItem> applyChangesOptionsTitle{this, "applyChangesOptionsTitle"};
    Outlet<QQuickItem> respringButton{this, "respringButton"};
    Outlet<QQuickItem> rebootButton{this, "rebootButton"};
    Outlet<QQuickItem> miscellaneousTitle{this, "miscellaneousTitle"};
    Outlet<QQuickItem> totalUserMemory{this, "totalUserMemory"};
    Outlet<QQuickItem> freeUserMemory{this, "freeUserMemory"};
    Outlet<QQuickItem> backupSizeButton{this, "backupSizeButton"};

    void alertClickedButtonAtIndex(const Alert& alert, int index) override;

protected:
    void viewDidLoad() override;

private:
    void addOperation(const QString& name, void (OptionsOperations::*operation)());
    void styleElements();

    OptionsOperations operations_;
};

}  // namespace tarnwick
