#include "app/SidebarViewController.h"

namespace tarnwick {

void SidebarViewController::viewDidLoad() {
    items_ = {"title", "backup", "restore", "cloud", "options", "help"};
    TableViewController::viewDidLoad();
    connect(&tasks_, &TasksUnderWay::changed, this, &SidebarViewController::markRows);
    markRows();
}

void SidebarViewController::markRows() {
    for (QQuickItem* row : rows->childItems())
        row->setProperty("busy", tasks_.isAnyOf(row->property("reuseIdentifier").toString()));
}

int SidebarViewController::numberOfRowsInSection(int) const {
    return static_cast<int>(items_.size());
}

QQuickItem* SidebarViewController::cellForRowAtIndexPath(const IndexPath& path) {
    QQuickItem* cell = dequeueReusableCellWithIdentifier(items_[path.row]);
    setSelectionStyle(cell, CellSelectionStyle::Gray);
    return cell;
}

}  // namespace tarnwick
