#include <gtest/gtest.h>

#include <QGuiApplication>

// Tests of items: no display, no GPU.
int main(int count, char** values) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication application(count, values);
    ::testing::InitGoogleTest(&count, values);
    return RUN_ALL_TESTS();
}
