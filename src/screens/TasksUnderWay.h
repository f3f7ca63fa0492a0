#pragma once

#include <QObject>
#include <QString>
#include <memory>
#include <vector>

namespace tarnwick {

// The tasks of the window, so that each screen can show that they are under way. Main thread,
// unless said otherwise.
class TasksUnderWay : public QObject {
    Q_OBJECT

public:
    // The task ends when the last copy goes, on any thread. This outlives it.
    using Ticket = std::shared_ptr<const void>;

    // A task of a screen, which is named by its scene; what it holds is let go at its end.
    Ticket begin(const std::string& screen, Ticket held);
    // What the HUD of the ticket's task says.
    void setHudLabel(const Ticket& ticket, const QString& label);

    bool isAny() const { return !tasks_.empty(); }
    bool isAnyOf(const QString& screen) const;
    // Of the newest task of the screen that shows a HUD; empty if there is none.
    QString hudLabelOf(const QString& screen) const;

signals:
    // Both come in a later turn of the loop.
    void changed();
    void ended();

private:
    class Part;
    struct Task {
        int number;
        QString screen;
        QString hudLabel;
    };

    void end(int number);

    std::vector<Task> tasks_;  // the newest is the last
    int lastNumber_ = 0;
};

}  // namespace tarnwick
