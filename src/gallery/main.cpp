#include <QGuiApplication>
#include <QTextStream>

#include "gallery/Gallery.h"
#include "gallery/Scenes.h"
#include "shots/Shots.h"

using namespace tarnwick;

namespace {

std::vector<Shot> shots() {
    std::vector<Shot> shots;
    for (const Scene& scene : scenes())
        shots.push_back({scene.name, scene.size,
                         [] { return std::make_unique<Gallery>(Animated::No); },
                         [&scene](Window& window) { scene.show(static_cast<Gallery&>(window)); }});
    return shots;
}

}  // namespace

int main(int count, char** values) {
    qputenv("QT_QUICK_BACKEND", "software");
    if (isToTakeShots(count, values))
        return takeShots(count, values, shots);
    if (count > 1) {
        QTextStream(stderr) << "Usage: tarnwick-gallery [--shots FOLDER]\n";
        return 2;
    }
    const QGuiApplication application(count, values);
    Gallery gallery(Animated::Yes);
    gallery.show();
    return QGuiApplication::exec();
}
