#include "shots/Shots.h"

#include <QCursor>
#include <QDir>
#include <QEventLoop>
#include <QGuiApplication>
#include <QPainter>
#include <QProcess>
#include <QTextStream>
#include <QTimer>

namespace tarnwick {

namespace {

constexpr const char* folderOption = "--shots";
constexpr const char* scaleOption = "--shots-at";
constexpr int restTime = 500;            // milliseconds
constexpr QPoint nowhere(-1000, -1000);  // where the pointer is on nothing

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

int failure(const QString& problem) {
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << problem << "\n";
    return 1;
}

QImage pictureOf(const Shot& shot) {
    QCursor::setPos(nowhere);
    const auto window = shot.make();
    window->resize(shot.size);
    window->show();
    QCoreApplication::processEvents();
    shot.stage(*window);
    waitForRest();
    return window->grabWindow();
}

int takeAll(const QString& folder, const QString& suffix, const std::vector<Shot>& shots) {
    ContactSheet sheet(shots.size());
    const auto fileOf = [&](const QString& name) { return folder + "/" + name + suffix + ".png"; };
    for (const Shot& shot : shots) {
        const QImage picture = pictureOf(shot);
        if (!picture.save(fileOf(shot.name)))
            return failure("cannot write " + fileOf(shot.name));
        sheet.add(picture, shot.name);
    }
    if (!sheet.sheet().save(fileOf("contact-sheet")))
        return failure("cannot write " + fileOf("contact-sheet"));
    return 0;
}

// A process for each scale, as it must be set before the application object is created.
int takeAtEachScale(const QString& program, const QString& folder) {
    if (!QDir().mkpath(folder))
        return failure("cannot make " + folder);
    for (const char* scale : {"1", "2"}) {
        qputenv("QT_SCALE_FACTOR", scale);
        const int status = QProcess::execute(program, {scaleOption, scale, folder});
        if (status != 0)
            return status;
    }
    return 0;
}

}  // namespace

bool isToTakeShots(int count, char** values) {
    const QByteArray option = count > 1 ? values[1] : "";
    return (option == folderOption && count == 3) || (option == scaleOption && count == 4);
}

int takeShots(int count, char** values, const std::function<std::vector<Shot>()>& shots) {
    if (QByteArray(values[1]) == folderOption)
        return takeAtEachScale(values[0], values[2]);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, values);
    return takeAll(values[3], QStringLiteral("@%1x").arg(values[2]), shots());
}

void waitForRest() {
    QEventLoop loop;
    QTimer::singleShot(restTime, &loop, &QEventLoop::quit);
    loop.exec();
}

}  // namespace tarnwick
