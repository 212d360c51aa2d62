#include "platform/fake/FakeUpdateSource.h"
#include "services/UpdaterService.h"

#include <QtTest>

using namespace norvin;

class UpdaterServiceTest final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void mirrorsWhetherALookCanBegin();
    void saysWhatWasFound_data();
    void saysWhatWasFound();
};

void UpdaterServiceTest::mirrorsWhetherALookCanBegin() {
    FakeUpdateSource source;
    UpdaterService updater(source);
    QSignalSpy changed(&updater, &UpdaterService::canCheckForUpdatesChanged);
    QVERIFY(!updater.canCheckForUpdates());
    updater.checkForUpdates(); // not before the source has spoken
    QVERIFY(source.canCheckForUpdates());
    QTRY_VERIFY(updater.canCheckForUpdates());

    updater.checkForUpdates();
    QVERIFY(!updater.canCheckForUpdates());
    QVERIFY(updater.isChecking());
    source.finish({.outcome = UpdateResult::Outcome::upToDate, .version = {}, .reasonKey = {}, .detail = {}});
    QVERIFY(!updater.isChecking());
    QTRY_VERIFY(updater.canCheckForUpdates());
    QCOMPARE(changed.size(), 3);

    source.setAvailability(Availability::unavailable(QStringLiteral("update_no_packagekit")));
    QTRY_VERIFY(!updater.canCheckForUpdates());
    QCOMPARE(updater.unavailableKey(), QStringLiteral("update_no_packagekit"));
}

void UpdaterServiceTest::saysWhatWasFound_data() {
    using Outcome = UpdateResult::Outcome;
    QTest::addColumn<UpdateResult>("result");
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("argument");
    QTest::addColumn<bool>("opensCentre");
    const auto row = [](const char* name, const UpdateResult& result, const char* outcome,
                        const char* message, const char* argument, bool opens) {
        QTest::newRow(name) << result << QString::fromLatin1(outcome) << QString::fromLatin1(message)
                            << QString::fromLatin1(argument) << opens;
    };
    row("newest", {Outcome::upToDate, {}, {}, {}}, "up_to_date", "update_up_to_date", "", false);
    row("no word", {Outcome::noneAnnounced, {}, {}, {}}, "up_to_date", "update_none_announced", "", false);
    row("version", {Outcome::available, QStringLiteral("2.0"), {}, {}}, "available",
        "update_available_version", "2.0", true);
    row("no version", {Outcome::available, {}, {}, {}}, "available", "update_available", "", true);
    row("in place", {Outcome::installed, {}, {}, {}}, "available", "update_installed", "", false);
    row("failed", {Outcome::failed, {}, QStringLiteral("update_failed"), QStringLiteral("no disk")}, "failed",
        "update_failed", "no disk", false);
    row("timed out", {Outcome::failed, {}, QStringLiteral("update_timed_out"), QStringLiteral("x")}, "failed",
        "update_timed_out", "", false);
}

void UpdaterServiceTest::saysWhatWasFound() {
    QFETCH(UpdateResult, result);
    QFETCH(bool, opensCentre);
    FakeUpdateSource source;
    UpdaterService updater(source);
    QCOMPARE(updater.outcome(), QStringLiteral("none"));
    QTRY_VERIFY(updater.canCheckForUpdates());
    updater.checkForUpdates();
    source.finish(result);
    QTEST(updater.outcome(), "outcome");
    QTEST(updater.messageKey(), "message");
    QTEST(updater.messageArgument(), "argument");
    QVERIFY(updater.isNoticeShown());
    updater.openSoftwareCentre();
    QCOMPARE(source.opened, opensCentre ? 1 : 0);
    updater.dismissNotice();
    QVERIFY(!updater.isNoticeShown());
    QVERIFY(!updater.messageKey().isEmpty()); // the preferences page goes on saying it
}

QTEST_GUILESS_MAIN(UpdaterServiceTest)
#include "tst_UpdaterService.moc"
