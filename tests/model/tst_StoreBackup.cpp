#include "model/BackupFolder.h"
#include "model/StoreFile.h"
#include "model/StoreReplacement.h"
#include "tests/model/StoreFixture.h"

#include <QtTest>

using namespace norvin;
using namespace norvin::test;

/// Copies of the store, the folder that they lie in, and the replacement of the store by one of them.
class StoreBackupTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aCopyIsTheStoreAtOneMoment();
    void aCopyThatFailsLeavesNothingBehind();
    void oldBackupsGoAndTheLastOnesStay();
    void aBackupTakesThePlaceOfTheStore();
    void aStoreInUseStays();
    void aDamagedStoreIsPutAside();
    void erasingTakesWhatItSays();

private:
    static QStringList titles(const ModelContainer& store) {
        QStringList found;
        for (const TaskItem* task : const_cast<ModelContainer&>(store).mainContext().tasks())
            found.append(task->title());
        return found;
    }
    static void write(const QString& path, const QByteArray& content) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    /// The store with one task, closed.
    static void fill(const StoreFixture& store, const QString& title) {
        const auto opened = store.open();
        QVERIFY(opened);
        addTask(opened->mainContext(), title);
    }
    static QStringList names(const QString& folder) {
        return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
};

void StoreBackupTest::aCopyIsTheStoreAtOneMoment() {
    const StoreFixture store;
    const auto opened = store.open();
    ModelContext& context = opened->mainContext();
    Project* project = context.insert(std::make_unique<Project>(Project::Init{.name = QStringLiteral("P")}));
    TaskItem* task = addTask(context, QStringLiteral("Before"), project);
    context.insert(sessionOf(task, morning));
    for (int i = 0; i < 4000; ++i)
        context.insert(AppUsageSession{.id = AppUsageSessionId::create(),
                                       .bundleID = QStringLiteral("org.example.Editor"),
                                       .appName = QStringLiteral("Editor"),
                                       .startTime = morning.addSecs(i),
                                       .endTime = morning.addSecs(i + 1),
                                       .durationSeconds = 1,
                                       .category = QStringLiteral("category_other")});
    QVERIFY(!context.save());

    // Saving goes on while the copy is made, and does not have it begin anew.
    const QString target = store.folder() + QStringLiteral("/sub/copy.sqlite");
    int steps = 0;
    const StoreResult failure = copyStoreFile(store.file(), target, [&](int percent) {
        addTask(context, QStringLiteral("Meanwhile"));
        ++steps;
        return percent <= 100 && !context.save();
    });
    QVERIFY2(!failure, failure ? qPrintable(failure->description) : "");
    QVERIFY(steps > 1);
    QCOMPARE(names(store.folder() + QStringLiteral("/sub")), QStringList{QStringLiteral("copy.sqlite")});

    const auto facts = std::get<StoreFacts>(readStoreFacts(target, CountIntervals::yes));
    QCOMPARE(facts.projects, 1);
    QCOMPARE(facts.tasks, 1);
    QCOMPARE(facts.sessions, 1);
    QCOMPARE(facts.intervals, 4000);
    QCOMPARE(facts.firstSession, morning);
    QCOMPARE(facts.bytes, QFileInfo(target).size());
    const auto live = std::get<StoreFacts>(readStoreFacts(store.file(), CountIntervals::no));
    QCOMPARE(live.tasks, 1 + steps);
    QCOMPARE(live.intervals, 1);
    // Reading made no companions either.
    QCOMPARE(names(store.folder() + QStringLiteral("/sub")), QStringList{QStringLiteral("copy.sqlite")});
}

void StoreBackupTest::aCopyThatFailsLeavesNothingBehind() {
    const StoreFixture store;
    fill(store, QStringLiteral("Task"));
    const QString target = store.folder() + QStringLiteral("/copies/copy.sqlite");
    write(target, "older copy");

    const QString damaged = store.folder() + QStringLiteral("/damaged.sqlite");
    QVERIFY(QFile::copy(store.file(), damaged));
    {
        QFile file(damaged);
        QVERIFY(file.open(QIODevice::ReadWrite));
        file.seek(file.size() - 3000);
        file.write(QByteArray(2000, '\x55'));
    }
    const QString foreign = store.folder() + QStringLiteral("/foreign.sqlite");
    SQLite::Database(foreign.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
        .exec("CREATE TABLE Mine(a)");
    const QString loose = store.folder() + QStringLiteral("/loose.sqlite");
    QVERIFY(QFile::copy(store.file(), loose));
    SQLite::Database(loose.toStdString(), SQLite::OPEN_READWRITE)
        .exec("UPDATE TaskItem SET project = randomblob(16)");

    QVERIFY(copyStoreFile(store.file(), target, [](int) { return false; }));
    for (const QString& source : {damaged, foreign, loose, store.folder() + QStringLiteral("/missing")})
        QVERIFY2(copyStoreFile(source, target), qPrintable(source));
    QFile kept(target);
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), QByteArray("older copy"));
    QCOMPARE(names(store.folder() + QStringLiteral("/copies")), QStringList{QStringLiteral("copy.sqlite")});
    QVERIFY(copyStoreFile(store.file(), target + QStringLiteral("/below a file")));
}

void StoreBackupTest::oldBackupsGoAndTheLastOnesStay() {
    const StoreFixture store;
    fill(store, QStringLiteral("Task"));
    const BackupFolder folder(store.file());
    const QDateTime now(QDate(2025, 3, 30), QTime(9, 0));
    const auto backUp = [&](BackupKind kind, int daysAgo) {
        const QString file = folder.fileFor(kind, now.addDays(-daysAgo));
        QVERIFY(!copyStoreFile(store.file(), file));
    };
    const auto ages = [&] {
        QList<int> days;
        for (const BackupFile& file : folder.files())
            days.append(static_cast<int>(file.made.daysTo(now)));
        return days;
    };
    for (const int days : {400, 30, 20})
        backUp(BackupKind::daily, days);
    write(folder.path() + QStringLiteral("/2020-01-01-090000-daily.sqlite"), "no store at all");
    write(folder.path() + QStringLiteral("/my own.sqlite"), "not ours");
    write(folder.path() + QStringLiteral("/.2020-01-01-090000-daily.sqlite.part"), "unfinished");

    // Three that can be opened stay however old they are.
    folder.prune(now.date());
    QCOMPARE(ages(), (QList<int>{20, 30, 400}));
    QVERIFY(!folder.hasDaily(now.date()));

    for (const int days : {14, 13, 1, 0})
        backUp(BackupKind::daily, days);
    backUp(BackupKind::manual, 500);
    backUp(BackupKind::beforeRestore, 15);
    QVERIFY(folder.hasDaily(now.date()));
    QCOMPARE(folder.files().size(), 9);
    folder.prune(now.date());
    QCOMPARE(ages(), (QList<int>{0, 1, 13, 500}));
    folder.clear();
    QCOMPARE(names(folder.path()), QStringList{QStringLiteral("my own.sqlite")});
}

void StoreBackupTest::aBackupTakesThePlaceOfTheStore() {
    const StoreFixture store;
    fill(store, QStringLiteral("Old"));
    const QString backup = store.folder() + QStringLiteral("/backup.sqlite");
    QVERIFY(!copyStoreFile(store.file(), backup));
    {
        // The newest changes are in the log when the power fails.
        SQLite::Database raw = store.raw();
        raw.exec("PRAGMA wal_autocheckpoint = 0; UPDATE TaskItem SET title = 'New'");
        QVERIFY(!prepareRestore(store.file(), backup));
        QVERIFY(QFile::copy(store.file(), store.file() + QStringLiteral(".kept")));
        QVERIFY(QFile::copy(store.file() + QStringLiteral("-wal"), store.folder() + QStringLiteral("/wal")));
    }
    QFile::remove(store.file());
    QVERIFY(QFile::rename(store.file() + QStringLiteral(".kept"), store.file()));
    QVERIFY(QFile::rename(store.folder() + QStringLiteral("/wal"), store.file() + QStringLiteral("-wal")));

    auto opened = store.open();
    QCOMPARE(opened->opening().replacement.kind, ReplacementOutcome::Kind::restored);
    QVERIFY(opened->opening().replacement.isFormerKept);
    QCOMPARE(opened->opening().replacement.damagedFile, QString());
    QCOMPARE(titles(*opened), QStringList{QStringLiteral("Old")});
    opened.reset();
    QCOMPARE(store.soundness(), QStringLiteral("ok"));
    const QList<BackupFile> kept = BackupFolder(store.file()).files();
    QCOMPARE(kept.size(), 1);
    QCOMPARE(kept.constFirst().kind, BackupKind::beforeRestore);

    // And back again.
    QVERIFY(!prepareRestore(store.file(), kept.constFirst().path));
    opened = store.open();
    QCOMPARE(titles(*opened), QStringList{QStringLiteral("New")});
    opened = nullptr;
    opened = store.open();
    QCOMPARE(opened->opening().replacement.kind, ReplacementOutcome::Kind::none);
    QCOMPARE(opened->opening().lossReason, QString());
}

void StoreBackupTest::aStoreInUseStays() {
    const LogCapture log;
    const StoreFixture store;
    fill(store, QStringLiteral("Old"));
    const QString backup = store.folder() + QStringLiteral("/backup.sqlite");
    QVERIFY(!copyStoreFile(store.file(), backup));
    QVERIFY(!prepareRestore(store.file(), backup));
    {
        SQLite::Database raw = store.raw();
        raw.exec("UPDATE TaskItem SET title = 'New'");
        QCOMPARE(carryOutReplacement(store.file()).kind, ReplacementOutcome::Kind::refused);
    }
    auto opened = store.open();
    QCOMPARE(titles(*opened), QStringList{QStringLiteral("New")});
    opened.reset();

    // What was laid beside the store is looked at once more.
    write(store.folder() + QStringLiteral("/NorvinFocus.restore"), "no store at all");
    opened = store.open();
    QCOMPARE(opened->opening().replacement.kind, ReplacementOutcome::Kind::refused);
    QVERIFY(!opened->opening().replacement.problem.isEmpty());
    QCOMPARE(titles(*opened), QStringList{QStringLiteral("New")});
    QVERIFY(!names(store.folder()).contains(QStringLiteral("NorvinFocus.restore")));
    QCOMPARE(log.lines().size(), 2);
}

void StoreBackupTest::aDamagedStoreIsPutAside() {
    const LogCapture log;
    const StoreFixture store;
    fill(store, QStringLiteral("Old"));
    const QString backup = store.folder() + QStringLiteral("/backup.sqlite");
    QVERIFY(!copyStoreFile(store.file(), backup));
    QVERIFY(!prepareRestore(store.file(), backup));
    write(store.file(), QByteArray(5000, 'x'));
    auto opened = store.open();
    QCOMPARE(opened->opening().replacement.kind, ReplacementOutcome::Kind::restored);
    QCOMPARE(titles(*opened), QStringList{QStringLiteral("Old")});
    const QString damaged = store.folder() + QStringLiteral("/NorvinFocus.damaged");
    QCOMPARE(opened->opening().replacement.damagedFile, damaged);
    QCOMPARE(QFileInfo(damaged).size(), 5000);

    // Without a backup to take its place, it is made anew, and that is said.
    opened.reset();
    write(store.file(), QByteArray(5000, 'x'));
    opened = store.open();
    QCOMPARE(titles(*opened), QStringList());
    QVERIFY(!opened->opening().lossReason.isEmpty());
}

void StoreBackupTest::erasingTakesWhatItSays() {
    const StoreFixture store;
    const BackupFolder folder(store.file());
    fill(store, QStringLiteral("Old"));
    QVERIFY(!copyStoreFile(store.file(), folder.fileFor(BackupKind::manual, morning)));
    QVERIFY(!prepareErase(store.file(), ErasedBackups::kept));
    auto opened = store.open();
    QCOMPARE(opened->opening().replacement.kind, ReplacementOutcome::Kind::erased);
    QCOMPARE(titles(*opened), QStringList());
    QCOMPARE(folder.files().size(), 1);
    opened.reset();

    QVERIFY(!prepareRestore(store.file(), folder.files().constFirst().path));
    write(store.folder() + QStringLiteral("/.NorvinFocus.restore.part"), "what a stopped restore has left");
    QVERIFY(!prepareErase(store.file(), ErasedBackups::removed));
    opened = store.open();
    QCOMPARE(titles(*opened), QStringList());
    QCOMPARE(folder.files().size(), 0);
    opened.reset();
    QCOMPARE(names(store.folder()), QStringList{QStringLiteral("NorvinFocus.sqlite")});
    opened.reset();
    opened = store.open();
    QCOMPARE(opened->opening().replacement.kind, ReplacementOutcome::Kind::none);
}

QTEST_GUILESS_MAIN(StoreBackupTest)
#include "tst_StoreBackup.moc"
