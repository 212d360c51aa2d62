#pragma once

#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>

#include <random>
#include <vector>

namespace norvin {

/// Bubbles that rise through the item, each a small picture that is moved by whole pixels, so that little is
/// drawn anew. They move only when step() is called. (Not final: QML derives from what it makes.)
class BubbleField : public QQuickItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(BubbleField)
    /// How many there are: 0.0 for none, 1.0 for mostBubbles. Those that are too many rise out of the item.
    Q_PROPERTY(double depth READ depth WRITE setDepth NOTIFY depthChanged)
    /// What a bubble is drawn in; its alpha is that of the edge, the strongest part.
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
public:
    static constexpr int mostBubbles = 16;

    explicit BubbleField(QQuickItem* parent = nullptr);
    ~BubbleField() override;

    [[nodiscard]] double depth() const { return m_depth; }
    void setDepth(double depth);
    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor& color);

    /// Lets them rise for that long. @param seconds above 0
    Q_INVOKABLE void step(double seconds);
    /// Where the bubbles are that can be seen, in device-independent pixels.
    [[nodiscard]] std::vector<QRectF> bubbles() const;

Q_SIGNALS:
    void depthChanged();
    void colorChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    struct Bubble {
        int kind = 0;
        double across = 0; // share of the width
        double height = 0; // of its middle over the lower edge
        double speed = 0;
        double sway = 0;
        double phase = 0;
    };
    class Node;

    [[nodiscard]] Bubble newBubble();
    [[nodiscard]] QRectF placeOf(const Bubble& bubble) const;
    [[nodiscard]] QImage pictureOf(int kind, double scale) const;

    double m_depth = 0;
    QColor m_color;
    bool m_isColorNew = true;
    std::vector<Bubble> m_bubbles;
    std::minstd_rand m_random;
};

} // namespace norvin
