#pragma once

#include <QtQml/qqmlregistration.h>

#include <QColor>
#include <QQuickPaintedItem>

namespace tarnwick {

// A filled box with rounded corners. Unlike Qt's Rectangle it shows no seams when it is scaled
// without a GPU. The radius is in points.
class RoundedBox : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double radius MEMBER radius_ NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)

public:
    explicit RoundedBox(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

signals:
    void changed();

private:
    double radius_ = 0.0;
    QColor color_ = Qt::white;
};

}  // namespace tarnwick
