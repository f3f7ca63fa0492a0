find_package(GTest REQUIRED)
find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
include(GoogleTest)

add_library(test_support STATIC support/CommandLineRun.cpp support/Diary.cpp support/Events.cpp
    support/TemporaryFolder.cpp)
target_include_directories(test_support PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_compile_definitions(test_support PRIVATE
    TARNWICK_EVENTS_FILE="${CMAKE_CURRENT_SOURCE_DIR}/events/events.txt")
target_link_libraries(test_support PUBLIC core backup_operations restore_operations options_operations cli)

function(tarnwick_test name)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE test_support GTest::gtest_main)
    # No test takes seconds; a hang must not hold the whole run up.
    gtest_discover_tests(${name} PROPERTIES TIMEOUT 60 DISCOVERY_TIMEOUT 60)
    set_property(GLOBAL APPEND PROPERTY tarnwick_test_files ${ARGN})
endfunction()

tarnwick_test(core_test
    core/command_environment_test.cpp
    core/system_file_manager_test.cpp
    core/text_lines_test.cpp)
tarnwick_test(launcher_test launcher/clean_start_test.cpp)
target_link_libraries(launcher_test PRIVATE clean_start)
tarnwick_test(operations_test
    backup/backup_operations_test.cpp
    events/events_test.cpp
    options/options_operations_test.cpp
    options/size_formatters_test.cpp
    restore/restore_operations_test.cpp)
tarnwick_test(mail_test
    mail/mail_command_test.cpp
    mail/mail_delivery_test.cpp
    mail/mail_message_test.cpp)
target_link_libraries(mail_test PRIVATE PkgConfig::GMIME)
tarnwick_test(cli_test
    cli/arguments_test.cpp
    cli/command_line_test.cpp
    cli/output_test.cpp
    cli/supervisor_test.cpp)

# Tests of items and windows: with a loop and a clock of their own, without a display.
set(ui_tests
    app/buttons_test.cpp
    app/quick_actions_test.cpp
    app/screens_test.cpp
    platform/alert_test.cpp
    mail/cloud_screen_test.cpp
    platform/gestures_test.cpp
    platform/idle_timer_test.cpp
    platform/mail_composer_test.cpp
    platform/storyboard_test.cpp
    ui/endurance_test.cpp
    ui/progress_hud_test.cpp
    ui/reveal_geometry_test.cpp
    ui/reveal_test.cpp)
add_executable(ui_test support/Finger.cpp support/SteppedClock.cpp support/qt_main.cpp ${ui_tests})
target_include_directories(ui_test PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(ui_test PRIVATE app test_support GTest::gtest Qt6::Test)
target_precompile_headers(ui_test PRIVATE <gtest/gtest.h> <QQuickItem> <QQmlComponent> <QTest>)
gtest_discover_tests(ui_test DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 60
    ENVIRONMENT TSAN_OPTIONS=suppressions=${CMAKE_CURRENT_SOURCE_DIR}/tsan-suppressions.txt)
set_property(GLOBAL APPEND PROPERTY tarnwick_test_files ${ui_tests})

# A test file that no target builds would pass for ever.
get_property(listed GLOBAL PROPERTY tarnwick_test_files)
file(GLOB_RECURSE found RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} CONFIGURE_DEPENDS *_test.cpp)
foreach(file IN LISTS found)
    if(NOT file IN_LIST listed)
        message(FATAL_ERROR "tests/${file} is in no test target")
    endif()
endforeach()
