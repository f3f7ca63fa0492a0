#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QProcess>
#include <QQuickWindow>
#include <QTextStream>

#include "gallery/Scenes.h"

using namespace tarnwick;

namespace {

constexpr QSize phone(375, 667);

// A window that shows one scene at a time.
class Gallery : public QQuickWindow {
public:
    explicit Gallery(const std::vector<Scene>& all) : scenes_(all) {
        resize(phone);
        showScene(0);
    }

    void showScene(int place) {
        const int count = static_cast<int>(scenes_.size());
        place_ = (place + count) % count;
        delete screen_;
        contentItem()->setSize(QSizeF(size()));
        screen_ = makeScreen(contentItem());
        scenes_[static_cast<std::size_t>(place_)].show(screen_);
        setTitle(scenes_[static_cast<std::size_t>(place_)].name);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Right)
            showScene(place_ + 1);
        else if (event->key() == Qt::Key_Left)
            showScene(place_ - 1);
    }

private:
    const std::vector<Scene> scenes_;
    QQuickItem* screen_ = nullptr;
    int place_ = 0;
};

int takeShots(const QString& folder, const QString& suffix) {
    const auto all = scenes();
    Gallery gallery(all);
    gallery.show();
    for (int place = 0; place < static_cast<int>(all.size()); ++place) {
        gallery.showScene(place);
        const QString file =
            folder + "/" + all[static_cast<std::size_t>(place)].name + suffix + ".png";
        if (!gallery.grabWindow().save(file)) {
            QTextStream(stderr) << "tarnwick-gallery: cannot write " << file << "\n";
            return 1;
        }
    }
    return 0;
}

// The number of pixels a point is settled before the application object is made: a process for
// each.
int takeShotsAtEachScale(const QString& program, const QString& folder) {
    if (!QDir().mkpath(folder)) {
        QTextStream(stderr) << "tarnwick-gallery: cannot make " << folder << "\n";
        return 1;
    }
    for (const char* scale : {"1", "2"}) {
        qputenv("QT_SCALE_FACTOR", scale);
        const int status = QProcess::execute(program, {"--shots-at", scale, folder});
        if (status != 0)
            return status;
    }
    return 0;
}

}  // namespace

int main(int count, char** values) {
    const QString option = count > 1 ? values[1] : "";
    if (option == "--shots" && count == 3)
        return takeShotsAtEachScale(values[0], values[2]);
    if (option == "--shots-at")
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication application(count, values);
    if (option == "--shots-at" && count == 4)
        return takeShots(values[3], QStringLiteral("@%1x").arg(values[2]));
    if (!option.isEmpty()) {
        QTextStream(stderr) << "Usage: tarnwick-gallery [--shots FOLDER]\n";
        return 2;
    }
    Gallery gallery(scenes());
    gallery.show();
    return QGuiApplication::exec();
}
