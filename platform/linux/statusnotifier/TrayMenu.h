#pragma once

#include "platform/StatusItem.h"
#include "platform/linux/statusnotifier/TrayObject.h"

#include <QDBusConnection>
#include <QHash>

namespace norvin {

/// The item's menu as trays read it: com.canonical.dbusmenu. One level; a line keeps its number for as long
/// as this lives, so that a click on a line that has just gone chooses no other. Main thread only.
class TrayMenu final : public TrayObject {
    Q_OBJECT
public:
    static constexpr auto interfaceName = "com.canonical.dbusmenu";

    /// @param path where it stands on the bus, from now on
    TrayMenu(const QDBusConnection& bus, const QString& path, QObject* parent = nullptr);
    ~TrayMenu() override;

    /// @param announces whether anybody is there to hear of the change
    void setEntries(const QList<StatusItem::MenuEntry>& entries, bool announces);

    [[nodiscard]] QString introspect(const QString& path) const override;

Q_SIGNALS:
    void chosen(const QString& id);

protected:
    [[nodiscard]] QVariantMap properties() const override;
    [[nodiscard]] QDBusMessage answerTo(const QDBusMessage& call) override;

private:
    struct Line {
        int number = 0;
        StatusItem::MenuEntry entry;
    };

    [[nodiscard]] static QVariantMap propertiesOf(const Line& line);
    [[nodiscard]] static QVariantMap rootProperties();
    [[nodiscard]] const Line* lineOf(int number) const;
    [[nodiscard]] QVariantList layout(const QDBusMessage& message) const;
    [[nodiscard]] QVariant groupProperties(const QList<int>& numbers, const QStringList& names) const;
    [[nodiscard]] QDBusMessage property(const QDBusMessage& message) const;
    [[nodiscard]] bool take(int number, const QString& event);
    [[nodiscard]] QDBusMessage takeGroup(const QDBusMessage& message);
    void announceLayout();
    void announceProperties(const QList<Line>& before);

    QDBusConnection m_bus;
    QString m_path;
    QList<Line> m_lines;
    QHash<QString, int> m_numbers;
    int m_lastNumber = 0;
    uint m_revision = 1;
};

} // namespace norvin
