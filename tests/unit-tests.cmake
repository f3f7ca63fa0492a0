find_package(GTest REQUIRED)
find_package(ZLIB REQUIRED)
find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
include(GoogleTest)

add_library(test_support STATIC support/CommandLineRun.cpp support/Diary.cpp support/Events.cpp
    support/TemporaryFolder.cpp)
target_include_directories(test_support PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_compile_definitions(test_support PRIVATE
    TARNWICK_EVENTS_FILE="${CMAKE_CURRENT_SOURCE_DIR}/events/events.txt")
target_link_libraries(test_support PUBLIC core backup_operations restore_operations options_operations cli_with_archives GTest::gtest
    INTERFACE $<TARGET_OBJECTS:cli_with_archives>)

# Tests of items and windows have a loop and a clock of their own, and no display.
add_library(window_support STATIC support/Finger.cpp support/SteppedClock.cpp support/qt_main.cpp)
target_link_libraries(window_support PUBLIC app test_support Qt6::Test)

# tarnwick_test(NAME LIBRARIES FOLDER...): a program of all the tests in these folders.
function(tarnwick_test name libraries)
    list(TRANSFORM ARGN APPEND /*_test.cpp OUTPUT_VARIABLE patterns)
    file(GLOB files CONFIGURE_DEPENDS ${patterns})
    add_executable(${name} ${files})
    target_link_libraries(${name} PRIVATE test_support ${libraries})
    # No test takes seconds; a hang must not hold the whole run up.
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 60 LABELS ${name})
endfunction()

tarnwick_test(core_test GTest::gtest_main core)
add_dependencies(core_test zip)
tarnwick_test(launcher_test "clean_start;GTest::gtest_main" launcher)
tarnwick_test(operations_test GTest::gtest_main backup events options restore)
tarnwick_test(mail_test "PkgConfig::GMIME;GTest::gtest_main" mail)
tarnwick_test(cli_test GTest::gtest_main cli)
tarnwick_test(copy_test "PkgConfig::LIBARCHIVE;safeguard_copy;zip_archive;GTest::gtest_main" compare copy)
tarnwick_test(zip_test "zip_archive;GTest::gtest_main" zip)
tarnwick_test(ui_test window_support app platform ui)
target_precompile_headers(ui_test PRIVATE <gtest/gtest.h> <QQuickItem> <QQmlComponent> <QTest>)
# What crosses threads, also for the thread sanitizer.
tarnwick_test(thread_test "window_support;zip_archive;comparison;ZLIB::ZLIB;PkgConfig::ISAL" threads)
if(TARNWICK_SANITIZE STREQUAL thread)
    target_sources(thread_test PRIVATE threads/ThreadSanitizer.cpp)
endif()
