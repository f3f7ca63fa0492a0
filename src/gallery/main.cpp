#include <QDir>
#include <QEventLoop>
#include <QGuiApplication>
#include <QPainter>
#include <QProcess>
#include <QTextStream>
#include <QTimer>

#include "gallery/Gallery.h"
#include "gallery/Scenes.h"

using namespace tarnwick;

namespace {

constexpr int restTime = 500;  // milliseconds, after which what fades in is there

// All pictures on one sheet, with their names.
class ContactSheet {
public:
    explicit ContactSheet(std::size_t count)
        : sheet_(columns * cell.width(),
                 static_cast<int>((count + columns - 1) / columns) * cell.height(),
                 QImage::Format_RGB32) {
        sheet_.fill(Qt::white);
    }

    void add(const QImage& picture, const QString& name) {
        const QPoint corner(next_ % columns * cell.width(), next_ / columns * cell.height());
        ++next_;
        const QRect place(corner + QPoint(margin, margin), cell - QSize(2 * margin, 40));
        const QImage small =
            picture.scaled(place.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QPainter painter(&sheet_);
        painter.drawImage(place.x() + (place.width() - small.width()) / 2, place.y(), small);
        painter.drawText(QRect(corner + QPoint(0, cell.height() - 32), QSize(cell.width(), 24)),
                         Qt::AlignCenter, name);
    }

    const QImage& sheet() const { return sheet_; }

private:
    static constexpr int columns = 7;
    static constexpr int margin = 8;
    static constexpr QSize cell = {196, 364};

    QImage sheet_;
    int next_ = 0;
};

void waitForRest() {
    QEventLoop loop;
    QTimer::singleShot(restTime, &loop, &QEventLoop::quit);
    loop.exec();
}

QImage pictureOf(const Scene& scene) {
    Gallery gallery(Animated::No);
    gallery.resize(scene.size);
    gallery.show();
    QCoreApplication::processEvents();
    scene.show(gallery);
    waitForRest();
    return gallery.grabWindow();
}

bool save(const QImage& picture, const QString& file) {
    if (picture.save(file))
        return true;
    QTextStream(stderr) << "tarnwick-gallery: cannot write " << file << "\n";
    return false;
}

int takeShots(const QString& folder, const QString& suffix) {
    ContactSheet sheet(scenes().size());
    for (const Scene& scene : scenes()) {
        const QImage picture = pictureOf(scene);
        if (!save(picture, folder + "/" + scene.name + suffix + ".png"))
            return 1;
        sheet.add(picture, scene.name);
    }
    return save(sheet.sheet(), folder + "/contact-sheet" + suffix + ".png") ? 0 : 1;
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
    Gallery gallery(Animated::Yes);
    gallery.show();
    return QGuiApplication::exec();
}
