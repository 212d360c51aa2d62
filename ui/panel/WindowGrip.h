#pragma once

#include <QPointF>
#include <QQmlEngine>
#include <QQuickItem>

namespace norvin {

/// What a window is dragged by. It tells how far the pointer has gone on the desktop, where the place of the
/// window that follows it does not matter. (Not final: QML derives from what it makes.)
class WindowGrip : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool isDragged READ isDragged NOTIFY isDraggedChanged)
public:
    explicit WindowGrip(QQuickItem* parent = nullptr);

    [[nodiscard]] bool isDragged() const { return m_isDragged; }

Q_SIGNALS:
    void isDraggedChanged();
    void pressed();
    /// Since it was pressed, in device-independent pixels.
    void dragged(double right, double down);
    void released();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;

private:
    void end();

    QPointF m_start;
    bool m_isDragged = false;
};

} // namespace norvin
