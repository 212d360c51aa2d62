#include "ui/immersion/BubbleField.h"

#include <QPainter>
#include <QQuickWindow>
#include <QRadialGradient>
#include <QSGImageNode>
#include <QSGTexture>

#include <array>
#include <cmath>
#include <memory>
#include <numbers>

namespace norvin {

namespace {

// Few sizes, each of them one picture.
constexpr std::array<double, 4> radii{7, 12, 19, 28};

} // namespace

/// The pictures of all sizes, and a node for each bubble.
class BubbleField::Node final : public QSGNode {
public:
    std::array<std::unique_ptr<QSGTexture>, radii.size()> pictures;
    double scale = 0;
};

BubbleField::BubbleField(QQuickItem* parent)
    : QQuickItem(parent)
    , m_random(std::random_device()()) {
    setFlag(ItemHasContents);
    setEnabled(false);
}

BubbleField::~BubbleField() = default;

void BubbleField::setDepth(double depth) {
    if (depth == m_depth)
        return;
    m_depth = depth;
    Q_EMIT depthChanged();
}

void BubbleField::setColor(const QColor& color) {
    if (color == m_color)
        return;
    m_color = color;
    m_isColorNew = true;
    update();
    Q_EMIT colorChanged();
}

BubbleField::Bubble BubbleField::newBubble() {
    const auto between = [this](double low, double high) {
        return std::uniform_real_distribution(low, high)(m_random);
    };
    const int kind = std::uniform_int_distribution(0, static_cast<int>(radii.size()) - 1)(m_random);
    const double radius = radii[static_cast<size_t>(kind)];
    // Each begins its way at a depth of its own, so that they do not come in rows; large ones rise faster.
    return {.kind = kind,
            .across = between(0.02, 0.98),
            .height = -radius - between(0, 0.6) * height(),
            .speed = between(14, 20) + radius * 0.5,
            .sway = between(4, 12),
            .phase = between(0, 2 * std::numbers::pi)};
}

void BubbleField::step(double seconds) {
    const auto wanted = static_cast<size_t>(std::lround(m_depth * mostBubbles));
    for (Bubble& bubble : m_bubbles) {
        bubble.height += bubble.speed * seconds;
        bubble.phase += seconds * 0.7;
    }
    std::erase_if(m_bubbles, [this, wanted](const Bubble& bubble) {
        const double radius = radii[static_cast<size_t>(bubble.kind)];
        return bubble.height > height() + radius || (m_bubbles.size() > wanted && bubble.height < -radius);
    });
    while (m_bubbles.size() < wanted)
        m_bubbles.push_back(newBubble());
    update();
}

QRectF BubbleField::placeOf(const Bubble& bubble) const {
    const double radius = radii[static_cast<size_t>(bubble.kind)];
    const double x = bubble.across * width() + bubble.sway * std::sin(bubble.phase) - radius;
    const double y = height() - bubble.height - radius;
    return {std::round(x), std::round(y), 2 * radius, 2 * radius};
}

std::vector<QRectF> BubbleField::bubbles() const {
    std::vector<QRectF> places;
    for (const Bubble& bubble : m_bubbles) {
        const QRectF place = placeOf(bubble);
        if (place.intersects(boundingRect()))
            places.push_back(place);
    }
    return places;
}

QImage BubbleField::pictureOf(int kind, double scale) const {
    const double radius = radii[static_cast<size_t>(kind)];
    const int side = static_cast<int>(std::ceil(2 * radius * scale));
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto shade = [this](double share) {
        QColor color = m_color;
        color.setAlphaF(static_cast<float>(static_cast<double>(m_color.alphaF()) * share));
        return color;
    };
    QRadialGradient body(QPointF(radius * 0.8, radius * 0.75), radius * 1.25);
    body.setColorAt(0, shade(0.1));
    body.setColorAt(0.65, shade(0.25));
    body.setColorAt(1, shade(0.85));
    const double line = radius > 15 ? 1.5 : 1;
    painter.setPen(QPen(shade(0.15), line));
    painter.setBrush(body);
    const double inset = line / 2 + 0.5;
    painter.drawEllipse(QRectF(0, 0, 2 * radius, 2 * radius).adjusted(inset, inset, -inset, -inset));
    return image;
}

QSGNode* BubbleField::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
    auto* node = static_cast<Node*>(old);
    const double scale = window()->effectiveDevicePixelRatio();
    if (node == nullptr)
        node = new Node;
    if (m_isColorNew || node->scale != scale) {
        while (QSGNode* child = node->firstChild())
            delete child;
        for (size_t kind = 0; kind < radii.size(); ++kind)
            node->pictures[kind].reset(window()->createTextureFromImage(
                pictureOf(static_cast<int>(kind), scale), QQuickWindow::TextureHasAlphaChannel));
        node->scale = scale;
        m_isColorNew = false;
    }

    auto* child = static_cast<QSGImageNode*>(node->firstChild());
    for (const Bubble& bubble : m_bubbles) {
        const QRectF place = placeOf(bubble);
        if (!place.intersects(boundingRect()))
            continue;
        const bool isNew = child == nullptr;
        if (isNew) {
            child = window()->createImageNode();
            child->setOwnsTexture(false);
            child->setFiltering(QSGTexture::Nearest);
        }
        QSGTexture* picture = node->pictures[static_cast<size_t>(bubble.kind)].get();
        if (child->texture() != picture)
            child->setTexture(picture);
        child->setRect(place);
        // Only now: a renderer looks at what is appended to its tree at once.
        if (isNew)
            node->appendChildNode(child);
        child = static_cast<QSGImageNode*>(child->nextSibling());
    }
    while (child != nullptr) {
        auto* next = static_cast<QSGImageNode*>(child->nextSibling());
        delete child;
        child = next;
    }
    return node;
}

} // namespace norvin
