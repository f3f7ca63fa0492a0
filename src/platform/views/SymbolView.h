#pragma once

#include <QColor>
#include <QPainterPath>
#include <QString>
#include <QtQmlIntegration>

#include "platform/views/PaintedView.h"

namespace tarnwick {

// The side of the square, in points, that symbols are drawn in.
inline constexpr double symbolExtent = 24.0;

// Makes a line drawing available to all symbol views of the application. "menu" and "more" are
// built in. Main thread.
void addSymbol(const QString& name, const QPainterPath& drawing);

// A line drawing in one colour, sharp at every size; a larger one has finer lines for its size. An
// unknown name draws nothing. Main thread.
class SymbolView : public PaintedView {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit SymbolView(QQuickItem* parent = nullptr);

    const QString& name() const { return name_; }
    void setName(const QString& name);
    const QColor& color() const { return color_; }
    void setColor(const QColor& color);

    void paint(QPainter* painter) override;

signals:
    void nameChanged();
    void colorChanged();

private:
    QString name_;
    QColor color_ = Qt::black;
};

}  // namespace tarnwick
