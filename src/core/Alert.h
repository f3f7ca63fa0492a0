#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace tarnwick {

// What an alert tells, for those who have no screen to show it on.
enum class AlertKind {
    Result,    // something was done; it may offer a follow-up
    Problem,   // a backup or an archive is missing
    Question,  // nothing happens until it is answered
};

// A modal message as a value: operations make it, a screen or the terminal shows it.
struct Alert {
    std::string title;
    std::string message;
    std::string cancelButtonTitle = "Close";     // button index 0, which does nothing
    std::vector<std::string> otherButtonTitles;  // button indexes from 1
    int tag = 0;                                 // tells its maker which alert was answered
    AlertKind kind = AlertKind::Result;
};

// One row of the table that says what a pressed button does.
template <class Owner>
struct AlertAction {
    int tag;
    int firstIndex;
    int lastIndex;
    void (Owner::*action)(int buttonIndex);
};

// Does what the table says for the pressed button. The first row of the tag that holds the index
// counts; an alert or a button that the table does not know does nothing.
template <class Owner>
void performAlertAction(std::span<const AlertAction<Owner>> table, Owner& owner, const Alert& alert,
                        int buttonIndex) {
    for (const auto& row : table) {
        if (row.tag != alert.tag || buttonIndex < row.firstIndex || buttonIndex > row.lastIndex)
            continue;
        (owner.*row.action)(buttonIndex);
        return;
    }
}

}  // namespace tarnwick
