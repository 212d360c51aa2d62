#pragma once

#include <QQuickWindow>
#include <QRectF>
#include <QtQml/qqmlregistration.h>

namespace norvin {

/// A window over all others that never takes the keyboard, and that window managers and task bars know
/// nothing of. Main thread only.
///
/// Where nothing shows through it (isBlended false), it is cut down to its card and a frame along its edge.
/// (Not final: QML derives from what it makes.)
class OverlayWindow : public QQuickWindow {
    Q_OBJECT
    QML_ELEMENT
    /// Whether it leaves the pointer to what lies below. To be set while the window is made.
    Q_PROPERTY(bool isClickThrough READ isClickThrough WRITE setClickThrough NOTIFY isClickThroughChanged)
    /// Whether what lies below shows through.
    Q_PROPERTY(bool isBlended READ isBlended WRITE setBlended NOTIFY isBlendedChanged)
    /// What of the window is always there, in its own coordinates, and the radius of its corners.
    Q_PROPERTY(QRectF card READ card WRITE setCard NOTIFY shapeChanged)
    Q_PROPERTY(int cardRadius READ cardRadius WRITE setCardRadius NOTIFY shapeChanged)
    /// Width of the frame along the window's edge; 0 for none.
    Q_PROPERTY(int frameWidth READ frameWidth WRITE setFrameWidth NOTIFY shapeChanged)
public:
    explicit OverlayWindow(QWindow* parent = nullptr);

    [[nodiscard]] bool isClickThrough() const { return flags().testFlag(Qt::WindowTransparentForInput); }
    void setClickThrough(bool isClickThrough);
    [[nodiscard]] bool isBlended() const { return m_isBlended; }
    void setBlended(bool isBlended);
    [[nodiscard]] QRectF card() const { return m_card; }
    void setCard(const QRectF& card);
    [[nodiscard]] int cardRadius() const { return m_cardRadius; }
    void setCardRadius(int radius);
    [[nodiscard]] int frameWidth() const { return m_frameWidth; }
    void setFrameWidth(int width);

    /// Shows the window at this place, without activating it. @param geometry in device-independent pixels
    void present(const QRect& geometry);

Q_SIGNALS:
    void isClickThroughChanged();
    void isBlendedChanged();
    void shapeChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void updateShape();

    bool m_isBlended = true;
    QRectF m_card;
    int m_cardRadius = 0;
    int m_frameWidth = 0;
};

} // namespace norvin
