#include "platform/Log.h"
#include "platform/linux/statusnotifier/StatusNotifierItem.h"
#include "platform/linux/statusnotifier/TrayMenuTypes.h"
#include "support/DesktopRig.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QSignalSpy>
#include <QTest>

using namespace norvin;

/// Stands in for the tray: the watcher that items are told to, and a host that hears their signals.
class Tray final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered MEMBER m_hasHost)
public:
    explicit Tray(const QDBusConnection& bus, bool hasHost = true)
        : m_bus(bus)
        , m_hasHost(hasHost) {
        m_bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                             QDBusConnection::ExportAllContents);
        m_bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
        for (const char* signal : {"NewIcon", "NewToolTip", "XAyatanaNewLabel"}) {
            m_bus.connect({}, QStringLiteral("/StatusNotifierItem"),
                          QStringLiteral("org.kde.StatusNotifierItem"), QLatin1String(signal), this,
                          SLOT(hear(QDBusMessage)));
        }
        for (const char* signal : {"LayoutUpdated", "ItemsPropertiesUpdated"}) {
            m_bus.connect({}, QStringLiteral("/StatusNotifierItem/Menu"),
                          QStringLiteral("com.canonical.dbusmenu"), QLatin1String(signal), this,
                          SLOT(hear(QDBusMessage)));
        }
    }
    ~Tray() override {
        m_bus.unregisterService(QStringLiteral("org.kde.StatusNotifierWatcher"));
        m_bus.unregisterObject(QStringLiteral("/StatusNotifierWatcher"));
    }
    void setHasHost(bool hasHost) {
        m_hasHost = hasHost;
        m_bus.send(QDBusMessage::createSignal(QStringLiteral("/StatusNotifierWatcher"),
                                              QStringLiteral("org.kde.StatusNotifierWatcher"),
                                              hasHost ? QStringLiteral("StatusNotifierHostRegistered")
                                                      : QStringLiteral("StatusNotifierHostUnregistered")));
    }

    QStringList items;
    QStringList heard;

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString& service) { items.append(service); }
    void hear(const QDBusMessage& message) { heard.append(message.member()); }

private:
    QDBusConnection m_bus;
    bool m_hasHost;
};

/// Runs against a stand-in for the tray on a bus of the test's own.
class StatusItemTest final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        setLogSink([](const QString&) {});
        m_rig = std::make_unique<DesktopRig>();
        m_address = QString::fromLatin1(m_rig->startBus());
        QVERIFY(!m_address.isEmpty());
        qunsetenv("XDG_CURRENT_DESKTOP");
        registerTrayMenuTypes();
        m_rig->writeFile(QStringLiteral("square.svg"),
                         R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24" fill="currentColor">)"
                         R"(<path d="M0 0h12v24h-12z"/></svg>)");
        m_content = {.symbolFile = m_rig->filePath(QStringLiteral("square.svg")),
                     .label = QStringLiteral("25:00"),
                     .title = QStringLiteral("Work"),
                     .text = QStringLiteral("25 minutes left")};
    }
    void cleanup() {
        QDBusConnection::disconnectFromBus(QStringLiteral("item"));
        QDBusConnection::disconnectFromBus(QStringLiteral("tray"));
        setLogSink({});
    }

    void followsTraysComingAndGoing() {
        StatusNotifierItem item(bus("item"));
        item.setContent(m_content);
        QTRY_VERIFY(item.availability().reason()->detail.startsWith(QLatin1String("nobody owns")));
        QCOMPARE(item.availability().reason()->reasonKey, QStringLiteral("health_no_tray"));

        auto tray = std::make_unique<Tray>(bus("tray"), false);
        QTRY_COMPARE(tray->items, QStringList{bus("item").baseService()});
        QVERIFY(!item.availability().isAvailable()); // nobody shows what the watcher knows
        tray->setHasHost(true);
        QTRY_VERIFY(item.availability().isAvailable());
        QCOMPARE(tray->items.size(), 1);
        tray->setHasHost(false);
        QTRY_VERIFY(!item.availability().isAvailable());

        tray.reset();
        QTRY_VERIFY(item.availability().reason()->detail.startsWith(QLatin1String("nobody owns")));
        tray = std::make_unique<Tray>(bus("tray"));
        QTRY_COMPARE(tray->items.size(), 1);
        QTRY_VERIFY(item.availability().isAvailable());
    }

    void isNotShownBeforeItHasAContent() {
        Tray tray(bus("tray"));
        StatusNotifierItem item(bus("item"));
        item.probe();
        QTRY_VERIFY(item.availability().isAvailable());
        QVERIFY(tray.items.isEmpty());
        item.setContent(m_content);
        QTRY_COMPARE(tray.items.size(), 1);
    }

    void saysWhatItShows() {
        Tray tray(bus("tray"));
        StatusNotifierItem item(bus("item"));
        item.setContent(m_content);
        QTRY_COMPARE(tray.items.size(), 1);

        const QVariantMap all =
            qdbus_cast<QVariantMap>(ask(itemCall("org.freedesktop.DBus.Properties", "GetAll")
                                        << QStringLiteral("org.kde.StatusNotifierItem"))
                                        .value(0));
        QCOMPARE(all.value(QStringLiteral("Id")).toString(), QStringLiteral("com.norvin.Focus"));
        QCOMPARE(all.value(QStringLiteral("XAyatanaLabel")).toString(), QStringLiteral("25:00"));
        const auto tip = all.value(QStringLiteral("ToolTip")).value<QDBusArgument>();
        QCOMPARE(tip.currentSignature(), QStringLiteral("(sa(iiay)ss)"));
        const auto pictures = all.value(QStringLiteral("IconPixmap")).value<QDBusArgument>();
        QCOMPARE(pictures.currentSignature(), QStringLiteral("a(iiay)"));
        QList<int> sizes;
        pictures.beginArray();
        while (!pictures.atEnd()) {
            int width = 0;
            int height = 0;
            QByteArray pixels;
            pictures.beginStructure();
            pictures >> width >> height >> pixels;
            pictures.endStructure();
            sizes.append(width);
            QCOMPARE(pixels.size(), width * height * 4);
            // Alpha, red, green, blue: the left half is drawn, the right is not.
            QCOMPARE(pixels.left(4), QByteArray("\xff\x8b\x5c\xf6", 4));
            QCOMPARE(pixels.right(4), QByteArray(4, '\0'));
        }
        pictures.endArray();
        QCOMPARE(sizes, (QList<int>{16, 22, 24, 32, 48}));
    }

    void tellsOfChangesAndOfEachSecondOnlyWhereItShows() {
        Tray tray(bus("tray"));
        StatusNotifierItem item(bus("item"));
        item.setContent(m_content);
        QTRY_VERIFY(item.availability().isAvailable());

        m_content.label = QStringLiteral("24:59");
        item.setContent(m_content);
        m_content.text = QStringLiteral("24 minutes left");
        item.setContent(m_content);
        QTRY_COMPARE(tray.heard, QStringList{QStringLiteral("NewToolTip")});
        m_content.label = QStringLiteral("24:00");
        m_content.text = QStringLiteral("23 minutes left");
        item.setContent(m_content);
        QTRY_COMPARE(tray.heard.size(), 3);
        QVERIFY(!item.showsLabel());

        const QVariantList label =
            ask(itemCall("org.freedesktop.DBus.Properties", "Get")
                << QStringLiteral("org.kde.StatusNotifierItem") << QStringLiteral("XAyatanaLabel"));
        QCOMPARE(label.value(0).value<QDBusVariant>().variant().toString(), QStringLiteral("24:00"));
        QVERIFY(item.showsLabel());
        m_content.label = QStringLiteral("23:59");
        item.setContent(m_content);
        QTRY_COMPARE(tray.heard.last(), QStringLiteral("XAyatanaNewLabel"));
        QTRY_COMPARE(tray.heard.size(), 4);
    }

    void clicksAreHeard() {
        Tray tray(bus("tray"));
        StatusNotifierItem item(bus("item"));
        QList<std::optional<QPoint>> clicks;
        connect(&item, &StatusItem::activated, this,
                [&clicks](std::optional<QPoint> position) { clicks.append(position); });
        QSignalSpy middle(&item, &StatusItem::secondaryActivated);
        item.setContent(m_content);
        QTRY_COMPARE(tray.items.size(), 1);
        const char* interface = "org.kde.StatusNotifierItem";
        ask(itemCall(interface, "Activate") << 700 << 880);
        ask(itemCall(interface, "Activate") << 0 << 0);
        ask(itemCall(interface, "SecondaryActivate") << 1 << 1);
        ask(itemCall(interface, "Scroll") << 120 << QStringLiteral("vertical"));
        QTRY_COMPARE(clicks.size(), 2);
        QCOMPARE(clicks[0], QPoint(700, 880));
        QVERIFY(!clicks[1]);
        QCOMPARE(middle.size(), 1);
        QCOMPARE(answerTo(itemCall(interface, "Nonsense")).type(), QDBusMessage::ErrorMessage);
    }

    void menuIsReadAndChosenFrom() {
        Tray tray(bus("tray"));
        StatusNotifierItem item(bus("item"));
        QSignalSpy chosen(&item, &StatusItem::menuEntryChosen);
        QList<StatusItem::MenuEntry> entries{
            {.id = QStringLiteral("state"), .text = QStringLiteral("a_b"), .isEnabled = false},
            {},
            {.id = QStringLiteral("float"), .text = QStringLiteral("Float"), .isChecked = true},
            {.id = QStringLiteral("quit"), .text = QStringLiteral("Quit")}};
        item.setMenu(entries);
        item.setContent(m_content);
        QTRY_VERIFY(item.availability().isAvailable());

        QVariantList answer = ask(menuCall("GetLayout") << 0 << -1 << QStringList());
        const uint revision = answer[0].toUInt();
        const auto root = qdbus_cast<TrayMenuNode>(answer[1]);
        QCOMPARE(root.children.size(), 4);
        QCOMPARE(root.children[0].properties.value(QStringLiteral("label")).toString(),
                 QStringLiteral("a__b"));
        QCOMPARE(root.children[0].properties.value(QStringLiteral("enabled")).toBool(), false);
        QCOMPARE(root.children[1].properties.value(QStringLiteral("type")).toString(),
                 QStringLiteral("separator"));
        QCOMPARE(root.children[2].properties.value(QStringLiteral("toggle-state")).toInt(), 1);
        const int state = root.children[0].number;
        const int quit = root.children[3].number;
        answer = ask(menuCall("GetGroupProperties")
                     << QVariant::fromValue(QList<int>{quit}) << QStringList{QStringLiteral("label")});
        const auto group = qdbus_cast<QList<TrayMenuProperties>>(answer[0]);
        QCOMPARE(group.size(), 1);
        QCOMPARE(group[0].properties, (QVariantMap{{QStringLiteral("label"), QStringLiteral("Quit")}}));
        QCOMPARE(ask(menuCall("AboutToShow") << 0), QVariantList{false});

        // Another text is no other layout; a line that goes is.
        entries[0].text = QStringLiteral("c");
        item.setMenu(entries);
        item.setMenu(entries);
        QTRY_COMPARE(tray.heard, QStringList{QStringLiteral("ItemsPropertiesUpdated")});
        entries.removeAt(2);
        item.setMenu(entries);
        QTRY_COMPARE(tray.heard.last(), QStringLiteral("LayoutUpdated"));
        answer = ask(menuCall("GetLayout") << 0 << -1 << QStringList());
        QVERIFY(answer[0].toUInt() > revision);

        const auto event = [this](int line, const char* kind) {
            return menuCall("Event") << line << QString::fromLatin1(kind)
                                     << QVariant::fromValue(QDBusVariant(0)) << 0U;
        };
        ask(event(quit, "hovered"));
        ask(event(state, "clicked"));
        ask(event(quit, "clicked")); // by the number that it had before the other went
        QTRY_COMPARE(chosen.size(), 1);
        QCOMPARE(chosen[0][0].toString(), QStringLiteral("quit"));
        QCOMPARE(answerTo(event(root.children[2].number, "clicked")).type(), QDBusMessage::ErrorMessage);
        const QList<TrayMenuEvent> events{{quit, QStringLiteral("clicked"), QDBusVariant(0), 0},
                                          {99, QStringLiteral("clicked"), QDBusVariant(0), 0}};
        answer = ask(menuCall("EventGroup") << QVariant::fromValue(events));
        QCOMPARE(qdbus_cast<QList<int>>(answer[0]), QList<int>{99});
        QTRY_COMPARE(chosen.size(), 2);
    }

    void withoutABusItIsMerelyMissing() {
        StatusNotifierItem item(QDBusConnection(QStringLiteral("none")));
        item.probe();
        item.setMenu({});
        item.setContent(m_content);
        QCOMPARE(item.availability().reason()->reasonKey, QStringLiteral("health_no_session_bus"));
    }

private:
    [[nodiscard]] QDBusConnection bus(const char* name) const {
        return QDBusConnection::connectToBus(m_address, QString::fromLatin1(name));
    }
    [[nodiscard]] QDBusMessage itemCall(const char* interface, const char* method) const {
        return QDBusMessage::createMethodCall(bus("item").baseService(),
                                              QStringLiteral("/StatusNotifierItem"),
                                              QString::fromLatin1(interface), QString::fromLatin1(method));
    }
    [[nodiscard]] QDBusMessage menuCall(const char* method) const {
        return QDBusMessage::createMethodCall(
            bus("item").baseService(), QStringLiteral("/StatusNotifierItem/Menu"),
            QStringLiteral("com.canonical.dbusmenu"), QString::fromLatin1(method));
    }
    /// Without standing still: the item answers from the same thread.
    [[nodiscard]] QDBusMessage answerTo(const QDBusMessage& call) const {
        const QDBusPendingCall pending = bus("tray").asyncCall(call);
        return QTest::qWaitFor([&pending] { return pending.isFinished(); }) ? pending.reply()
                                                                            : QDBusMessage();
    }
    QVariantList ask(const QDBusMessage& call) const {
        const QDBusMessage answer = answerTo(call);
        if (answer.type() != QDBusMessage::ReplyMessage)
            qWarning().noquote() << call.member() << answer.errorMessage();
        return answer.arguments();
    }

    std::unique_ptr<DesktopRig> m_rig;
    QString m_address;
    StatusItem::Content m_content;
};

QTEST_GUILESS_MAIN(StatusItemTest)
#include "tst_StatusItem.moc"
