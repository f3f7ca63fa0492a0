#pragma once

#include "restore/RestoreOperations.h"
#include "screens/ItemsScreen.h"

namespace tarnwick {

// The Restore screen.
class RestoreViewController : public ItemsScreen<RestoreOperations> {
public:
    using ItemsScreen::ItemsScreen;

    Outlet<QQuickItem> mainRestore{this, "mainRestore"};

protected:
    void viewDidLoad() override;
};

}  // namespace tarnwick
