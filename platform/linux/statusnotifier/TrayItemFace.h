#pragma once

#include "platform/StatusItem.h"
#include "platform/linux/statusnotifier/TrayObject.h"
#include "platform/linux/statusnotifier/TraySymbol.h"

#include <QDBusConnection>

namespace norvin {

/// The item as trays read it: org.kde.StatusNotifierItem. Main thread only.
class TrayItemFace final : public TrayObject {
    Q_OBJECT
public:
    static constexpr auto interfaceName = "org.kde.StatusNotifierItem";
    /// Where trays look for the item of a program that tells them its name alone.
    static constexpr auto path = "/StatusNotifierItem";

    /// @param menuPath where the item's menu stands
    TrayItemFace(const QDBusConnection& bus, const QString& menuPath, QObject* parent = nullptr);
    ~TrayItemFace() override;

    [[nodiscard]] const StatusItem::Content& content() const { return m_content; }
    /// Whether a tray has asked for the label alone, as one does that shows it.
    [[nodiscard]] bool isLabelRead() const { return m_isLabelRead; }
    void forgetReaders() { m_isLabelRead = false; }

    /// What is read from now on.
    void setContent(const StatusItem::Content& content);

    // Tell the tray to read anew.
    void announceSymbol() { announce("NewIcon"); }
    void announceTip() { announce("NewToolTip"); }
    void announceLabel();

    [[nodiscard]] QString introspect(const QString& path) const override;

Q_SIGNALS:
    void activated(std::optional<QPoint> position);
    void secondaryActivated();

protected:
    [[nodiscard]] QVariantMap properties() const override;
    void handlePropertyRead(const QString& name) override;
    [[nodiscard]] QDBusMessage answerTo(const QDBusMessage& call) override;

private:
    void announce(const char* signal);

    QDBusConnection m_bus;
    QString m_menuPath;
    StatusItem::Content m_content;
    QList<TrayPicture> m_pictures;
    bool m_isLabelRead = false;
};

} // namespace norvin
