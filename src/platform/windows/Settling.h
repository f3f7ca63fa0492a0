#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "platform/motion/Pause.h"
#include "platform/views/Cover.h"

namespace tarnwick {

// How long, in seconds, a press may still be meant for what was there before: the time of a double
// click.
inline constexpr double settlingDuration = 0.4;

// Keeps input from items that have just come to stand where a finger or a pointer is. Main thread.
class Settling : public QObject {
    Q_OBJECT

public:
    explicit Settling(QObject* parent) : QObject(parent), pause_(this) {}

    // The items take no input for the duration; afterwards the task is called. Starting again drops
    // the former items and task.
    void start(const QList<QQuickItem*>& items, std::function<void()> whenSettled);
    bool isUnderWay() const { return cover_ != nullptr; }

private:
    Pause pause_;
    std::unique_ptr<Cover> cover_;
};

}  // namespace tarnwick
