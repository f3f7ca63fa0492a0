#pragma once

#include "restore/RestoreOperations.h"
#include "screens/ItemsScreen.h"

namespace tarnwick {

// The Restore screen.
class RestoreViewController : public ItemsScreen {
    Q_OBJECT

public:
    explicit RestoreViewController(const ScreenServices& services);

    Outlet<QQuickItem> mainRestore{this, "mainRestore"};

    void alertClickedButtonAtIndex(const Alert& alert, int index) override;

protected:
    void viewDidLoad() override;

private:
    RestoreOperations operations_;
};

}  // namespace tarnwick
