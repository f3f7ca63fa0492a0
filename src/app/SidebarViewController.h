#pragma once

#include <QStringList>
#include <optional>

#include "platform/controllers/TableViewController.h"
#include "screens/TasksUnderWay.h"

namespace tarnwick {

// The menu: a heading and a row for each screen, which shows whether a task of that screen is under
// way. Choosing a row performs the segue of its cell.
class SidebarViewController : public TableViewController {
    Q_OBJECT

public:
    // The tasks outlive it.
    explicit SidebarViewController(TasksUnderWay& tasks) : tasks_(tasks) {}

    int numberOfSections() const override { return 1; }
    int numberOfRowsInSection(int section) const override;
    QQuickItem* cellForRowAtIndexPath(const IndexPath& path) override;

    // Null unless it was set: the rows come from a list of the controller's own.
    const std::optional<QStringList>& menuItems() const { return menuItems_; }
    void setMenuItems(const QStringList& items) { menuItems_ = items; }

protected:
    void viewDidLoad() override;

private:
    void markRows();

    TasksUnderWay& tasks_;
    QStringList items_;
    std::optional<QStringList> menuItems_;
};

}  // namespace tarnwick
