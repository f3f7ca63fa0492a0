#pragma once

#include <QQuickItem>
#include <QString>
#include <functional>
#include <vector>

namespace tarnwick {

// One thing to look at: its name, which is also a picture's file name, and what it puts over the
// screen.
struct Scene {
    QString name;
    std::function<void(QQuickItem* screen)> show;
};

std::vector<Scene> scenes();

// A screen with lines of text and buttons, for something to stand over. Of the parent's size.
QQuickItem* makeScreen(QQuickItem* parent);

}  // namespace tarnwick
