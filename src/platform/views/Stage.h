#pragma once

#include <QQuickItem>
#include <memory>

#include "platform/views/Cover.h"

namespace tarnwick {

// Holds the content of a window, or of a part of it, that something modal may cover. While it is
// covered its content stays on the screen but gets no touch, mouse, wheel or key, a press or drag
// under way there is cancelled, and nothing of it is offered to assistive technology. What covers
// it stands beside it, not in it. Main thread.
class Stage : public QQuickItem {
    Q_OBJECT

public:
    explicit Stage(QQuickItem* parent = nullptr);

    // Covers are counted: each cover() ends with its uncover().
    void cover();
    void uncover();
    bool isCovered() const { return covers_ > 0; }

signals:
    void coveredChanged();

private:
    void coverChanged();

    int covers_ = 0;
    std::unique_ptr<Cover> inputCover_;
};

}  // namespace tarnwick
