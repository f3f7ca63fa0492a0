#pragma once

#include "options/OptionsOperations.h"
#include "screens/OperationsScreen.h"
#include "screens/ScreenStyle.h"

namespace tarnwick {

// The Options screen.
class OptionsViewController : public OperationsScreen<OptionsOperations> {
public:
    using OperationsScreen::OperationsScreen;

    Outlet<QQuickItem> mainOptions{this, "mainOptions"};
    StyledOutlet applicationFilesAndFoldersTitle{this, "applicationFilesAndFoldersTitle",
                                                 styleHeading};
    StyledOutlet recreateApplicationFoldersButton{this, "recreateApplicationFoldersButton",
                                                  styleButton};
    StyledOutlet removeSafeguardButton{this, "removeSafeguardButton", styleButton};
    StyledOutlet removeSourcesListButton{this, "removeSourcesListButton", styleButton};
    StyledOutlet applyChangesOptionsTitle{this, "applyChangesOptionsTitle", styleHeading};
    StyledOutlet respringButton{this, "respringButton", styleButton};
    StyledOutlet rebootButton{this, "rebootButton", styleButton};
    StyledOutlet miscellaneousTitle{this, "miscellaneousTitle", styleHeading};
    Outlet<QQuickItem> totalUserMemory{this, "totalUserMemory"};
    Outlet<QQuickItem> freeUserMemory{this, "freeUserMemory"};
    StyledOutlet backupSizeButton{this, "backupSizeButton", styleButton};

protected:
    void viewDidLoad() override;
};

}  // namespace tarnwick
