#include "ui/deepwork/RingItem.h"

#include <QPainter>
#include <QQuickPaintedItem>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace norvin {

namespace {

constexpr int tilesASide = 6;
// A multiple of four has no fraction of a pixel at any usual scale of the screen.
constexpr int tileUnit = 4;
constexpr double turn = 2 * std::numbers::pi;

// Angles go anticlockwise from the top, in radians.
void drawArc(QPainter& painter, const QRectF& circle, double from, double to) {
    constexpr double sixteenths = 360 * 16 / turn;
    constexpr int top = 90 * 16;
    const int begin = static_cast<int>(std::lround(from * sixteenths));
    const int end = static_cast<int>(std::lround(to * sixteenths));
    if (end > begin)
        painter.drawArc(circle, top + begin, end - begin);
}

} // namespace

class RingItem::Tile final : public QQuickPaintedItem {
public:
    explicit Tile(RingItem& ring)
        : QQuickPaintedItem(&ring)
        , m_ring(ring) {
        setAntialiasing(true);
    }

    void paint(QPainter* painter) override {
        painter->translate(-position());
        m_ring.paint(*painter, QRectF(position(), size()));
    }

private:
    RingItem& m_ring;
};

RingItem::RingItem(QQuickItem* parent)
    : QQuickItem(parent) {
    // Otherwise every frame asks all the tiles whether the pointer is over them.
    setEnabled(false);
    for (int i = 0; i < tilesASide * tilesASide; ++i)
        m_tiles.push_back(new Tile(*this));
}

void RingItem::setShare(double share) {
    if (share == m_share)
        return;
    m_share = share;
    const double moved = std::abs(share - m_paintedShare);
    // A step of less than a pixel would be painted for nobody, except the one that closes or empties the
    // ring.
    if (moved * turn * circle().width() / 2 >= 1 || share <= 0 || share >= 1) {
        // The arc between two ends this close lies within the rectangle of both.
        constexpr double close = 0.01;
        updateTiles(moved < close ? endOf(m_paintedShare) | endOf(share) : boundingRect());
        m_paintedShare = share;
    }
    Q_EMIT changed();
}

void RingItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        layOutTiles();
}

void RingItem::layOutTiles() {
    const double side = std::ceil(std::max(width(), height()) / tilesASide / tileUnit) * tileUnit;
    int place = 0;
    for (Tile* tile : m_tiles) {
        const int row = place / tilesASide;
        const int column = place % tilesASide;
        const QRectF part = QRectF(column * side, row * side, side, side) & boundingRect();
        tile->setPosition(part.topLeft());
        tile->setSize(part.size());
        ++place;
    }
    updateTiles(boundingRect());
}

void RingItem::updateTiles(const QRectF& area) {
    const double half = m_thickness / 2 + 1;
    const QRectF hole = circle().adjusted(half, half, -half, -half);
    const QPointF middle = hole.center();
    const double radius = hole.width() / 2;
    for (Tile* tile : m_tiles) {
        const QRectF part(tile->position(), tile->size());
        // A tile within the ring shows nothing.
        const double dx = std::max(std::abs(part.left() - middle.x()), std::abs(part.right() - middle.x()));
        const double dy = std::max(std::abs(part.top() - middle.y()), std::abs(part.bottom() - middle.y()));
        tile->setVisible(!part.isEmpty() && std::hypot(dx, dy) > radius);
        if (tile->isVisible() && part.intersects(area))
            tile->update();
    }
}

QRectF RingItem::circle() const {
    const double diameter = std::max(0.0, std::min(width(), height()) - m_thickness);
    QRectF circle(0, 0, diameter, diameter);
    circle.moveCenter(boundingRect().center());
    return circle;
}

QRectF RingItem::endOf(double share) const {
    const double angle = turn * share;
    const double radius = circle().width() / 2;
    const QPointF end = boundingRect().center() - QPointF(std::sin(angle), std::cos(angle)) * radius;
    const double reach = m_thickness / 2 + 2;
    return {end.x() - reach, end.y() - reach, 2 * reach, 2 * reach};
}

// Only the piece of the ring that runs through the area, and a little more: a whole ring takes ten times as
// long.
void RingItem::paint(QPainter& painter, const QRectF& area) const {
    const QRectF ring = circle();
    if (ring.isEmpty())
        return;
    const auto angleOf = [middle = ring.center()](const QPointF& point) {
        return std::atan2(middle.x() - point.x(), middle.y() - point.y());
    };
    const double about = angleOf(area.center());
    double before = 0;
    double after = 0;
    for (const QPointF& corner : {area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight()}) {
        const double apart = std::remainder(angleOf(corner) - about, turn);
        before = std::min(before, apart);
        after = std::max(after, apart);
    }
    const double margin = 2 * m_thickness / ring.width();
    const double from = about + before - margin;
    const double to = about + after + margin;

    painter.setPen(QPen(m_trackColor, m_thickness, Qt::SolidLine, Qt::FlatCap));
    drawArc(painter, ring, from, to);
    painter.setPen(QPen(m_color, m_thickness, Qt::SolidLine, Qt::RoundCap));
    const double length = turn * std::clamp(m_paintedShare, 0.0, 1.0);
    for (const double shift : {-turn, 0.0, turn})
        drawArc(painter, ring, std::max(from, shift), std::min(to, shift + length));
}

} // namespace norvin
