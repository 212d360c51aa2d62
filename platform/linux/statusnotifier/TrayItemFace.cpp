#include "platform/linux/statusnotifier/TrayItemFace.h"

#include "platform/ApplicationCatalog.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>

namespace norvin {

namespace {

constexpr auto labelProperty = "XAyatanaLabel";
// The widest label that is to be expected, so that the bar keeps room for it.
constexpr auto labelGuide = "000:00";

} // namespace

/// What trays show while the pointer rests on an item: (sa(iiay)ss).
struct TrayTip {
    QString iconName;
    QList<TrayPicture> pictures;
    QString title;
    QString text;
};

static QDBusArgument& operator<<(QDBusArgument& argument, const TrayTip& tip) {
    argument.beginStructure();
    argument << tip.iconName << tip.pictures << tip.title << tip.text;
    argument.endStructure();
    return argument;
}

static const QDBusArgument& operator>>(const QDBusArgument& argument, TrayTip& tip) {
    argument.beginStructure();
    argument >> tip.iconName >> tip.pictures >> tip.title >> tip.text;
    argument.endStructure();
    return argument;
}

} // namespace norvin

Q_DECLARE_METATYPE(norvin::TrayTip)

namespace norvin {

TrayItemFace::TrayItemFace(const QDBusConnection& bus, const QString& menuPath, QObject* parent)
    : TrayObject(interfaceName, parent)
    , m_bus(bus)
    , m_menuPath(menuPath) {
    qDBusRegisterMetaType<TrayPicture>();
    qDBusRegisterMetaType<QList<TrayPicture>>();
    qDBusRegisterMetaType<TrayTip>();
    m_bus.registerVirtualObject(QLatin1String(path), this);
}

TrayItemFace::~TrayItemFace() {
    m_bus.unregisterObject(QLatin1String(path));
}

void TrayItemFace::setContent(const StatusItem::Content& content) {
    if (content.symbolFile != m_content.symbolFile)
        m_pictures = drawnForTray(content.symbolFile);
    m_content = content;
}

QVariantMap TrayItemFace::properties() const {
    const QVariant noPictures = QVariant::fromValue(QList<TrayPicture>());
    const TrayTip tip{{}, {}, m_content.title, m_content.text};
    return {
        {QStringLiteral("Category"), QStringLiteral("ApplicationStatus")},
        {QStringLiteral("Id"), QString::fromLatin1(ownBundleIdentifier)},
        {QStringLiteral("Title"), QStringLiteral("Norvin Focus")},
        {QStringLiteral("Status"), QStringLiteral("Active")},
        {QStringLiteral("WindowId"), 0},
        {QStringLiteral("IconThemePath"), QString()},
        {QStringLiteral("IconName"), QString()},
        {QStringLiteral("IconPixmap"), QVariant::fromValue(m_pictures)},
        {QStringLiteral("OverlayIconName"), QString()},
        {QStringLiteral("OverlayIconPixmap"), noPictures},
        {QStringLiteral("AttentionIconName"), QString()},
        {QStringLiteral("AttentionIconPixmap"), noPictures},
        {QStringLiteral("AttentionMovieName"), QString()},
        {QStringLiteral("ToolTip"), QVariant::fromValue(tip)},
        {QStringLiteral("ItemIsMenu"), false},
        {QStringLiteral("Menu"), QVariant::fromValue(QDBusObjectPath(m_menuPath))},
        {QLatin1String(labelProperty), m_content.label},
        {QStringLiteral("XAyatanaLabelGuide"), QLatin1String(labelGuide)},
    };
}

void TrayItemFace::handlePropertyRead(const QString& name) {
    m_isLabelRead = m_isLabelRead || name == QLatin1String(labelProperty);
}

QDBusMessage TrayItemFace::answerTo(const QDBusMessage& call) {
    const QString member = call.member();
    const QVariantList arguments = call.arguments();
    // What a click brings about may end what waits here.
    if (member == QLatin1String("Activate") && call.signature() == QLatin1String("ii")) {
        // Trays that do not know the place say 0, 0.
        const QPoint at(arguments[0].toInt(), arguments[1].toInt());
        const auto position = at.isNull() ? std::nullopt : std::optional(at);
        QMetaObject::invokeMethod(
            this, [this, position] { Q_EMIT activated(position); }, Qt::QueuedConnection);
        return call.createReply();
    }
    if (member == QLatin1String("SecondaryActivate")) {
        QMetaObject::invokeMethod(
            this, [this] { Q_EMIT secondaryActivated(); }, Qt::QueuedConnection);
        return call.createReply();
    }
    // The menu is shown by the tray, and nothing is scrolled.
    if (member == QLatin1String("ContextMenu") || member == QLatin1String("Scroll") ||
        member == QLatin1String("ProvideXdgActivationToken"))
        return call.createReply();
    return {};
}

void TrayItemFace::announce(const char* signal) {
    m_bus.send(
        QDBusMessage::createSignal(QLatin1String(path), QLatin1String(interfaceName), QLatin1String(signal)));
}

void TrayItemFace::announceLabel() {
    QDBusMessage signal = QDBusMessage::createSignal(QLatin1String(path), QLatin1String(interfaceName),
                                                     QStringLiteral("XAyatanaNewLabel"));
    m_bus.send(signal << m_content.label << QString::fromLatin1(labelGuide));
}

QString TrayItemFace::introspect(const QString&) const {
    return QStringLiteral(R"xml(<interface name="org.kde.StatusNotifierItem">
  <property name="Category" type="s" access="read"/>
  <property name="Id" type="s" access="read"/>
  <property name="Title" type="s" access="read"/>
  <property name="Status" type="s" access="read"/>
  <property name="WindowId" type="i" access="read"/>
  <property name="IconThemePath" type="s" access="read"/>
  <property name="IconName" type="s" access="read"/>
  <property name="IconPixmap" type="a(iiay)" access="read"/>
  <property name="OverlayIconName" type="s" access="read"/>
  <property name="OverlayIconPixmap" type="a(iiay)" access="read"/>
  <property name="AttentionIconName" type="s" access="read"/>
  <property name="AttentionIconPixmap" type="a(iiay)" access="read"/>
  <property name="AttentionMovieName" type="s" access="read"/>
  <property name="ToolTip" type="(sa(iiay)ss)" access="read"/>
  <property name="ItemIsMenu" type="b" access="read"/>
  <property name="Menu" type="o" access="read"/>
  <property name="XAyatanaLabel" type="s" access="read"/>
  <property name="XAyatanaLabelGuide" type="s" access="read"/>
  <method name="Activate">
    <arg type="i" name="x" direction="in"/>
    <arg type="i" name="y" direction="in"/>
  </method>
  <method name="SecondaryActivate">
    <arg type="i" name="x" direction="in"/>
    <arg type="i" name="y" direction="in"/>
  </method>
  <method name="ContextMenu">
    <arg type="i" name="x" direction="in"/>
    <arg type="i" name="y" direction="in"/>
  </method>
  <method name="Scroll">
    <arg type="i" name="delta" direction="in"/>
    <arg type="s" name="orientation" direction="in"/>
  </method>
  <signal name="NewIcon"/>
  <signal name="NewToolTip"/>
  <signal name="XAyatanaNewLabel">
    <arg type="s" name="label"/>
    <arg type="s" name="guide"/>
  </signal>
</interface>
)xml");
}

} // namespace norvin
