#include "tests/support/FocusRig.h"

#include <QSignalSpy>
#include <QTest>

using namespace norvin;
using namespace std::chrono_literals;

class tst_MotionService final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void raisesItsFlagAtTheThreshold();
    void thresholdPreference_data();
    void thresholdPreference();
    void switchedOffItStillMeasures();
    void startsOnceAndStopsAtOnce();
    void unknownIdleTimeIsNoInactivity();
};

void tst_MotionService::raisesItsFlagAtTheThreshold() {
    FocusRig rig;
    QSignalSpy flag(&rig.motion, &MotionService::isInactiveChanged);
    rig.motion.startMonitoring();
    rig.idle.setTimeSinceLastInput(179999ms);
    rig.pass(1s);
    QVERIFY(!rig.motion.isInactive());
    QCOMPARE(rig.motion.idleTime(), 179.999);
    rig.idle.setTimeSinceLastInput(180s);
    rig.pass(3s);
    QVERIFY(rig.motion.isInactive());
    QCOMPARE(flag.size(), 1);
    rig.idle.setTimeSinceLastInput(0ms);
    rig.pass(1s);
    QVERIFY(!rig.motion.isInactive());
    QCOMPARE(flag.size(), 2);
}

void tst_MotionService::thresholdPreference_data() {
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("seconds");
    QTest::newRow("absent") << QVariant() << 180;
    QTest::newRow("zero") << QVariant(0) << 180;
    QTest::newRow("negative") << QVariant(-5) << 180;
    QTest::newRow("text") << QVariant(QStringLiteral("soon")) << 180;
    QTest::newRow("one") << QVariant(1) << 60;
    QTest::newRow("number as text") << QVariant(QStringLiteral("10")) << 600;
}

void tst_MotionService::thresholdPreference() {
    QFETCH(QVariant, stored);
    FocusRig rig;
    if (stored.isValid())
        rig.preferences.setValue(QStringLiteral("inactivity_threshold_minutes"), stored);
    QTEST(static_cast<int>(rig.motion.threshold().count()), "seconds");
}

void tst_MotionService::switchedOffItStillMeasures() {
    FocusRig rig;
    rig.motion.startMonitoring();
    rig.idle.setTimeSinceLastInput(1h);
    rig.pass(1s);
    QVERIFY(rig.motion.isInactive());
    rig.preferences.setValue(QStringLiteral("is_inactivity_detector_enabled"), QStringLiteral("false"));
    rig.pass(1s);
    QVERIFY(!rig.motion.isInactive());
    QCOMPARE(rig.motion.idleTime(), 3600.0);
}

void tst_MotionService::startsOnceAndStopsAtOnce() {
    FocusRig rig;
    rig.motion.startMonitoring();
    rig.motion.startMonitoring();
    QCOMPARE(rig.clock.activeTimers(), 1);
    rig.idle.setTimeSinceLastInput(1h);
    rig.pass(5s);
    QCOMPARE(rig.idle.reads(), 5);
    rig.motion.stopMonitoring();
    QCOMPARE(rig.motion.idleTime(), 0.0);
    QVERIFY(!rig.motion.isInactive());
    QCOMPARE(rig.clock.activeTimers(), 0);
}

void tst_MotionService::unknownIdleTimeIsNoInactivity() {
    FocusRig rig;
    rig.idle.setAvailability(Availability::unavailable(QStringLiteral("health_no_idle_source")));
    rig.motion.startMonitoring();
    rig.pass(1s);
    QVERIFY(!rig.motion.isInactive());
    QCOMPARE(rig.motion.idleTime(), 0.0);
}

QTEST_GUILESS_MAIN(tst_MotionService)
#include "tst_MotionService.moc"
