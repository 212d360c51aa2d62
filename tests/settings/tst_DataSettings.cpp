#include "model/StoreFile.h"
#include "services/LicenseService.h"
#include "settings/BackupService.h"
#include "settings/DataSettings.h"
#include "tests/model/StoreFixture.h"
#include "tests/support/FocusRig.h"

#include <QSignalSpy>
#include <QtTest>

using namespace norvin;
using namespace norvin::test;
using namespace std::chrono_literals;

/// Backups as the program makes them, and what the page does with them.
class DataSettingsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        rig = std::make_unique<FocusRig>();
        store = std::make_unique<StoreFixture>();
        container = store->open();
        QVERIFY(container);
        service = std::make_unique<BackupService>(rig->clock, store->file());
        begin();
    }
    void cleanup() {
        data.reset();
        service.reset();
        container.reset();
        store.reset();
        rig.reset();
    }

    void aDayHasOneBackup();
    void aBackupThatFailsIsTriedAgain();
    void whatIsUnderWayIsGivenUpAtTheEnd();
    void aBackupComesBack();
    void nothingIsReplacedUnderASession();
    void aLostStoreIsOfferedBack();
    void erasingWantsTheWord();

private:
    void begin() {
        data = std::make_unique<DataSettings>(*service, container->opening(), rig->timer, rig->preferences);
    }
    void fill() const {
        addTask(container->mainContext(), QStringLiteral("Task"));
        container->mainContext().insert(sessionOf(nullptr, morning));
        QVERIFY(!container->mainContext().save());
    }
    /// Lets time pass and waits for the backup that is then due. @return the file; empty where none was made
    [[nodiscard]] QString passTo(std::chrono::milliseconds duration) const {
        QSignalSpy finished(service.get(), &BackupService::finished);
        rig->clock.advance(duration);
        if (finished.isEmpty() && !finished.wait())
            return QStringLiteral("nothing was looked at");
        return QFileInfo(finished.constFirst().constFirst().value<BackupService::Result>().file).fileName();
    }
    [[nodiscard]] QStringList backups() const {
        QStringList names;
        for (const BackupFile& file : service->folder().files())
            names.append(QFileInfo(file.path).fileName());
        return names;
    }
    /// Makes a backup and waits until the page shows it.
    void backUp() const {
        data->backUpNow();
        QTRY_VERIFY(data->backups()->count() > 0);
    }
    [[nodiscard]] QString newest() const { return data->backups()->rows().front().file.path; }
    [[nodiscard]] bool lies(const char* ending) const {
        return QFile::exists(store->folder() + QStringLiteral("/NorvinFocus") + QLatin1String(ending));
    }

    std::unique_ptr<FocusRig> rig;
    std::unique_ptr<StoreFixture> store;
    std::unique_ptr<ModelContainer> container;
    std::unique_ptr<BackupService> service;
    std::unique_ptr<DataSettings> data;
};

void DataSettingsTest::aDayHasOneBackup() {
    service->start(); // 2025-03-10 09:00
    QCOMPARE(passTo(BackupService::startDelay), QString());
    QVERIFY2(backups().isEmpty(), "a store with nothing in it");
    fill();
    QCOMPARE(passTo(15h + BackupService::midnightDelay), QStringLiteral("2025-03-11-000500-daily.sqlite"));

    // Started again on the same day, and on the next after a night in suspend.
    service = std::make_unique<BackupService>(rig->clock, store->file());
    begin();
    service->start();
    QCOMPARE(passTo(BackupService::startDelay), QString());
    rig->clock.suspend(24h);
    service->handleWake();
    QCOMPARE(passTo(BackupService::startDelay), QStringLiteral("2025-03-12-000930-daily.sqlite"));
    for (int day = 13; day < 13 + 16; ++day)
        QVERIFY(passTo(24h).startsWith(QStringLiteral("2025-03-%1").arg(day)));
    QCOMPARE(backups().size(), BackupFolder::daysKept);
    QCOMPARE(rig->clock.activeTimers(), 1);
}

void DataSettingsTest::aBackupThatFailsIsTriedAgain() {
    fill();
    QFile obstacle(store->folder() + QStringLiteral("/norvin-focus"));
    QVERIFY(obstacle.open(QIODevice::WriteOnly));
    obstacle.close();
    service->start();
    QCOMPARE(passTo(BackupService::startDelay), QString());
    QVERIFY(data->isNoticeProblem());
    QVERIFY2(!service->availability().isAvailable(), "tracking health says so, too");
    QVERIFY(obstacle.remove());
    QVERIFY(passTo(BackupService::retryDelay).startsWith(QLatin1String("2025-03-10")));
    QVERIFY(service->availability().isAvailable());
}

void DataSettingsTest::whatIsUnderWayIsGivenUpAtTheEnd() {
    fill();
    QVERIFY(service->backUpNow());
    QVERIFY(!service->backUpNow());
    const QString folder = service->folder().path();
    data.reset();
    service.reset();
    QCOMPARE(QDir(folder).entryList({QStringLiteral("*.part*")}, QDir::Files | QDir::Hidden), QStringList());
}

void DataSettingsTest::aBackupComesBack() {
    fill();
    data->refresh();
    QTRY_VERIFY(!data->recordsText().isEmpty());
    const QString before = data->lastBackupText();
    backUp();
    QVERIFY(!data->isNoticeProblem());
    QVERIFY(data->lastBackupText() != before);
    const QModelIndex row = data->backups()->index(0);
    QVERIFY(data->backups()->data(row, BackupListModel::UsableRole).toBool());

    addTask(container->mainContext(), QStringLiteral("Later"));
    QVERIFY(!container->mainContext().save());
    QSignalSpy restart(data.get(), &DataSettings::restartWanted);
    data->restore(store->file());
    QVERIFY(!data->isWorking());
    data->restore(newest());
    QVERIFY(data->isWorking());
    QVERIFY(restart.wait());

    // The next start.
    data.reset();
    container.reset();
    container = store->open();
    QCOMPARE(container->mainContext().tasks().size(), size_t{1});
    begin();
    QVERIFY(!data->startNotice().isEmpty());
    QVERIFY(!data->isStartNoticeProblem());
    data->dismissStartNotice();
    QVERIFY(data->startNotice().isEmpty());
    QCOMPARE(backups().size(), 2);
}

void DataSettingsTest::nothingIsReplacedUnderASession() {
    fill();
    backUp();
    QSignalSpy restart(data.get(), &DataSettings::restartWanted);
    rig->timer.startSession(nullptr, PomodoroPhase::work);
    QVERIFY(!data->canReplace());
    data->restore(newest());
    data->erase(data->eraseWord(), false, false);
    QVERIFY(data->isNoticeProblem());
    QVERIFY(!lies(".restore") && !lies(".erase"));

    // One that begins while the backup is prepared.
    rig->timer.stopSession();
    data->restore(newest());
    rig->timer.startSession(nullptr, PomodoroPhase::work);
    QTRY_VERIFY(!data->isWorking());
    QVERIFY(data->isNoticeProblem());
    QVERIFY(!lies(".restore"));
    QCOMPARE(restart.size(), 0);
}

void DataSettingsTest::aLostStoreIsOfferedBack() {
    fill();
    backUp();
    data.reset();
    container.reset();
    // A later one that cannot be opened is nothing to offer.
    QFile unusable(service->folder().path() + QStringLiteral("/2025-03-11-090000-daily.sqlite"));
    QVERIFY(unusable.open(QIODevice::WriteOnly) && unusable.write("x") == 1);
    {
        QFile file(store->file());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(5000, 'x'));
    }
    container = store->open();
    begin();
    QVERIFY(data->isStartNoticeProblem());
    QVERIFY(!data->startAction().isEmpty());
    const QString notice = data->startNotice();
    rig->timer.startSession(nullptr, PomodoroPhase::work);
    data->act();
    QVERIFY2(data->startNotice() != notice, "a refusal is seen where the button is");
    rig->timer.stopSession();
    QCOMPARE(data->startNotice(), notice);
    QSignalSpy restart(data.get(), &DataSettings::restartWanted);
    data->act();
    QVERIFY(restart.wait());
    data.reset();
    container.reset();
    container = store->open();
    QCOMPARE(container->mainContext().tasks().size(), size_t{1});
    QVERIFY2(!container->opening().replacement.isFormerKept, "there was nothing to keep");
}

void DataSettingsTest::erasingWantsTheWord() {
    fill();
    backUp();
    rig->preferences.setValue(QStringLiteral("profile_name"), QStringLiteral("Ada"));
    rig->preferences.setValue(QLatin1String(LicenseService::firstLaunchKey), QStringLiteral("2025-03-01"));
    QSignalSpy restart(data.get(), &DataSettings::restartWanted);
    for (const QString& typed : {QString(), QStringLiteral("x"), data->eraseWord() + u'x'})
        data->erase(typed, true, true);
    QVERIFY(!lies(".erase"));
    data->erase(u' ' + data->eraseWord().toUpper(), false, false);
    QCOMPARE(restart.size(), 1);
    QVERIFY(rig->preferences.values().contains(QStringLiteral("profile_name")));
    QVERIFY(lies(".erase"));
    rig->preferences.setAvailability(
        Availability::unavailable(QStringLiteral("health_preferences_unwritable")));
    data->erase(data->eraseWord(), true, true);
    QVERIFY(data->isNoticeProblem());
    QVERIFY2(restart.size() == 1 && !lies(".erase"), "settings that would be back keep the rest too");
    QVERIFY(rig->preferences.values().contains(QStringLiteral("profile_name")));
    rig->preferences.setAvailability(Availability::available());
    data->erase(data->eraseWord(), true, true);
    QCOMPARE(restart.size(), 2);
    QCOMPARE(rig->preferences.values().keys(), QStringList{QLatin1String(LicenseService::firstLaunchKey)});

    data.reset();
    container.reset();
    container = store->open();
    QVERIFY(container->mainContext().tasks().empty());
    QVERIFY(backups().isEmpty());
}

QTEST_GUILESS_MAIN(DataSettingsTest)
#include "tst_DataSettings.moc"
