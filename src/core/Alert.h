#pragma once

#include <cstddef>
#include <iterator>
#include <span>
#include <string>
#include <vector>

namespace tarnwick {

// What an alert is about, for those who have no screen to show it on.
enum class AlertKind {
    Result,    // something was done; may offer a follow-up
    Problem,   // a backup or an archive is missing
    Question,  // nothing happens until it is answered
};

// A modal message as a value: operations make it, a screen or the terminal shows it.
struct Alert {
    std::string title;
    std::string message;
    std::string cancelButtonTitle = "Close";     // button index 0, which does nothing
    std::vector<std::string> otherButtonTitles;  // button indexes from 1
    int tag = 0;                                 // identifies the alert to whoever made it
    AlertKind kind = AlertKind::Result;
    int destructiveButton = 0;  // the index of the one that takes something away; 0 if none does
};

inline constexpr int anyOtherButton = -1;

// One row of the table that says what a pressed button does.
template <class Owner>
struct AlertAction {
    int tag;
    int buttonIndex;  // or any but the cancel button's
    void (*perform)(Owner& owner, int buttonIndex);
};

// Does what the first matching row says; nothing if there is none.
template <class Owner>
void performAlertAction(std::span<const AlertAction<Owner>> table, Owner& owner, const Alert& alert,
                        int buttonIndex) {
    for (const auto& row : table) {
        const bool isButton = row.buttonIndex == buttonIndex ||
                              (row.buttonIndex == anyOtherButton && buttonIndex > 0);
        if (row.tag != alert.tag || !isButton)
            continue;
        row.perform(owner, buttonIndex);
        return;
    }
}

// The choice behind a button, where the choices are the other buttons in their order; null if there
// is no such button.
template <class Choices>
auto chosenFrom(const Choices& choices, int buttonIndex) {
    const bool isChoice =
        buttonIndex > 0 && static_cast<std::size_t>(buttonIndex) <= choices.size();
    return isChoice ? &*std::next(choices.begin(), buttonIndex - 1) : nullptr;
}

}  // namespace tarnwick
