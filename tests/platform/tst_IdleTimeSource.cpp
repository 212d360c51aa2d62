#include "platform/linux/x11/X11IdleTimeSource.h"
#include "support/DesktopRig.h"

#include <QTest>

using namespace norvin;
using namespace std::chrono_literals;

class IdleTimeSourceTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void growsUntilTheNextInput_data() {
        QTest::addColumn<QStringList>("options");
        QTest::newRow("screen saver extension") << QStringList();
        QTest::newRow("IDLETIME counter")
            << QStringList{QStringLiteral("-extension"), QStringLiteral("MIT-SCREEN-SAVER")};
    }
    void growsUntilTheNextInput() {
        QFETCH(QStringList, options);
        DesktopRig rig;
        const QByteArray display = rig.startDisplay(options);
        QVERIFY(!display.isEmpty());
        const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
            xcb_connect(display.constData(), nullptr), xcb_disconnect);
        X11IdleTimeSource source(connection.get());
        QVERIFY(source.availability().isAvailable());
        QVERIFY(source.timeSinceLastInput().has_value());

        QTRY_VERIFY(source.timeSinceLastInput() >= 400ms);
        rig.start(QStringLiteral("xdotool"),
                  {QStringLiteral("mousemove"), QStringLiteral("33"), QStringLiteral("44")},
                  {QStringLiteral("DISPLAY=") + QString::fromLatin1(display)});
        QTRY_VERIFY(source.timeSinceLastInput() < 400ms);
    }

    void saysWhenNothingCanBeKnown() {
        const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
            xcb_connect("unix:/nowhere/display:0", nullptr), xcb_disconnect);
        X11IdleTimeSource source(connection.get());
        QVERIFY(!source.availability().isAvailable());
        QCOMPARE(source.availability().reason()->reasonKey, QStringLiteral("health_no_idle_source"));
        QVERIFY(!source.timeSinceLastInput());
    }

    void survivesTheEndOfTheServer() {
        auto rig = std::make_unique<DesktopRig>();
        const QByteArray display = rig->startDisplay();
        const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
            xcb_connect(display.constData(), nullptr), xcb_disconnect);
        X11IdleTimeSource source(connection.get());
        QVERIFY(source.timeSinceLastInput());
        rig.reset();
        QVERIFY(!source.timeSinceLastInput());
    }
};

QTEST_GUILESS_MAIN(IdleTimeSourceTest)
#include "tst_IdleTimeSource.moc"
