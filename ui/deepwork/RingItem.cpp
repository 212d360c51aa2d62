#include "ui/deepwork/RingItem.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace norvin {

RingItem::RingItem(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void RingItem::paint(QPainter* painter) {
    constexpr int sixteenthsOfATurn = 360 * 16;
    constexpr int top = 90 * 16;
    const double diameter = std::min(width(), height()) - m_thickness;
    if (diameter <= 0)
        return;
    QRectF ring(0, 0, diameter, diameter);
    ring.moveCenter(boundingRect().center());
    painter->setPen(QPen(m_trackColor, m_thickness));
    painter->drawEllipse(ring);
    const int length = static_cast<int>(std::lround(sixteenthsOfATurn * std::clamp(m_share, 0.0, 1.0)));
    if (length == 0)
        return;
    painter->setPen(QPen(m_color, m_thickness, Qt::SolidLine, Qt::RoundCap));
    painter->drawArc(ring, top, length);
}

} // namespace norvin
