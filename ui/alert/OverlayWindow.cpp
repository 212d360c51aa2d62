#include "ui/alert/OverlayWindow.h"

#include <QPainterPath>
#include <QRegion>

namespace norvin {

namespace {

QRegion rounded(const QRectF& rect, int radius) {
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return QRegion(path.toFillPolygon().toPolygon());
}

} // namespace

OverlayWindow::OverlayWindow(QWindow* parent)
    : QQuickWindow(parent) {
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus |
             Qt::BypassWindowManagerHint | Qt::NoDropShadowWindowHint);
    QSurfaceFormat translucent = requestedFormat();
    translucent.setAlphaBufferSize(8);
    setFormat(translucent);
    setColor(Qt::transparent);
}

void OverlayWindow::setClickThrough(bool isClickThrough) {
    if (isClickThrough == this->isClickThrough())
        return;
    setFlag(Qt::WindowTransparentForInput, isClickThrough);
    Q_EMIT isClickThroughChanged();
}

void OverlayWindow::setBlended(bool isBlended) {
    if (isBlended == m_isBlended)
        return;
    m_isBlended = isBlended;
    updateShape();
    Q_EMIT isBlendedChanged();
}

void OverlayWindow::setCard(const QRectF& card) {
    if (card == m_card)
        return;
    m_card = card;
    updateShape();
    Q_EMIT shapeChanged();
}

void OverlayWindow::setCardRadius(int radius) {
    if (radius == m_cardRadius)
        return;
    m_cardRadius = radius;
    updateShape();
    Q_EMIT shapeChanged();
}

void OverlayWindow::setFrameWidth(int width) {
    if (width == m_frameWidth)
        return;
    m_frameWidth = width;
    updateShape();
    Q_EMIT shapeChanged();
}

void OverlayWindow::present(const QRect& geometry) {
    setGeometry(geometry);
    // The shape belongs to the window system's window, and has to be there before that is seen.
    create();
    updateShape();
    setVisible(true);
    raise();
}

void OverlayWindow::resizeEvent(QResizeEvent* event) {
    QQuickWindow::resizeEvent(event);
    updateShape();
}

void OverlayWindow::updateShape() {
    if (!handle())
        return;
    QRegion shape;
    if (!m_isBlended) {
        const QRect whole(QPoint(0, 0), size());
        const QRect inner = whole.adjusted(m_frameWidth, m_frameWidth, -m_frameWidth, -m_frameWidth);
        shape = (QRegion(whole) - inner) + rounded(m_card, m_cardRadius);
        // An empty mask would be none.
        if (shape.isEmpty())
            shape = QRegion(0, 0, 1, 1);
    }
    if (shape != mask())
        setMask(shape);
}

} // namespace norvin
