#include <gtest/gtest.h>
#include <sys/time.h>

#include <algorithm>
#include <cstdlib>

#include "launcher/CleanStart.h"

namespace tarnwick::testing {
namespace {

using Lines = std::vector<std::string>;

// What of it gets through, beside what the start itself sets or adds.
Lines kept(const Lines& environment) {
    Lines lines;
    for (const auto& [name, value] : cleanEnvironment(environment))
        if (std::ranges::count(environment, name + "=" + value) > 0)
            lines.push_back(name + "=" + value);
    return lines;
}

TEST(CleanStart, KeepsASessionAsItIs) {
    const Lines session = {
        "DBUS_SESSION_BUS_ADDRESS=unix:path=/run/user/501/bus,guid=22859de46936ce49",
        "DISPLAY=:0",
        "LANG=de_DE.UTF-8",
        "LC_ALL=C.UTF-8",
        "WAYLAND_DISPLAY=wayland-0",
        "XAUTHORITY=/run/user/501/Xauthority",
        "XDG_ACTIVATION_TOKEN=gnome-shell/Tarnwick/1-0_TIME42",
        "XDG_RUNTIME_DIR=/run/user/501",
    };
    EXPECT_EQ(kept(session), session);
    for (const char* display : {"DISPLAY=:10.0", "DISPLAY=localhost:10.0", "DISPLAY=unix:1"})
        EXPECT_EQ(kept({display}), Lines{display});
    EXPECT_EQ(kept({"DBUS_SESSION_BUS_ADDRESS=unix:abstract=/tmp/dbus-1"}).size(), 1U);
}

TEST(CleanStart, DropsWhatDoesNotLookLikeItsName) {
    for (const std::string& variable :
         Lines{"PATH=/tmp/evil",
               "DISPLAYED=:0",
               "=",
               "DISPLAY=example.org:0",
               "DISPLAY=:",
               "DISPLAY=:0;id",
               "DISPLAY=:0.",
               "DISPLAY=:999999",
               "WAYLAND_DISPLAY=evil/socket",
               "WAYLAND_DISPLAY=..",
               "WAYLAND_DISPLAY=",
               "XDG_RUNTIME_DIR=run",
               "XDG_RUNTIME_DIR=/run/../tmp",
               "XAUTHORITY=/tmp/a b",
               "DBUS_SESSION_BUS_ADDRESS=unixexec:path=/tmp/evil",
               "DBUS_SESSION_BUS_ADDRESS=unix:path=/run/bus;unixexec:path=/tmp/evil",
               "DBUS_SESSION_BUS_ADDRESS=unix:path=/run/bus,guid=",
               "DBUS_SESSION_BUS_ADDRESS=unix:path=/run/bus,guid=12;unixexec:path=/tmp/evil",
               "DBUS_SESSION_BUS_ADDRESS=unix:path=/run/bus,guid=12,path=/tmp/evil",
               "LANG=evil/de_DE",
               "LC_ALL=..",
               "XDG_RUNTIME_DIR=/" + std::string(2000, 'a')})
        EXPECT_EQ(kept({variable}), Lines{}) << variable;
}

// In a process of its own.
TEST(CleanStart, NoTimerOfTheCallersGoesOn) {
    const auto check = [] {
        const itimerval soon = {.it_interval = {}, .it_value = {.tv_sec = 100, .tv_usec = 0}};
        const auto timers = {ITIMER_REAL, ITIMER_VIRTUAL, ITIMER_PROF};
        for (const auto timer : timers)
            ::setitimer(timer, &soon, nullptr);
        cleanProcess();
        const auto goesOn = [](const auto timer) {
            itimerval value = {};
            return ::getitimer(timer, &value) == 0 && value.it_value.tv_sec != 0;
        };
        std::_Exit(std::ranges::any_of(timers, goesOn) ? 1 : 0);
    };
    EXPECT_EXIT(check(), ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace tarnwick::testing
