#pragma once

#include "backup/BackupOperations.h"
#include "screens/ItemsScreen.h"

namespace tarnwick {

// The Backup screen.
class MainViewController : public ItemsScreen<BackupOperations> {
public:
    using ItemsScreen::ItemsScreen;

    Outlet<QQuickItem> mainBackup{this, "mainBackup"};

protected:
    void viewDidLoad() override;
};

}  // namespace tarnwick
