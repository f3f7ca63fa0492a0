#pragma once

#include "backup/BackupOperations.h"
#include "screens/ItemsScreen.h"

namespace tarnwick {

// The Backup screen.
class MainViewController : public ItemsScreen {
    Q_OBJECT

public:
    explicit MainViewController(const ScreenServices& services);

    Outlet<QQuickItem> mainBackup{this, "mainBackup"};

protected:
    void viewDidLoad() override;

private:
    BackupOperations operations_;
};

}  // namespace tarnwick
