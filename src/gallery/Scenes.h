#pragma once

#include <QSize>
#include <QString>
#include <functional>
#include <vector>

namespace tarnwick {

class Gallery;

// One thing to look at: its name, which is also a picture's file name, and what it does to the
// gallery.
struct Scene {
    QString group;
    QString title;
    QString name;
    std::function<void(Gallery& gallery)> show;
    QSize size = {375, 667};  // of the window in its picture
};

const std::vector<Scene>& scenes();

}  // namespace tarnwick
