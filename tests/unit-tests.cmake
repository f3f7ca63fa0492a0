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
    restore/restore_operations_test.cpp)
tarnwick_test(mail_test
    mail/mail_command_test.cpp
    mail/mail_delivery_test.cpp
    mail/mail_message_test.cpp)
target_link_libraries(mail_test PRIVATE PkgConfig::GMIME)
tarnwick_test(cli_test
    cli/command_line_test.cpp
    cli/supervisor_test.cpp
    cli/words_and_output_test.cpp)

# A program of tests of items and windows: with a loop and a clock of their own, without a display.
add_library(window_support STATIC support/Finger.cpp support/SteppedClock.cpp support/qt_main.cpp)
target_link_libraries(window_support PUBLIC app test_support GTest::gtest Qt6::Test)
function(tarnwick_window_test name)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE window_support)
    set_property(GLOBAL APPEND PROPERTY tarnwick_test_files ${ARGN})
endfunction()

tarnwick_window_test(ui_test
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
target_precompile_headers(ui_test PRIVATE <gtest/gtest.h> <QQuickItem> <QQmlComponent> <QTest>)
gtest_discover_tests(ui_test DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 60)

# What crosses threads, also for the thread sanitizer.
tarnwick_window_test(thread_test
    cli/progress_line_test.cpp
    threads/many_threads_test.cpp
    threads/screens_with_threads_test.cpp)
if(TARNWICK_SANITIZE STREQUAL thread)
    target_sources(thread_test PRIVATE threads/ThreadSanitizer.cpp)
endif()
gtest_discover_tests(thread_test DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 60 LABELS threads)

# A test file that no target builds would pass for ever.
get_property(listed GLOBAL PROPERTY tarnwick_test_files)
file(GLOB_RECURSE found RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} CONFIGURE_DEPENDS *_test.cpp)
foreach(file IN LISTS found)
    if(NOT file IN_LIST listed)
        message(FATAL_ERROR "tests/${file} is in no test target")
    endif()
endforeach()
