#pragma once

#include <QColor>
#include <QQmlEngine>
#include <QQuickItem>

#include <vector>

class QPainter;

namespace norvin {

/// A ring, part of it in a colour. Painted here because a Shape of Qt Quick takes two frames for each change,
/// and this changes every second; in tiles, because what lies in front of what changed is drawn anew too, and
/// that is the large digits inside the ring. (Not final: QML derives from what it makes.)
class RingItem : public QQuickItem {
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

    void setShare(double share);
    void setColor(const QColor& color) { change(m_color, color); }
    void setTrackColor(const QColor& color) { change(m_trackColor, color); }
    void setThickness(double thickness) { change(m_thickness, thickness); }

    /// Paints what of the ring lies in an area, in the coordinates of this item; more may be painted around
    /// it.
    void paint(QPainter& painter, const QRectF& area) const;

Q_SIGNALS:
    void changed();

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    class Tile;

    template <typename T>
    void change(T& member, const T& value) {
        if (member == value)
            return;
        member = value;
        updateTiles(boundingRect());
        Q_EMIT changed();
    }
    void layOutTiles();
    void updateTiles(const QRectF& area);
    /// Where the ring runs, along its middle.
    [[nodiscard]] QRectF circle() const;
    /// Everything that the end of the coloured part covers at a share.
    [[nodiscard]] QRectF endOf(double share) const;

    std::vector<Tile*> m_tiles;
    double m_share = 0;
    /// The share that the tiles show; less than a pixel away from the other.
    double m_paintedShare = 0;
    double m_thickness = 8;
    QColor m_color;
    QColor m_trackColor;
};

} // namespace norvin
