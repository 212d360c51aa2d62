#include "platform/linux/statusnotifier/TrayMenu.h"

#include "platform/linux/statusnotifier/TrayMenuTypes.h"

#include <QDBusMessage>
#include <QStringList>

#include <algorithm>

namespace norvin {

namespace {

constexpr uint protocolVersion = 3;

QVariantMap only(const QVariantMap& properties, const QStringList& names) {
    if (names.isEmpty())
        return properties;
    QVariantMap wanted;
    for (const QString& name : names) {
        if (const auto found = properties.constFind(name); found != properties.constEnd())
            wanted.insert(name, *found);
    }
    return wanted;
}

// An underscore marks the key of the letter behind it; two are one.
QString withoutMnemonics(QString text) {
    return text.replace(QLatin1Char('_'), QLatin1String("__"));
}

} // namespace

TrayMenu::TrayMenu(const QDBusConnection& bus, const QString& path, QObject* parent)
    : TrayObject(interfaceName, parent)
    , m_bus(bus)
    , m_path(path) {
    registerTrayMenuTypes();
    m_bus.registerVirtualObject(m_path, this);
}

TrayMenu::~TrayMenu() {
    m_bus.unregisterObject(m_path);
}

void TrayMenu::setEntries(const QList<StatusItem::MenuEntry>& entries, bool announces) {
    const QList<Line> before = m_lines;
    m_lines.clear();
    for (const StatusItem::MenuEntry& entry : entries) {
        // Lines that separate are all alike; each has a number by its place.
        const QString key = entry.id.isEmpty() ? QStringLiteral("-%1").arg(m_lines.size()) : u'+' + entry.id;
        int& number = m_numbers[key];
        if (number == 0)
            number = ++m_lastNumber;
        m_lines.append({number, entry});
    }
    const bool isSameLayout =
        std::equal(before.cbegin(), before.cend(), m_lines.cbegin(), m_lines.cend(),
                   [](const Line& left, const Line& right) { return left.number == right.number; });
    if (!isSameLayout)
        ++m_revision;
    if (!announces)
        return;
    if (isSameLayout)
        announceProperties(before);
    else
        announceLayout();
}

QVariantMap TrayMenu::properties() const {
    return {{QStringLiteral("Version"), protocolVersion},
            {QStringLiteral("TextDirection"), QStringLiteral("ltr")},
            {QStringLiteral("Status"), QStringLiteral("normal")},
            {QStringLiteral("IconThemePath"), QStringList()}};
}

QVariantMap TrayMenu::propertiesOf(const Line& line) {
    if (line.entry.id.isEmpty())
        return {{QStringLiteral("type"), QStringLiteral("separator")}, {QStringLiteral("visible"), true}};
    QVariantMap properties{{QStringLiteral("label"), withoutMnemonics(line.entry.text)},
                           {QStringLiteral("enabled"), line.entry.isEnabled},
                           {QStringLiteral("visible"), true}};
    if (line.entry.isChecked) {
        properties.insert(QStringLiteral("toggle-type"), QStringLiteral("checkmark"));
        properties.insert(QStringLiteral("toggle-state"), *line.entry.isChecked ? 1 : 0);
    }
    return properties;
}

QVariantMap TrayMenu::rootProperties() {
    return {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
}

const TrayMenu::Line* TrayMenu::lineOf(int number) const {
    const auto found = std::find_if(m_lines.cbegin(), m_lines.cend(),
                                    [number](const Line& line) { return line.number == number; });
    return found == m_lines.cend() ? nullptr : &*found;
}

QDBusMessage TrayMenu::answerTo(const QDBusMessage& call) {
    const QString member = call.member();
    const QVariantList arguments = call.arguments();
    const QString signature = call.signature();
    if (member == QLatin1String("GetLayout") && signature == QLatin1String("iias"))
        return call.createReply(layout(call));
    if (member == QLatin1String("GetGroupProperties") && signature == QLatin1String("aias")) {
        return call.createReply(
            groupProperties(qdbus_cast<QList<int>>(arguments[0]), arguments[1].toStringList()));
    }
    if (member == QLatin1String("GetProperty") && signature == QLatin1String("is"))
        return property(call);
    if (member == QLatin1String("Event") && signature == QLatin1String("isvu")) {
        if (take(arguments[0].toInt(), arguments[1].toString()))
            return call.createReply();
        return call.createErrorReply(QDBusError::InvalidArgs, QStringLiteral("no such line"));
    }
    if (member == QLatin1String("EventGroup") && signature == QLatin1String("a(isvu)"))
        return takeGroup(call);
    // The menu is always as it should be.
    if (member == QLatin1String("AboutToShow") && signature == QLatin1String("i"))
        return call.createReply(false);
    if (member == QLatin1String("AboutToShowGroup") && signature == QLatin1String("ai"))
        return call.createReply({QVariant::fromValue(QList<int>()), QVariant::fromValue(QList<int>())});
    return {};
}

QVariantList TrayMenu::layout(const QDBusMessage& message) const {
    const QVariantList arguments = message.arguments();
    const int parent = arguments[0].toInt();
    const int depth = arguments[1].toInt();
    const QStringList names = arguments[2].toStringList();
    TrayMenuNode node{parent, {}, {}};
    if (parent == 0) {
        node.properties = only(rootProperties(), names);
        for (const Line& line : depth == 0 ? QList<Line>() : m_lines)
            node.children.append({line.number, only(propertiesOf(line), names), {}});
    } else if (const Line* line = lineOf(parent)) {
        node.properties = only(propertiesOf(*line), names);
    }
    return {m_revision, QVariant::fromValue(node)};
}

QVariant TrayMenu::groupProperties(const QList<int>& numbers, const QStringList& names) const {
    QList<TrayMenuProperties> group;
    if (numbers.contains(0))
        group.append({0, only(rootProperties(), names)});
    for (const Line& line : m_lines) {
        // None asked for means all.
        if (numbers.isEmpty() || numbers.contains(line.number))
            group.append({line.number, only(propertiesOf(line), names)});
    }
    return QVariant::fromValue(group);
}

QDBusMessage TrayMenu::property(const QDBusMessage& message) const {
    const int number = message.arguments()[0].toInt();
    const Line* line = lineOf(number);
    const QVariantMap properties = number == 0 ? rootProperties()
                                   : line      ? propertiesOf(*line)
                                               : QVariantMap();
    const auto found = properties.constFind(message.arguments()[1].toString());
    if (found == properties.constEnd())
        return message.createErrorReply(QDBusError::InvalidArgs, QStringLiteral("no such property"));
    return message.createReply(QVariant::fromValue(QDBusVariant(*found)));
}

bool TrayMenu::take(int number, const QString& event) {
    if (number == 0)
        return true; // the menu itself was opened or closed
    const Line* line = lineOf(number);
    if (!line)
        return false;
    if (event == QLatin1String("clicked") && line->entry.isEnabled && !line->entry.id.isEmpty()) {
        // What is done may replace the lines.
        const QString id = line->entry.id;
        QMetaObject::invokeMethod(
            this, [this, id] { Q_EMIT chosen(id); }, Qt::QueuedConnection);
    }
    return true;
}

QDBusMessage TrayMenu::takeGroup(const QDBusMessage& message) {
    const auto events = qdbus_cast<QList<TrayMenuEvent>>(message.arguments()[0]);
    QList<int> unknown;
    for (const TrayMenuEvent& event : events) {
        if (!take(event.number, event.kind))
            unknown.append(event.number);
    }
    if (!events.isEmpty() && unknown.size() == events.size())
        return message.createErrorReply(QDBusError::InvalidArgs, QStringLiteral("no such lines"));
    return message.createReply(QVariant::fromValue(unknown));
}

void TrayMenu::announceLayout() {
    QDBusMessage signal =
        QDBusMessage::createSignal(m_path, QLatin1String(interfaceName), QStringLiteral("LayoutUpdated"));
    m_bus.send(signal << m_revision << 0);
}

void TrayMenu::announceProperties(const QList<Line>& before) {
    QList<TrayMenuProperties> changed;
    QList<TrayMenuRemovals> removed;
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        if (m_lines[i].entry == before[i].entry)
            continue;
        const QVariantMap properties = propertiesOf(m_lines[i]);
        changed.append({m_lines[i].number, properties});
        QStringList gone;
        const QVariantMap former = propertiesOf(before[i]);
        for (auto it = former.keyBegin(); it != former.keyEnd(); ++it) {
            if (!properties.contains(*it))
                gone.append(*it);
        }
        if (!gone.isEmpty())
            removed.append({m_lines[i].number, gone});
    }
    if (changed.isEmpty())
        return;
    QDBusMessage signal = QDBusMessage::createSignal(m_path, QLatin1String(interfaceName),
                                                     QStringLiteral("ItemsPropertiesUpdated"));
    m_bus.send(signal << QVariant::fromValue(changed) << QVariant::fromValue(removed));
}

QString TrayMenu::introspect(const QString&) const {
    return QStringLiteral(R"xml(<interface name="com.canonical.dbusmenu">
  <property name="Version" type="u" access="read"/>
  <property name="TextDirection" type="s" access="read"/>
  <property name="Status" type="s" access="read"/>
  <property name="IconThemePath" type="as" access="read"/>
  <method name="GetLayout">
    <arg type="i" name="parentId" direction="in"/>
    <arg type="i" name="recursionDepth" direction="in"/>
    <arg type="as" name="propertyNames" direction="in"/>
    <arg type="u" name="revision" direction="out"/>
    <arg type="(ia{sv}av)" name="layout" direction="out"/>
  </method>
  <method name="GetGroupProperties">
    <arg type="ai" name="ids" direction="in"/>
    <arg type="as" name="propertyNames" direction="in"/>
    <arg type="a(ia{sv})" name="properties" direction="out"/>
  </method>
  <method name="GetProperty">
    <arg type="i" name="id" direction="in"/>
    <arg type="s" name="name" direction="in"/>
    <arg type="v" name="value" direction="out"/>
  </method>
  <method name="Event">
    <arg type="i" name="id" direction="in"/>
    <arg type="s" name="eventId" direction="in"/>
    <arg type="v" name="data" direction="in"/>
    <arg type="u" name="timestamp" direction="in"/>
  </method>
  <method name="EventGroup">
    <arg type="a(isvu)" name="events" direction="in"/>
    <arg type="ai" name="idErrors" direction="out"/>
  </method>
  <method name="AboutToShow">
    <arg type="i" name="id" direction="in"/>
    <arg type="b" name="needUpdate" direction="out"/>
  </method>
  <method name="AboutToShowGroup">
    <arg type="ai" name="ids" direction="in"/>
    <arg type="ai" name="updatesNeeded" direction="out"/>
    <arg type="ai" name="idErrors" direction="out"/>
  </method>
  <signal name="ItemsPropertiesUpdated">
    <arg type="a(ia{sv})" name="updatedProps"/>
    <arg type="a(ias)" name="removedProps"/>
  </signal>
  <signal name="LayoutUpdated">
    <arg type="u" name="revision"/>
    <arg type="i" name="parent"/>
  </signal>
</interface>
)xml");
}

} // namespace norvin
