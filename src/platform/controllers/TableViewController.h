#pragma once

#include <QQuickItem>
#include <QString>
#include <vector>

#include "platform/controllers/Outlet.h"
#include "platform/controllers/ViewController.h"

namespace tarnwick {

// How a pressed cell looks.
enum class CellSelectionStyle { None = 0, Blue = 1, Gray = 2 };

struct IndexPath {
    int section;
    int row;
};

// A list of rows. The scene has a column for the rows and prototype cells, each with a
// `reuseIdentifier`; the controller says which cell is in which row. Main thread.
class TableViewController : public ViewController {
    Q_OBJECT

public:
    Outlet<QQuickItem> rows{this, "rows"};
    Outlet<QQuickItem> prototypes{this, "prototypes"};

    virtual int numberOfSections() const = 0;
    virtual int numberOfRowsInSection(int section) const = 0;
    virtual QQuickItem* cellForRowAtIndexPath(const IndexPath& path) = 0;

protected:
    // Fills the rows. Subclasses call it at the end of their own.
    void viewDidLoad() override;
    // The prototype with this identifier. Throws a StoryboardError if the scene has none.
    QQuickItem* dequeueReusableCellWithIdentifier(const QString& identifier) const;
    static void setSelectionStyle(QQuickItem* cell, CellSelectionStyle style);
    // From the top down, those that the keyboard can be given to.
    std::vector<QQuickItem*> selectableCells() const;
    // Of the rows: arrows go from one to the next, Home and End to the first and the last.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool moveFocus(int key) const;
};

}  // namespace tarnwick
