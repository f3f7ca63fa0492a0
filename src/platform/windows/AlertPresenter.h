#pragma once

#include <QObject>
#include <QQuickItem>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <variant>
#include <vector>

#include "core/Alert.h"
#include "platform/motion/Animation.h"
#include "platform/motion/Pause.h"

namespace tarnwick {

class AlertView;
class Stage;

// Told on the main thread what becomes of an alert. Held weakly.
class AlertDelegate {
public:
    virtual ~AlertDelegate() = default;
    // A button was pressed; the alert is still on the screen.
    virtual void alertClickedButtonAtIndex(const Alert&, int /*index*/) {}
    // The alert has gone, by a button or by dismiss(). Told once for each alert, unless the
    // presenter goes first.
    virtual void alertDidDismissWithButtonIndex(const Alert&, int /*index*/) {}
};

// Stands for one alert that was shown. One that was made by default stands for none.
struct AlertTicket {
    std::uint64_t number = 0;
    bool operator==(const AlertTicket&) const = default;
};

// Shows modal alerts, each over the one before. While one is up, the stage is covered; then the
// stage gets the keyboard back.
//
// Button 0 is the cancel button and the others count from 1, even where there is no cancel button:
// a button has the same index whatever else is there. Without any button an alert can only be
// dismissed by code.
//
// show() and dismiss() may be called on any thread while the presenter lives and take effect in the
// order of the calls: at once on the main thread, after whatever other threads asked for before;
// elsewhere they return without waiting. Everything else is for the main thread.
class AlertPresenter : public QObject {
    Q_OBJECT

public:
    // The stage and the container, into which alerts are put, must outlive the presenter; the
    // container must not be in the stage.
    AlertPresenter(Stage& stage, QQuickItem& container);
    // Alerts that are up vanish; no delegate is notified.
    ~AlertPresenter() override;

    AlertTicket show(Alert alert, std::weak_ptr<AlertDelegate> delegate = {});
    // An alert that has not appeared yet never does. Its delegate is notified that it was dismissed
    // with this index, and not that a button was clicked. Does nothing if the alert has been
    // dismissed or its button has been pressed, or if there is no such alert.
    void dismiss(AlertTicket ticket, int buttonIndex, Animated animated);

    // How many alerts are up, those that are covered by newer ones included.
    int numberShown() const { return static_cast<int>(shown_.size()); }
    // The newest; null if none is up.
    AlertView* top() const { return shown_.empty() ? nullptr : shown_.back().view; }

signals:
    // No alert is up any more.
    void allWentAway();

private:
    struct Arrival {
        AlertTicket ticket;
        Alert alert;
        std::weak_ptr<AlertDelegate> delegate;
        std::optional<int> dismissedWith;  // before it appeared
    };
    struct Dismissal {
        AlertTicket ticket;
        int buttonIndex;
        Animated animated;
    };
    using Order = std::variant<Arrival, Dismissal>;
    struct Shown {
        AlertTicket ticket;
        AlertView* view;
        std::weak_ptr<AlertDelegate> delegate;
    };

    void carryOutOnMainThread();
    void carryOutAll();
    std::optional<Order> nextOrder();
    bool dismissWaiting(AlertTicket ticket, int buttonIndex);
    void carryOut(const Arrival& arrival);
    void carryOut(const Dismissal& dismissal);
    void answer(AlertTicket ticket, int buttonIndex);
    void end(const Shown& closing, int buttonIndex);
    void coverStage();
    void giveBackStage();
    void uncoverStage();
    void fade(double opacity, double duration, Animated animated);
    void keepFocus(AlertTicket ticket);
    std::vector<Shown>::iterator find(AlertTicket ticket);

    Stage& stage_;
    QQuickItem* layer_;
    QQuickItem* scrim_;
    std::vector<Shown> shown_;  // the newest is the last
    int leaving_ = 0;           // alerts that still fade out
    bool covers_ = false;       // the stage, until the last alert has gone
    bool settlesStage_ = false;
    Pause pause_;  // from the end of the last alert until the stage is uncovered
    Qt::FocusReason reasonForStage_ = Qt::OtherFocusReason;

    std::mutex guard_;  // of what follows
    std::deque<Order> orders_;
    std::uint64_t lastNumber_ = 0;
};

}  // namespace tarnwick
