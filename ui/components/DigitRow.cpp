#include "ui/components/DigitRow.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

#include <cmath>
#include <map>
#include <memory>
#include <utility>

namespace norvin {

/// One image for each character, and the glyphs they show.
class DigitRow::Node final : public QSGNode {
public:
    std::map<QChar, std::unique_ptr<QSGTexture>> glyphs;
};

DigitRow::DigitRow(QQuickItem* parent)
    : QQuickItem(parent)
    , m_font(QGuiApplication::font()) {
    setFlag(ItemHasContents);
}

void DigitRow::componentComplete() {
    QQuickItem::componentComplete();
    measure();
}

void DigitRow::setText(const QString& text) {
    if (text == m_text)
        return;
    m_text = text;
    measure();
    update();
    Q_EMIT textChanged();
}

void DigitRow::setPixelSize(int size) {
    if (size < 1 || size == m_font.pixelSize())
        return;
    m_font.setPixelSize(size);
    forgetGlyphs();
    Q_EMIT fontChanged();
}

void DigitRow::setWeight(int weight) {
    if (weight == m_font.weight())
        return;
    m_font.setWeight(static_cast<QFont::Weight>(weight));
    forgetGlyphs();
    Q_EMIT fontChanged();
}

void DigitRow::setColor(const QColor& color) {
    if (color == m_color)
        return;
    m_color = color;
    forgetGlyphs();
    Q_EMIT colorChanged();
}

void DigitRow::forgetGlyphs() {
    m_glyphsAreStale = true;
    measure();
    update();
}

void DigitRow::measure() {
    // Properties are set one after the other: a font that nobody will see is not worth loading.
    if (!isComponentComplete())
        return;
    const QFontMetricsF metrics(m_font);
    m_height = std::ceil(metrics.height());
    m_digitWidth = std::ceil(metrics.horizontalAdvance(QLatin1Char('0')));
    double width = 0;
    for (const QChar character : m_text)
        width += advanceOf(character);
    setImplicitSize(width, m_height);
}

double DigitRow::advanceOf(QChar character) const {
    return character.isDigit() ? m_digitWidth : std::ceil(QFontMetricsF(m_font).horizontalAdvance(character));
}

QImage DigitRow::drawn(QChar character, double scale) const {
    const QSizeF size(advanceOf(character), m_height);
    QImage image((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(m_font);
    painter.setPen(m_color);
    painter.drawText(QRectF(QPointF(0, 0), size), Qt::AlignCenter | Qt::TextDontClip, QString(character));
    return image;
}

QSGNode* DigitRow::updatePaintNode(QSGNode* oldNode, UpdatePaintNodeData*) {
    auto* node = static_cast<Node*>(oldNode);
    if (!node || node->childCount() != m_text.size()) {
        // The software renderer takes an image that joins a scene later for one without a place.
        auto* fresh = new Node;
        if (node)
            fresh->glyphs.swap(node->glyphs);
        delete node;
        node = fresh;
    }
    std::map<QChar, std::unique_ptr<QSGTexture>> stale;
    if (std::exchange(m_glyphsAreStale, false))
        stale.swap(node->glyphs); // kept until nothing shows them any more

    const double scale = window()->effectiveDevicePixelRatio();
    const auto pixel = [scale](double position) { return std::round(position * scale) / scale; };
    double x = pixel((width() - implicitWidth()) / 2);
    const double y = pixel((height() - m_height) / 2);
    auto* image = static_cast<QSGImageNode*>(node->firstChild());
    for (const QChar character : m_text) {
        std::unique_ptr<QSGTexture>& glyph = node->glyphs[character];
        if (!glyph)
            glyph.reset(window()->createTextureFromImage(drawn(character, scale)));
        const bool isNew = !image;
        if (isNew)
            image = window()->createImageNode();
        const QRectF place(x, y, glyph->textureSize().width() / scale, glyph->textureSize().height() / scale);
        // An image that is told anything at all is drawn anew.
        if (image->texture() != glyph.get())
            image->setTexture(glyph.get());
        if (image->rect() != place)
            image->setRect(place);
        // Only now: an image has to show something from the moment when it becomes part of the scene.
        if (isNew)
            node->appendChildNode(image);
        x += advanceOf(character);
        image = static_cast<QSGImageNode*>(image->nextSibling());
    }
    return node;
}

void DigitRow::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged)
        forgetGlyphs();
    QQuickItem::itemChange(change, data);
}

void DigitRow::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    update();
}

} // namespace norvin
