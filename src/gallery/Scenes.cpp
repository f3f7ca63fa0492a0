#include "gallery/Scenes.h"

#include <QPainter>
#include <QQuickPaintedItem>

#include "platform/LabelView.h"
#include "ui/ProgressHUD.h"

namespace tarnwick {

namespace {

// Buttons in the program's blue, and a heading.
class Screen : public QQuickPaintedItem {
public:
    explicit Screen(QQuickItem* parent) : QQuickPaintedItem(parent) { setSize(parent->size()); }

    void paint(QPainter* painter) override {
        constexpr double space = 16.0;
        constexpr double rowHeight = 38.0;
        painter->fillRect(boundingRect(), Qt::white);
        painter->setRenderHint(QPainter::Antialiasing);
        QFont font = painter->font();
        font.setPixelSize(15);
        painter->setFont(font);
        for (int row = 0; row < 14; ++row) {
            const QRectF button(space, space + row * (rowHeight + 8), width() - 2 * space,
                                rowHeight);
            painter->setPen(Qt::NoPen);
            painter->setBrush(QColor::fromRgbF(0, 122 / 255.0F, 1));
            painter->drawRoundedRect(button, 5, 5);
            painter->setPen(Qt::white);
            painter->drawText(button, Qt::AlignCenter, QStringLiteral("Button %1").arg(row + 1));
        }
    }
};

using Dressing = std::function<void(ProgressHUD* hud)>;

Scene hudScene(const QString& name, const Dressing& dress) {
    return {name, [dress](QQuickItem* screen) {
                ProgressHUD* hud = ProgressHUD::showHUDAddedTo(screen, Animated::No);
                dress(hud);
            }};
}

const QString longText = QStringLiteral(
    "This takes as long as there are pictures to copy, and the device should stay awake until "
    "then");

}  // namespace

QQuickItem* makeScreen(QQuickItem* parent) {
    return new Screen(parent);
}

std::vector<Scene> scenes() {
    return {
        hudScene("hud-indeterminate",
                 [](ProgressHUD* hud) { hud->setLabelText("Backup in progress..."); }),
        hudScene("hud-indeterminate-alone", [](ProgressHUD*) {}),
        hudScene("hud-pie",
                 [](ProgressHUD* hud) {
                     hud->setMode(ProgressHUD::ModePie);
                     hud->setProgress(0.3);
                     hud->setLabelText("Loading");
                 }),
        hudScene("hud-ring",
                 [](ProgressHUD* hud) {
                     hud->setMode(ProgressHUD::ModeRing);
                     hud->setProgress(0.7);
                     hud->setLabelText("Loading");
                 }),
        hudScene("hud-bar-start",
                 [](ProgressHUD* hud) {
                     hud->setMode(ProgressHUD::ModeBar);
                     hud->setProgress(0.05);
                 }),
        hudScene("hud-bar-middle",
                 [](ProgressHUD* hud) {
                     hud->setMode(ProgressHUD::ModeBar);
                     hud->setProgress(0.5);
                     hud->setLabelText("Loading");
                 }),
        hudScene("hud-bar-end",
                 [](ProgressHUD* hud) {
                     hud->setMode(ProgressHUD::ModeBar);
                     hud->setProgress(0.97);
                 }),
        hudScene("hud-text-only",
                 [](ProgressHUD* hud) {
                     hud->setMode(ProgressHUD::ModeTextOnly);
                     hud->setLabelText("Done");
                 }),
        hudScene("hud-details",
                 [](ProgressHUD* hud) {
                     hud->setLabelText("Backup in progress...");
                     hud->setDetailsLabelText(longText);
                 }),
        hudScene("hud-square-dimmed",
                 [](ProgressHUD* hud) {
                     hud->setLabelText("Loading");
                     hud->setSquare(true);
                     hud->setDimBackground(true);
                 }),
        hudScene("hud-coloured-shifted",
                 [](ProgressHUD* hud) {
                     hud->setLabelText("Restoration in progress...");
                     hud->setColor(QColor(0x8e, 0x24, 0x3c, 0xe0));
                     hud->setOffset({0, -150});
                 }),
    };
}

}  // namespace tarnwick
