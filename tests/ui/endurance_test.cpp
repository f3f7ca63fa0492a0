#include <gtest/gtest.h>
#include <malloc.h>

#include <QQmlEngine>

#include "core/Alert.h"
#include "platform/views/QmlEngine.h"
#include "support/RevealScreen.h"
#include "ui/hud/ProgressHUD.h"

namespace tarnwick::testing {
namespace {

// A person at work: a HUD, an alert, the menu, another screen, a replacement.
void useEverythingOnce(RevealScreen& screen, int turn) {
    QQuickItem* front = screen.reveal->frontViewController()->view();
    ProgressHUD* hud = ProgressHUD::showHUDAddedTo(front, Animated::Yes);
    hud->setLabelText("Backup in progress...");
    hud->setMode(static_cast<ProgressHUD::Mode>(turn % 4));
    hud->hide(Animated::Yes);
    const AlertTicket ticket = screen.window.alerts().show({.title = "Backup", .message = "Done"});
    screen.clock.advance(0.3);
    screen.window.alerts().dismiss(ticket, 0, Animated::Yes);
    screen.reveal->revealToggle();
    screen.reveal->pushFrontViewController(screen.child("next"), Animated::Yes);
    screen.reveal->setRearViewController(screen.child("menu"), Animated::Yes);
    screen.clock.advance(1.5);
    screen.diary.clear();
}

// What is allocated and not freed, in bytes, once what only waits to be collected is gone. A
// sanitizer's allocator does not tell.
std::size_t bytesInUse() {
    applicationQmlEngine().collectGarbage();
    return mallinfo2().uordblks;
}

TEST(Endurance, AThousandTimesLeaveNothingBehind) {
    constexpr int warmUp = 300;
    constexpr int times = 1000;
    // Bytes: caches that still fill up; less than the smallest object that could be left each time.
    constexpr std::size_t noise = 64 * times;
    RevealScreen screen;
    std::size_t before = 0;
    for (int turn = 0; turn < warmUp + times; ++turn) {
        if (turn == warmUp)
            before = bytesInUse();
        useEverythingOnce(screen, turn);
    }
    EXPECT_LT(bytesInUse(), before + noise);
    EXPECT_EQ(screen.x(), 0);
    EXPECT_EQ(screen.window.alerts().numberShown(), 0);
    EXPECT_EQ(screen.view().frontView()->childItems().size(), 3) << "layer, shadow and a screen";
}

}  // namespace
}  // namespace tarnwick::testing
