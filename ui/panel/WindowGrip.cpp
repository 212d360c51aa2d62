#include "ui/panel/WindowGrip.h"

namespace norvin {

WindowGrip::WindowGrip(QQuickItem* parent)
    : QQuickItem(parent) {
    setAcceptedMouseButtons(Qt::LeftButton);
}

void WindowGrip::mousePressEvent(QMouseEvent* event) {
    m_start = event->globalPosition();
    m_isDragged = true;
    setKeepMouseGrab(true);
    Q_EMIT pressed();
    Q_EMIT isDraggedChanged();
}

void WindowGrip::mouseMoveEvent(QMouseEvent* event) {
    const QPointF way = event->globalPosition() - m_start;
    Q_EMIT dragged(way.x(), way.y());
}

void WindowGrip::mouseReleaseEvent(QMouseEvent*) {
    end();
}

void WindowGrip::mouseUngrabEvent() {
    end();
}

void WindowGrip::end() {
    if (!m_isDragged)
        return;
    m_isDragged = false;
    setKeepMouseGrab(false);
    Q_EMIT released();
    Q_EMIT isDraggedChanged();
}

} // namespace norvin
