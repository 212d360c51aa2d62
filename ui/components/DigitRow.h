#pragma once

#include <QColor>
#include <QFont>
#include <QQmlEngine>
#include <QQuickItem>

namespace norvin {

/// A line of digits and the like, every digit as wide as the others, in the middle of the item. Glyphs as
/// large as those of the countdown are drawn from their outlines each time by whatever draws text, so each is
/// drawn once here and kept. (Not final: QML derives from what it makes.)
class DigitRow : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text MEMBER m_text WRITE setText NOTIFY textChanged)
    /// Height of the font in device-independent pixels, from 1.
    Q_PROPERTY(int pixelSize READ pixelSize WRITE setPixelSize NOTIFY fontChanged)
    /// A weight of QFont.
    Q_PROPERTY(int weight READ weight WRITE setWeight NOTIFY fontChanged)
    Q_PROPERTY(QColor color MEMBER m_color WRITE setColor NOTIFY colorChanged)
public:
    explicit DigitRow(QQuickItem* parent = nullptr);

    void setText(const QString& text);
    [[nodiscard]] int pixelSize() const { return m_font.pixelSize(); }
    void setPixelSize(int size);
    [[nodiscard]] int weight() const { return m_font.weight(); }
    void setWeight(int weight);
    void setColor(const QColor& color);

Q_SIGNALS:
    void textChanged();
    void fontChanged();
    void colorChanged();

protected:
    void componentComplete() override;
    QSGNode* updatePaintNode(QSGNode* oldNode, UpdatePaintNodeData* data) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    class Node;

    void measure();
    void forgetGlyphs();
    [[nodiscard]] double advanceOf(QChar character) const;
    [[nodiscard]] QImage drawn(QChar character, double scale) const;

    QString m_text;
    QFont m_font;
    QColor m_color;
    double m_digitWidth = 0;
    double m_height = 0;
    bool m_glyphsAreStale = false;
};

} // namespace norvin
