#include "distraction/BrowserAlertService.h"
#include "platform/fake/FakeClock.h"
#include "platform/fake/FakeOverlaySupport.h"
#include "platform/fake/FakePreferences.h"
#include "platform/fake/FakeUserNotifications.h"
#include "tests/ui/PseudoTranslator.h"
#include "tests/ui/TextLayout.h"
#include "ui/InterfaceEngine.h"
#include "ui/Localization.h"
#include "ui/MotionPreference.h"
#include "ui/alert/AlertWindows.h"
#include "ui/alert/OverlayWindow.h"

#include <QQuickItem>
#include <QScreen>
#include <QtTest>

using namespace norvin;
using namespace std::chrono_literals;

class AlertWindowsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void coversTheScreenAndTakesNothing();
    void entersOnceAndFollowsTheDomain();
    void reducedMotionLeavesItStill();
    void coversOnlyCardAndFrameWhereNothingIsBlended();
    void staysAwayWhereThereAreNoOverlays();
    void canBeReadInEachLanguage_data();
    void canBeReadInEachLanguage();
};

namespace {

struct AlertRig {
    AlertRig() {
        engine.setSingletons(localization, motion);
        windows.setContent(&engine, &service.model());
    }
    ~AlertRig() { windows.setContent(nullptr, nullptr); }
    AlertRig(const AlertRig&) = delete;
    AlertRig& operator=(const AlertRig&) = delete;

    void show(const QString& domain = QStringLiteral("news.example.org")) { service.show(domain); }
    [[nodiscard]] OverlayWindow* window() const {
        return windows.windows().isEmpty() ? nullptr : windows.windows().constFirst();
    }
    [[nodiscard]] QQuickItem* item(const char* name) const {
        return window()->findChild<QQuickItem*>(QLatin1String(name));
    }

    FakePreferences preferences;
    FakeClock clock;
    FakeOverlaySupport support;
    FakeUserNotifications notifications;
    Localization localization{preferences};
    MotionPreference motion;
    InterfaceEngine engine;
    AlertWindows windows{support, clock};
    BrowserAlertService service{windows, notifications};
};

} // namespace

void AlertWindowsTest::coversTheScreenAndTakesNothing() {
    AlertRig rig;
    rig.show();
    QCOMPARE(rig.windows.windows().size(), QGuiApplication::screens().size());
    const OverlayWindow* window = rig.window();
    QTRY_VERIFY(window->isExposed());
    QCOMPARE(window->geometry(), QGuiApplication::primaryScreen()->geometry());
    QCOMPARE(window->type(), Qt::Tool);
    QVERIFY(window->flags().testFlags(Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus |
                                      Qt::BypassWindowManagerHint | Qt::WindowStaysOnTopHint));
    QVERIFY(window->mask().isEmpty());

    rig.service.dismiss();
    QVERIFY(rig.windows.windows().isEmpty());
    QCOMPARE(rig.clock.activeTimers(), 0);
}

void AlertWindowsTest::entersOnceAndFollowsTheDomain() {
    AlertRig rig;
    rig.show();
    OverlayWindow* const window = rig.window();
    QTRY_COMPARE(window->opacity(), 1.0);
    QVERIFY(rig.item("browserAlert")->property("pulse").toBool());
    QCOMPARE(rig.item("alertDomain")->property("text").toString(), QStringLiteral("news.example.org"));

    QSignalSpy opacity(window, &QWindow::opacityChanged);
    const QString longDomain = QString(200, u'a') + QStringLiteral(".例え.example.org");
    rig.show(longDomain);
    QCOMPARE(rig.window(), window);
    QCOMPARE(rig.item("alertDomain")->property("text").toString(), longDomain);
    QTRY_VERIFY(rig.item("alertDomain")->property("truncated").toBool());
    QCOMPARE(opacity.size(), 0);
}

void AlertWindowsTest::reducedMotionLeavesItStill() {
    qputenv("NORVIN_REDUCED_MOTION", "1");
    const auto restore = qScopeGuard([] { qunsetenv("NORVIN_REDUCED_MOTION"); });
    AlertRig rig;
    rig.show();
    QSignalSpy opacity(rig.window(), &QWindow::opacityChanged);
    QTRY_COMPARE(rig.window()->opacity(), 1.0);
    QVERIFY(opacity.size() <= 1);
    QVERIFY(!rig.item("browserAlert")->property("pulse").toBool());
}

void AlertWindowsTest::coversOnlyCardAndFrameWhereNothingIsBlended() {
    AlertRig rig;
    rig.support.setBlending(false);
    rig.show();
    const QSize size = rig.window()->size();
    const QPoint middle(size.width() / 2, size.height() / 2);
    const QPoint between(30, 30);
    QTRY_VERIFY(rig.window()->mask().contains(middle));
    QVERIFY(rig.window()->mask().contains(QPoint(2, middle.y())));
    QVERIFY(rig.window()->mask().contains(QPoint(size.width() - 1, middle.y())));
    QVERIFY(!rig.window()->mask().contains(between));

    rig.support.setBlending(true);
    rig.clock.advance(1s);
    QVERIFY(rig.window()->mask().isEmpty());
    rig.support.setBlending(false);
    rig.clock.advance(1s);
    QVERIFY(!rig.window()->mask().contains(between) && rig.window()->mask().contains(middle));
}

void AlertWindowsTest::staysAwayWhereThereAreNoOverlays() {
    AlertRig rig;
    rig.support.setAvailability(Availability::unavailable(QStringLiteral("health_wayland_overlay")));
    rig.show();
    QVERIFY(rig.windows.windows().isEmpty());
    QCOMPARE(rig.notifications.posted().size(), 1u);
}

void AlertWindowsTest::canBeReadInEachLanguage_data() {
    QTest::addColumn<QString>("language");
    for (const char* language : {"en", "fr", "pseudo"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

void AlertWindowsTest::canBeReadInEachLanguage() {
    QFETCH(QString, language);
    AlertRig rig;
    std::optional<PseudoTranslator> pseudo;
    if (language == QLatin1String("pseudo"))
        pseudo.emplace();
    else
        rig.localization.setLanguage(language);
    rig.show();
    QTRY_VERIFY(rig.window()->isExposed());
    static_cast<void>(rig.window()->grabWindow());
    QCOMPARE(textFaults(*rig.window(), {}).join(u'\n'), QString());
}

QTEST_MAIN(AlertWindowsTest)
#include "tst_AlertWindows.moc"
