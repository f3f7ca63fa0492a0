#pragma once

#include "screens/TaskScreen.h"

namespace tarnwick {

// A screen whose buttons and alerts call the operations by name.
template <class ScreenOperations>
class OperationsScreen : public TaskScreen {
public:
    explicit OperationsScreen(const ScreenServices& services)
        : TaskScreen(services), operations_(operationServices()) {
        for (const auto& [name, action] : operations_.actions())
            addAction(QString::fromStdString(name), [action = action](QQuickItem*) { action(); });
    }

    void alertClickedButtonAtIndex(const Alert& alert, int index) override {
        // Some operations show no alert that asks.
        if constexpr (requires { operations_.alertViewClickedButtonAtIndex(alert, index); })
            operations_.alertViewClickedButtonAtIndex(alert, index);
    }

protected:
    ScreenOperations& operations() { return operations_; }

private:
    ScreenOperations operations_;
};

}  // namespace tarnwick
