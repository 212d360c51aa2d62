#include "distraction/BrowserAlertService.h"
#include "platform/fake/FakeAlertOverlay.h"
#include "platform/fake/FakeUserNotifications.h"

#include <QSignalSpy>
#include <QTest>

using namespace norvin;

class tst_BrowserAlertService final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void oneEntrancePerPresentation();
    void notificationWhereThereIsNoOverlay();
};

void tst_BrowserAlertService::oneEntrancePerPresentation() {
    FakeAlertOverlay overlay;
    FakeUserNotifications notifications;
    BrowserAlertService service(overlay, notifications);
    QSignalSpy domains(&service.model(), &BrowserAlertModel::domainChanged);
    service.dismiss();
    QVERIFY(!overlay.isShown());

    for (int second = 0; second < 3; ++second)
        service.show(QStringLiteral("example.org"));
    QVERIFY(overlay.isShown());
    QCOMPARE(overlay.presentations(), 1);
    QCOMPARE(domains.size(), 1);

    service.show(QStringLiteral("example.net"));
    QCOMPARE(service.model().domain(), QStringLiteral("example.net"));
    QCOMPARE(service.shownDomain(), QStringLiteral("example.net"));
    QCOMPARE(overlay.presentations(), 1);

    service.dismiss();
    QVERIFY(!overlay.isShown());
    QVERIFY(!service.shownDomain());
    service.show(QStringLiteral("example.net"));
    QCOMPARE(overlay.presentations(), 2);
    QVERIFY(notifications.posted().empty());
}

void tst_BrowserAlertService::notificationWhereThereIsNoOverlay() {
    FakeAlertOverlay overlay;
    overlay.setAvailability(Availability::unavailable(QStringLiteral("health_alert_wayland")));
    FakeUserNotifications notifications;
    BrowserAlertService service(overlay, notifications);

    for (int second = 0; second < 3; ++second)
        service.show(QStringLiteral("example.org"));
    service.show(QStringLiteral("example.net"));
    QVERIFY(!overlay.isShown());
    QCOMPARE(notifications.posted().size(), 2u);
    QVERIFY(notifications.posted().front().body.contains(QLatin1String("example.org")));
    QVERIFY(notifications.posted().back().body.contains(QLatin1String("example.net")));
}

QTEST_GUILESS_MAIN(tst_BrowserAlertService)
#include "tst_BrowserAlertService.moc"
