#pragma once

#include <QColor>
#include <QQmlEngine>
#include <QQuickPaintedItem>

namespace norvin {

/// A ring, part of it in a colour. Painted here because a Shape of Qt Quick takes two frames for each change,
/// and this changes every second. (Not final: QML derives from what it makes.)
class RingItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(Ring)
    /// Share of the ring that is in the colour, 0 to 1, from the top anticlockwise.
    Q_PROPERTY(double share MEMBER m_share WRITE setShare NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color WRITE setColor NOTIFY changed)
    Q_PROPERTY(QColor trackColor MEMBER m_trackColor WRITE setTrackColor NOTIFY changed)
    /// Width of the ring, in device-independent pixels.
    Q_PROPERTY(double thickness MEMBER m_thickness WRITE setThickness NOTIFY changed)
public:
    explicit RingItem(QQuickItem* parent = nullptr);

    void setShare(double share) { change(m_share, share); }
    void setColor(const QColor& color) { change(m_color, color); }
    void setTrackColor(const QColor& color) { change(m_trackColor, color); }
    void setThickness(double thickness) { change(m_thickness, thickness); }

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    template <typename T>
    void change(T& member, const T& value) {
        if (member == value)
            return;
        member = value;
        update();
        Q_EMIT changed();
    }

    double m_share = 0;
    double m_thickness = 8;
    QColor m_color;
    QColor m_trackColor;
};

} // namespace norvin
