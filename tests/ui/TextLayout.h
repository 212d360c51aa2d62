#pragma once

#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>

namespace norvin {

/// A text that is shown, and what is wrong with its place.
class ShownText final {
public:
    explicit ShownText(const QQuickItem& item)
        : m_item(item) {}

    [[nodiscard]] QString words() const { return m_item.property("text").toString(); }

    /// Where its glyphs are, in the coordinates of the item.
    [[nodiscard]] QRectF painted() const {
        if (!m_item.inherits("QQuickText")) { // digits, in the middle of their item
            return {(m_item.width() - m_item.implicitWidth()) / 2,
                    (m_item.height() - m_item.implicitHeight()) / 2, m_item.implicitWidth(),
                    m_item.implicitHeight()};
        }
        const double width = m_item.property("contentWidth").toDouble();
        const double height = m_item.property("contentHeight").toDouble();
        const int across = m_item.property("horizontalAlignment").toInt();
        const int down = m_item.property("verticalAlignment").toInt();
        const auto begin = [](bool isAtEnd, bool isCentred, double room, double size) {
            return isAtEnd ? room - size : isCentred ? (room - size) / 2 : 0;
        };
        return {
            begin((across & Qt::AlignRight) != 0, (across & Qt::AlignHCenter) != 0, m_item.width(), width),
            begin((down & Qt::AlignBottom) != 0, (down & Qt::AlignVCenter) != 0, m_item.height(), height),
            width, height};
    }

    /// What is wrong with it; empty for nothing. @param mayBeShortened where it is the user's own words
    [[nodiscard]] QString fault(bool mayBeShortened) const {
        if (m_item.property("truncated").toBool())
            return mayBeShortened ? QString() : QStringLiteral("is shortened");
        if (painted().width() > m_item.width() + 1)
            return QStringLiteral("is %1 wide in %2").arg(painted().width()).arg(m_item.width());
        if (painted().height() > m_item.height() + 1)
            return QStringLiteral("is %1 high in %2").arg(painted().height()).arg(m_item.height());
        for (const QQuickItem* above = m_item.parentItem(); above != nullptr; above = above->parentItem()) {
            const bool scrolls = above->inherits("QQuickFlickable");
            if (!scrolls && !holdsTexts(*above))
                continue;
            const QRectF place = m_item.mapRectToItem(above, painted());
            // What can be scrolled to is not cut.
            const bool isWide = scrolls && above->property("contentWidth").toDouble() > above->width() + 1;
            const bool isHigh = scrolls && above->property("contentHeight").toDouble() > above->height() + 1;
            if ((isWide && (place.left() < 0 || place.right() > above->width())) ||
                (isHigh && (place.top() < 0 || place.bottom() > above->height())))
                return {};
            if (!QRectF({0, 0}, above->size()).adjusted(-1, -1, 1, 1).contains(place)) {
                return QStringLiteral("reaches out of %1 \"%2\"")
                    .arg(QLatin1String(above->metaObject()->className()), above->objectName());
            }
        }
        return {};
    }

    /// Whether another text, drawn before, is seen through this one: no surface lies between them.
    [[nodiscard]] bool liesOver(const QQuickItem& other) const {
        const QRectF both = seen() & ShownText(other).seen();
        if (both.isEmpty())
            return false;
        for (const QQuickItem* above = m_item.parentItem(); above != nullptr; above = above->parentItem()) {
            if (isSurface(*above) && !above->isAncestorOf(&other) &&
                above->mapRectToScene({{0, 0}, above->size()}).contains(both))
                return false;
        }
        return true;
    }

private:
    /// Where its letters are in the scene, as far as they are seen; a little less than their lines are high.
    [[nodiscard]] QRectF seen() const {
        QRectF place = m_item.mapRectToScene(painted().adjusted(1, 2, -1, -2));
        for (const QQuickItem* above = m_item.parentItem(); above != nullptr; above = above->parentItem()) {
            if (above->clip())
                place &= above->mapRectToScene({{0, 0}, above->size()});
        }
        return place;
    }
    /// Whether nothing that lies below it is seen.
    static bool isSurface(const QQuickItem& item) {
        return item.inherits("QQuickPopupItem") ||
               (item.inherits("QQuickRectangle") && item.property("color").value<QColor>().alpha() == 255);
    }
    /// Whether a text in it has to stay within its edges.
    static bool holdsTexts(const QQuickItem& item) {
        return item.clip() || item.parentItem() == nullptr || isSurface(item) ||
               item.inherits("QQuickAbstractButton");
    }

    const QQuickItem& m_item;
};

/// The items below one that can be seen, each after its parent.
inline QList<QQuickItem*> itemsSeen(const QQuickItem* root) {
    QList<QQuickItem*> found;
    for (QQuickItem* child : root->childItems()) {
        if (child->isVisible() && child->opacity() > 0)
            found << child << itemsSeen(child);
    }
    return found;
}

/// What is wrong with the texts that a window shows: shortened, out of their items, buttons or window, or
/// over one another. @param names words of the user's, who may write more than there is room for
inline QStringList textFaults(const QQuickWindow& window, const QStringList& names) {
    QStringList faults;
    QList<const QQuickItem*> texts;
    for (const QQuickItem* item : itemsSeen(window.contentItem())) {
        const ShownText text(*item);
        if (!(item->inherits("QQuickText") || item->inherits("norvin::DigitRow")) || text.words().isEmpty())
            continue;
        const bool isUsers = std::any_of(names.cbegin(), names.cend(), [&text](const QString& name) {
            return text.words().contains(name);
        });
        if (const QString fault = text.fault(isUsers); !fault.isEmpty())
            faults += u'"' + text.words() + QStringLiteral("\" ") + fault;
        for (const QQuickItem* other : std::as_const(texts)) {
            if (text.liesOver(*other)) {
                faults +=
                    QStringLiteral("\"%1\" lies over \"%2\"").arg(text.words(), ShownText(*other).words());
            }
        }
        texts.append(item);
    }
    return faults;
}

} // namespace norvin
