#include <gtest/gtest.h>

#include <algorithm>

#include "launcher/CleanStart.h"

namespace tarnwick::testing {
namespace {

using Lines = std::vector<std::string>;

// What of it gets through, beside what the start itself sets or adds.
Lines kept(const Lines& environment) {
    Lines clean = cleanEnvironment(environment);
    EXPECT_EQ(clean.at(0), "PATH=/usr/bin:/bin:/usr/sbin:/sbin");
    EXPECT_TRUE(clean.at(1).starts_with("HOME=/"));
    clean.erase(clean.begin(), clean.begin() + 2);
    std::erase_if(clean, [&environment](const std::string& variable) {
        return std::ranges::count(environment, variable) == 0 &&
               (variable == "LANG=C.UTF-8" || variable.ends_with("/.Xauthority"));
    });
    return clean;
}

TEST(CleanStart, GivesEveryVariableOnce) {
    for (const Lines& environment : {Lines{}, Lines{"LANG=de_DE.UTF-8", "XAUTHORITY=/run/key"}})
        for (const char* name : {"PATH=", "HOME=", "LANG=", "XAUTHORITY="})
            EXPECT_EQ(std::ranges::count_if(
                          cleanEnvironment(environment),
                          [name](const auto& variable) { return variable.starts_with(name); }),
                      1)
                << name;
}

TEST(CleanStart, KeepsASessionAsItIs) {
    const Lines session = {
        "DISPLAY=:0",
        "XAUTHORITY=/run/user/501/Xauthority",
        "WAYLAND_DISPLAY=wayland-0",
        "XDG_RUNTIME_DIR=/run/user/501",
        "DBUS_SESSION_BUS_ADDRESS=unix:path=/run/user/501/bus,guid=22859de46936ce49",
        "LANG=de_DE.UTF-8",
        "LC_ALL=C.UTF-8",
        "XDG_ACTIVATION_TOKEN=gnome-shell/Tarnwick/1-0_TIME42",
    };
    EXPECT_EQ(kept(session), session);
    for (const char* display : {"DISPLAY=:10.0", "DISPLAY=localhost:10.0", "DISPLAY=unix:1"})
        EXPECT_EQ(kept({display}), Lines{display});
    EXPECT_EQ(kept({"DBUS_SESSION_BUS_ADDRESS=unix:abstract=/tmp/dbus-1"}).size(), 1U);
}

TEST(CleanStart, DropsWhateverElseIsThere) {
    for (const std::string& variable :
         Lines{"PATH=/tmp/evil", "IFS=/", "ENV=/tmp/x", "BASH_ENV=/tmp/x", "HOME=/tmp",
               "LD_PRELOAD=/tmp/x.so", "QT_PLUGIN_PATH=/tmp", "QML_IMPORT_PATH=/tmp",
               "QT_QPA_PLATFORM=vnc", "XDG_CONFIG_HOME=/tmp", "XDG_CURRENT_DESKTOP=GNOME",
               "ZIPOPT=-m", "DISPLAYED=:0", "DISPLAY", "=", ""})
        EXPECT_EQ(kept({variable}), Lines{}) << variable;
}

TEST(CleanStart, DropsWhatDoesNotLookLikeItsName) {
    for (const std::string& variable :
         Lines{"DISPLAY=example.org:0", "DISPLAY=:", "DISPLAY=:0;id", "DISPLAY=:0.",
               "DISPLAY=:999999", "WAYLAND_DISPLAY=/tmp/evil", "WAYLAND_DISPLAY=../evil",
               "WAYLAND_DISPLAY=", "XDG_RUNTIME_DIR=run", "XDG_RUNTIME_DIR=/run/../tmp",
               "XAUTHORITY=/tmp/a b", "DBUS_SESSION_BUS_ADDRESS=unixexec:path=/tmp/evil",
               "DBUS_SESSION_BUS_ADDRESS=unix:path=/run/bus;unixexec:path=/tmp/evil",
               "DBUS_SESSION_BUS_ADDRESS=tcp:host=example.org",
               "DBUS_SESSION_BUS_ADDRESS=autolaunch:", "LANG=../../tmp/evil", "LANG=/tmp/evil",
               "LC_ALL=%s\n", "XDG_RUNTIME_DIR=/" + std::string(2000, 'a')})
        EXPECT_EQ(kept({variable}), Lines{}) << variable;
}

}  // namespace
}  // namespace tarnwick::testing
