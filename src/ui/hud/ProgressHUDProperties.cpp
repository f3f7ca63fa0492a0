#include "ui/hud/ProgressHUDProperties.h"

#include <QGuiApplication>

namespace tarnwick {

namespace {

constexpr int labelFontSize = 16;
constexpr int detailsFontSize = 12;

QFont boldSystemFont(int size) {
    QFont font = QGuiApplication::font();
    font.setBold(true);
    font.setPixelSize(size);
    return font;
}

}  // namespace

ProgressHUDProperties::ProgressHUDProperties()
    : values_{.labelFont = boldSystemFont(labelFontSize),
              .detailsLabelFont = boldSystemFont(detailsFontSize)} {}

ProgressHUDProperties::Block ProgressHUDProperties::takeCompletionBlock() {
    const std::lock_guard lock(guard_);
    return std::exchange(values_.completionBlock, nullptr);
}

}  // namespace tarnwick
