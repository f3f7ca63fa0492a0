#pragma once

#include "core/Characters.h"
#include "screens/TaskScreen.h"

namespace tarnwick {

// A screen whose buttons and alerts call the operations by name.
template <class ScreenOperations>
class OperationsScreen : public TaskScreen {
public:
    explicit OperationsScreen(const ScreenServices& services)
        : TaskScreen(services), operations_(operationServices()) {
        for (const auto& [name, action] : operations_.actions())
            addAction(QString::fromStdString(name),
                      [this, name = name, action = action](QQuickItem*) {
                          // A question changes nothing.
                          if constexpr (requires { ScreenOperations::actionsOnlyAsk; })
                              action();
                          else
                              perform(wordsOfCamelCase(name, ' '), action);
                      });
    }

    // The cancel button, index 0, does nothing in any alert.
    void alertClickedButtonAtIndex(const Alert& alert, int index) override {
        // Some operations show no alert that asks.
        if constexpr (requires { operations_.alertViewClickedButtonAtIndex(alert, index); })
            if (index > 0)
                perform(alert.title, [this, alert, index] {
                    operations_.alertViewClickedButtonAtIndex(alert, index);
                });
    }

protected:
    ScreenOperations& operations() { return operations_; }

private:
    ScreenOperations operations_;
};

}  // namespace tarnwick
