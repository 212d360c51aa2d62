#include "tests/support/FocusRig.h"

#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

using namespace norvin;
using namespace std::chrono_literals;
using Kind = CurrentActivityStatus::Kind;

class tst_AppUsageService final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void switchingRecordsEachInterval();
    void shortVisitsCountNothing();
    void ownTimeIsLegitimateAndNotRecorded();
    void browsers();
    void unnamedApplications();
    void metricsHoldTheOpenInterval();
    void nothingIsCarriedOverFromBeforeTheStart();
    void restartingWhileTrackingGivesTheOldSessionItsSeconds();
    void suspendedTimeBelongsToNobody();
    void wallClockJumpsChangeNoLength();
    void emptyDesktopCountsNothing();
    void listChangesNeverCountASecondTwice();
    void switchesWhileOffAreIgnored();
    void everySecondOfARandomDayIsCountedOnce();
};

namespace {

void whitelist(FocusRig& rig, const RunningApplication& app) {
    rig.blocker.addAppToWhitelist(app.bundleIdentifier);
}

} // namespace

void tst_AppUsageService::switchingRecordsEachInterval() {
    FocusRig rig;
    whitelist(rig, rig.editor);
    rig.workspace.setFrontmost(rig.editor);
    const QDateTime start = rig.clock.now();
    rig.usage.startTracking();
    QCOMPARE(rig.usage.currentActivityStatus(),
             (CurrentActivityStatus{Kind::legitimate, "Editor", std::nullopt}));
    rig.pass(65s);
    rig.workspace.setFrontmost(rig.game);
    QCOMPARE(rig.usage.currentActivityStatus(),
             (CurrentActivityStatus{Kind::distracted, "Game", std::nullopt}));
    rig.clock.advance(2900ms);
    rig.usage.stopTracking();

    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{65, 2}));
    QCOMPARE(rig.usage.currentActivityStatus().kind, Kind::idle);
    const QList<AppUsageSession> records = rig.context().fetchAppUsage();
    QCOMPARE(records.size(), 2);
    QCOMPARE(records.at(0).bundleID, rig.editor.bundleIdentifier);
    QCOMPARE(records.at(0).durationSeconds, 65);
    QCOMPARE(records.at(0).startTime, start);
    QCOMPARE(records.at(0).endTime, start.addSecs(65));
    QCOMPARE(records.at(0).category, QStringLiteral("category_development"));
    QCOMPARE(records.at(1).durationSeconds, 2);
    QCOMPARE(records.at(1).category, QStringLiteral("category_entertainment"));
    QVERIFY(rig.lines.contains(QStringLiteral("AppUsageService: Starting tracking for Deep Work session")));
    QVERIFY(rig.lines.contains(QStringLiteral("Switched from Editor to Game")));
    QVERIFY(rig.lines.contains(QStringLiteral("Recording usage: Editor (65s) in category_development")));
    QVERIFY(rig.lines.contains(QStringLiteral("AppUsageService: Stopping tracking")));
}

void tst_AppUsageService::shortVisitsCountNothing() {
    FocusRig rig;
    whitelist(rig, rig.browser);
    rig.workspace.setFrontmost(rig.game);
    rig.usage.startTracking();
    rig.clock.advance(900ms);
    rig.workspace.setFrontmost(rig.browser);
    rig.clock.advance(999ms);
    rig.usage.stopTracking();
    QCOMPARE(rig.usage.getCurrentMetrics(), FocusMetrics{});
    QVERIFY(rig.context().fetchAppUsage().isEmpty());
}

void tst_AppUsageService::ownTimeIsLegitimateAndNotRecorded() {
    FocusRig rig;
    rig.workspace.setFrontmost(rig.own);
    rig.usage.startTracking();
    rig.pass(30s);
    rig.usage.stopTracking();
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{30, 0}));
    QVERIFY(rig.context().fetchAppUsage().isEmpty());
}

void tst_AppUsageService::browsers() {
    FocusRig rig;
    rig.workspace.setFrontmost(rig.browser);
    rig.usage.startTracking();
    QCOMPARE(rig.usage.currentActivityStatus(),
             (CurrentActivityStatus{Kind::distracted, "Firefox", std::nullopt}));
    rig.pass(10s);
    rig.usage.stopTracking();
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{0, 10}));

    // A whitelisted one whose page is not known is given the benefit of the doubt; its use is recorded all
    // the same.
    whitelist(rig, rig.browser);
    rig.usage.startTracking();
    QCOMPARE(rig.usage.currentActivityStatus(),
             (CurrentActivityStatus{Kind::legitimate, "Firefox", std::nullopt}));
    rig.pass(20s);
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{20, 0}));
    rig.workspace.setFrontmost(rig.game);
    rig.usage.stopTracking();
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{20, 0}));
    QVERIFY(rig.lines.contains(QStringLiteral("AppUsageService: CLOSE (no domain) → LEGITIMATE (+20s)")));
    const QList<AppUsageSession> records = rig.context().fetchAppUsage();
    QCOMPARE(records.size(), 2);
    QCOMPARE(records.last().category, QStringLiteral("category_navigation"));
}

void tst_AppUsageService::unnamedApplications() {
    FocusRig rig;
    rig.workspace.setFrontmost(rig.editor);
    rig.usage.startTracking();
    rig.workspace.setFrontmost(RunningApplication{});
    QVERIFY(rig.lines.contains(QStringLiteral("Switched from Editor to Unknown")));
    rig.pass(5s);
    rig.usage.stopTracking();
    const QList<AppUsageSession> records = rig.context().fetchAppUsage();
    QCOMPARE(records.size(), 1);
    QCOMPARE(records.first().bundleID, QStringLiteral("unknown"));
    QCOMPARE(records.first().appName, QStringLiteral("Inconnu"));
    QCOMPARE(records.first().category, QStringLiteral("category_other"));
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{0, 5}));
}

void tst_AppUsageService::metricsHoldTheOpenInterval() {
    FocusRig rig;
    whitelist(rig, rig.editor);
    rig.workspace.setFrontmost(rig.editor);
    rig.usage.startTracking();
    rig.pass(7s);
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{7, 0}));
    QCOMPARE(rig.usage.sessionLegitimateTime(), 0);
    rig.workspace.setFrontmost(rig.game);
    rig.pass(3s);
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{7, 3}));
    rig.usage.stopTracking();
    rig.pass(60s);
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{7, 3}));
}

void tst_AppUsageService::nothingIsCarriedOverFromBeforeTheStart() {
    FocusRig rig;
    rig.workspace.setFrontmost(rig.game);
    rig.usage.startTracking();
    rig.pass(10s);
    rig.usage.stopTracking();
    rig.pass(3600s); // the same application stays in front between the sessions
    rig.usage.startTracking();
    QCOMPARE(rig.usage.getCurrentMetrics(), FocusMetrics{});
    rig.pass(5s);
    rig.usage.stopTracking();
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{0, 5}));
    QCOMPARE(rig.context().fetchAppUsage().size(), 2);
}

void tst_AppUsageService::restartingWhileTrackingGivesTheOldSessionItsSeconds() {
    FocusRig rig;
    rig.workspace.setFrontmost(rig.game);
    rig.usage.startTracking();
    rig.pass(10s);
    rig.usage.startTracking();
    rig.pass(4s);
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{0, 4}));
    QCOMPARE(rig.context().fetchAppUsage().size(), 1);
    QCOMPARE(rig.context().fetchAppUsage().first().durationSeconds, 10);
}

void tst_AppUsageService::suspendedTimeBelongsToNobody() {
    FocusRig rig;
    whitelist(rig, rig.browser);
    for (const RunningApplication& app : {rig.game, rig.browser}) {
        rig.workspace.setFrontmost(app);
        rig.usage.startTracking();
        rig.pass(10s);
        rig.workspace.emitWillSleep();
        rig.clock.suspend(8h);
        rig.workspace.emitDidWake();
        rig.pass(5s);
        rig.usage.stopTracking();
        const FocusMetrics metrics = rig.usage.getCurrentMetrics();
        QCOMPARE(metrics.legitimate + metrics.distracted, 15);
        const QList<AppUsageSession> records = rig.context().fetchAppUsage();
        QCOMPARE(records.at(records.size() - 2).durationSeconds, 10);
        QCOMPARE(records.last().durationSeconds, 5);
        QCOMPARE(records.at(records.size() - 2).startTime.secsTo(records.last().startTime), 8 * 3600 + 10);
    }
}

void tst_AppUsageService::wallClockJumpsChangeNoLength() {
    FocusRig rig;
    rig.workspace.setFrontmost(rig.game);
    rig.usage.startTracking();
    rig.pass(10s);
    rig.clock.setNow(rig.clock.now().addDays(-1));
    rig.pass(10s);
    rig.usage.stopTracking();
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{0, 20}));
}

void tst_AppUsageService::emptyDesktopCountsNothing() {
    FocusRig rig;
    rig.workspace.setFrontmost(rig.game);
    rig.usage.startTracking();
    rig.pass(10s);
    rig.workspace.clearFrontmost();
    QCOMPARE(rig.usage.currentActivityStatus().kind, Kind::idle);
    rig.pass(100s);
    rig.workspace.setFrontmost(rig.game);
    rig.pass(5s);
    rig.usage.stopTracking();
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{0, 15}));
}

void tst_AppUsageService::listChangesNeverCountASecondTwice() {
    FocusRig rig;
    rig.workspace.setFrontmost(rig.browser);
    rig.usage.startTracking();
    QSignalSpy statuses(&rig.usage, &AppUsageService::currentActivityStatusChanged);
    rig.pass(10s);
    whitelist(rig, rig.browser);
    QCOMPARE(statuses.size(), 1);
    QCOMPARE(rig.usage.currentActivityStatus().kind, Kind::legitimate);
    rig.pass(10s);
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{20, 0}));
    rig.blocker.removeAppFromWhitelist(rig.browser.bundleIdentifier);
    rig.pass(10s);
    rig.usage.stopTracking();
    const FocusMetrics metrics = rig.usage.getCurrentMetrics();
    QCOMPARE(metrics.legitimate + metrics.distracted, 30);
}

void tst_AppUsageService::switchesWhileOffAreIgnored() {
    FocusRig rig;
    rig.workspace.setFrontmost(rig.game);
    rig.pass(10s);
    rig.workspace.emitWillSleep();
    rig.workspace.emitDidWake();
    rig.usage.applicationWillTerminate();
    QVERIFY(!rig.usage.currentApp());
    QVERIFY(rig.context().fetchAppUsage().isEmpty());
    QVERIFY(rig.lines.isEmpty());
}

// Whole seconds between switches, so that nothing is lost to truncation: then the two counters add up to the
// time awake and tracked, and the records to the same without our own window.
void tst_AppUsageService::everySecondOfARandomDayIsCountedOnce() {
    for (quint32 seed = 1; seed <= 20; ++seed) {
        FocusRig rig;
        whitelist(rig, rig.editor);
        QRandomGenerator random(seed);
        const QList<RunningApplication> apps{rig.own, rig.editor, rig.terminal, rig.game, rig.browser};
        qint64 expected = 0;
        qint64 expectedOwn = 0;
        rig.workspace.setFrontmost(rig.editor);
        rig.usage.startTracking();
        for (int step = 0; step < 300; ++step) {
            const bool isCounted = rig.workspace.frontmostApplication().has_value();
            const bool isOwn = isCounted && *rig.workspace.frontmostApplication() == rig.own;
            const std::chrono::seconds length(random.bounded(1, 40));
            rig.pass(length);
            if (isCounted)
                expected += length.count();
            if (isOwn)
                expectedOwn += length.count();
            switch (random.bounded(8)) {
            case 0:
                rig.workspace.emitWillSleep();
                rig.clock.suspend(std::chrono::seconds(random.bounded(1, 5000)));
                rig.workspace.emitDidWake();
                break;
            case 1:
                rig.workspace.clearFrontmost();
                break;
            case 2:
                rig.clock.setNow(rig.clock.now().addSecs(random.bounded(-4000, 4000)));
                break;
            default:
                rig.workspace.setFrontmost(apps.at(random.bounded(5)));
                break;
            }
        }
        rig.usage.stopTracking();
        const FocusMetrics metrics = rig.usage.getCurrentMetrics();
        QVERIFY2(metrics.legitimate + metrics.distracted == expected, qPrintable(QString::number(seed)));
        qint64 recorded = 0;
        for (const AppUsageSession& record : rig.context().fetchAppUsage())
            recorded += record.durationSeconds;
        QVERIFY2(recorded == expected - expectedOwn, qPrintable(QString::number(seed)));
    }
}

QTEST_GUILESS_MAIN(tst_AppUsageService)
#include "tst_AppUsageService.moc"
