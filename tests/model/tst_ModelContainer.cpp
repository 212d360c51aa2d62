#include "tests/model/StoreFixture.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <sched.h>

using namespace norvin;
using namespace norvin::test;
using namespace std::chrono_literals;

namespace {

const QString resetLine =
    QStringLiteral("⚠️ SwiftData: Schema mismatch or corruption — resetting database. Error: ");

void writeFile(const QString& path, const QByteArray& content) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A store with so many tasks that their table has inner pages.
void fill(const StoreFixture& store, int tasks) {
    const auto opened = store.open();
    for (int i = 0; i < tasks; ++i) {
        opened->mainContext().insert(
            std::make_unique<TaskItem>(TaskItem::Init{.title = QStringLiteral("task %1").arg(i)}));
    }
    QVERIFY(!opened->mainContext().save());
}

// What a test does to a store file with one task before it is opened again.
using Damage = void (*)(const StoreFixture&);

} // namespace

Q_DECLARE_METATYPE(Damage)

class ModelContainerTest final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void aNewStoreIsMadeAndOpensAgain() {
        const StoreFixture store;
        const LogCapture log;
        fill(store, 1);
        QCOMPARE(store.value("PRAGMA user_version"), QStringLiteral("10000"));
        QCOMPARE(store.value("PRAGMA journal_mode"), QStringLiteral("wal"));
        QCOMPARE(store.open()->mainContext().tasks().size(), size_t{1});
        QVERIFY(!QFile::exists(store.file() + "-wal"));
        QVERIFY(log.lines().isEmpty());
    }

    void theStoreLiesInTheDataDirectory() {
        const StoreFixture store;
        qputenv("XDG_DATA_HOME", QFile::encodeName(store.folder() + "/not/there/yet"));
        QCOMPARE(ModelContainer::defaultStoreFile(), store.folder() + "/not/there/yet/NorvinFocus.sqlite");
        QVERIFY(QFileInfo(store.folder() + "/not/there/yet").isDir());
        qunsetenv("XDG_DATA_HOME");
    }

    void aStoreThatCannotBeOpenedIsMadeAnew_data() {
        QTest::addColumn<Damage>("damage");
        static const auto run = [](const StoreFixture& store, const char* statement) {
            store.raw().exec(statement);
        };
        QTest::newRow("newer schema")
            << Damage{[](const StoreFixture& s) { run(s, "PRAGMA user_version = 10100"); }};
        QTest::newRow("older schema")
            << Damage{[](const StoreFixture& s) { run(s, "PRAGMA user_version = 1"); }};
        QTest::newRow("column too many")
            << Damage{[](const StoreFixture& s) { run(s, "ALTER TABLE Project ADD COLUMN mine TEXT"); }};
        QTest::newRow("index missing")
            << Damage{[](const StoreFixture& s) { run(s, "DROP INDEX Session_task"); }};
        QTest::newRow("somebody else's file") << Damage{[](const StoreFixture& s) {
            QFile::remove(s.file());
            SQLite::Database(s.file().toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
                .exec("CREATE TABLE TaskItem(a)");
        }};
        QTest::newRow("truncated") << Damage{
            [](const StoreFixture& s) { QVERIFY(QFile::resize(s.file(), 9000)); }};
        QTest::newRow("short") << Damage{[](const StoreFixture& s) { QVERIFY(QFile::resize(s.file(), 50)); }};
        QTest::newRow("random bytes") << Damage{[](const StoreFixture& s) {
            writeFile(s.file(), QByteArray::fromHex("00ff13378badf00d").repeated(4096));
        }};
        QTest::newRow("page of the task table") << Damage{[](const StoreFixture& s) {
            const int page = s.value("SELECT rootpage FROM sqlite_schema WHERE name = 'TaskItem'").toInt();
            QFile file(s.file());
            QVERIFY(file.open(QIODevice::ReadWrite) && file.seek((page - 1) * 4096));
            file.write(QByteArray(4096, '\x5a'));
        }};
    }
    void aStoreThatCannotBeOpenedIsMadeAnew() {
        QFETCH(Damage, damage);
        const StoreFixture store;
        fill(store, 300);
        damage(store);
        writeFile(store.folder() + "/NorvinFocus.sqlite-wal", "stale");
        const LogCapture log;
        const auto opened = store.open();
        QVERIFY(opened);
        QVERIFY(opened->mainContext().tasks().empty());
        QCOMPARE(log.lines().size(), 1);
        QVERIFY(log.lines().constFirst().startsWith(resetLine));
        QVERIFY(log.lines().constFirst().size() > resetLine.size());
        QCOMPARE(store.soundness(), QStringLiteral("ok"));
    }

    void aBlankFileIsAFreshStore() {
        const StoreFixture store;
        const LogCapture log;
        writeFile(store.file(), {});
        QVERIFY(store.open());
        QVERIFY(QFile::remove(store.file()));
        // What a crash leaves between making the file and making its tables.
        SQLite::Database(store.file().toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
            .exec("PRAGMA journal_mode = WAL");
        QVERIFY(store.open());
        QVERIFY(log.lines().isEmpty());
    }

    void valuesOfAnotherVersionOrHandAreKept() {
        const StoreFixture store;
        fill(store, 1);
        store.raw().exec("UPDATE TaskItem SET statusValue = 'Later', priorityValue = 17;"
                         "CREATE TABLE Mine(a); CREATE VIEW MyTasks AS SELECT title FROM TaskItem; VACUUM");
        const LogCapture log;
        {
            const auto opened = store.open();
            TaskItem* const task = opened->mainContext().tasks().front();
            QVERIFY(task->status() == TaskStatus::todo);
            QVERIFY(!task->priority());
            task->setTitle(QStringLiteral("renamed"));
        }
        QCOMPARE(store.value("SELECT statusValue || priorityValue || title FROM TaskItem"),
                 QStringLiteral("Later17renamed"));
        QVERIFY(log.lines().isEmpty());
    }

    void looseReferencesAndRingsOfParentsAreReadAsNone() {
        const StoreFixture store;
        fill(store, 3);
        store.raw().exec("UPDATE TaskItem SET project = randomblob(16), phase = randomblob(16);"
                         "UPDATE TaskItem SET parentTask = (SELECT id FROM TaskItem WHERE title = 'task 1') "
                         "WHERE title IN ('task 0', 'task 2');"
                         "UPDATE TaskItem SET parentTask = (SELECT id FROM TaskItem WHERE title = 'task 2') "
                         "WHERE title = 'task 1'");
        const LogCapture log;
        const auto opened = store.open();
        ModelContext& context = opened->mainContext();
        QCOMPARE(context.tasks().size(), size_t{3});
        QCOMPARE(log.lines().size(), 1);
        QCOMPARE(context.fetchTasks([](const TaskItem& task) { return task.parentTask() == nullptr; }).size(),
                 size_t{1});
        for (TaskItem* task : context.tasks()) {
            QCOMPARE(task->project(), nullptr);
            task->setTitle(QStringLiteral("mended"));
        }
        QVERIFY(!context.save());
        QCOMPARE(store.soundness(), QStringLiteral("ok"));
    }

    void aFolderInThePlaceOfTheStoreIsAnError() {
        const StoreFixture store;
        QVERIFY(QDir().mkpath(store.file() + "/inside"));
        const LogCapture log;
        const Opened opened = ModelContainer::openOrRecreate(store.file());
        QVERIFY(std::holds_alternative<StoreError>(opened));
        QVERIFY(!std::get<StoreError>(opened).description.isEmpty());
        QCOMPARE(log.lines().size(), 1);
        QVERIFY(QFileInfo(store.file() + "/inside").isDir());
    }

    void aLockIsWaitedFor_data() {
        QTest::addColumn<QByteArray>("lock");
        QTest::addColumn<bool>("fresh");
        QTest::newRow("store in use")
            << QByteArray("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE") << false;
        // Here the library reports the lock at once, whatever it was told about waiting.
        QTest::newRow("store being made") << QByteArray("BEGIN IMMEDIATE") << true;
    }
    void aLockIsWaitedFor() {
        QFETCH(QByteArray, lock);
        QFETCH(bool, fresh);
        const StoreFixture store;
        if (fresh)
            writeFile(store.file(), {});
        else
            fill(store, 1);
        const LogCapture log;
        auto holder = std::make_unique<SQLite::Database>(store.raw());
        holder->exec(lock.constData());
        QThread thread;
        QTimer release;
        release.setSingleShot(true);
        release.setInterval(300);
        release.moveToThread(&thread);
        connect(&thread, &QThread::started, &release, qOverload<>(&QTimer::start));
        connect(&release, &QTimer::timeout, &release, [&holder] { holder.reset(); });
        thread.start();
        const auto opened = store.open();
        thread.quit();
        thread.wait();
        QVERIFY(opened);
        QCOMPARE(opened->mainContext().tasks().empty(), fresh);
        QVERIFY(log.lines().isEmpty());
    }

    void aLockThatStaysCostsNothing() {
        const StoreFixture store;
        fill(store, 1);
        const LogCapture log;
        {
            SQLite::Database holder = store.raw();
            holder.exec("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE");
            const Opened opened = ModelContainer::openOrRecreate(store.file(), 200ms);
            QVERIFY(std::holds_alternative<StoreError>(opened));
            QCOMPARE(std::get<StoreError>(opened).code, 5);
        }
        QVERIFY(log.lines().isEmpty());
        QCOMPARE(store.open()->mainContext().tasks().size(), size_t{1});
    }

    void aWriterDoesNotKeepTheStoreShut() {
        const StoreFixture store;
        fill(store, 1);
        SQLite::Database writer = store.raw();
        writer.exec("BEGIN IMMEDIATE");
        QVERIFY(store.open());
    }

    void whatAKilledProcessWroteIsThere() {
        const StoreFixture store;
        const StoreFixture afterwards;
        const auto opened = store.open();
        opened->mainContext().insert(std::make_unique<TaskItem>(TaskItem::Init{.title = "written"}));
        QVERIFY(!opened->mainContext().save());
        for (const auto* suffix : {"", "-wal"})
            writeFile(afterwards.file() + suffix, contentOf(store.file() + suffix));
        QCOMPARE(afterwards.open()->mainContext().tasks().front()->title(), QStringLiteral("written"));
    }

    void aStoreThatMayNotBeWrittenCannotBeOpened_data() {
        QTest::addColumn<int>("folderMode");
        QTest::addColumn<int>("fileMode");
        QTest::addColumn<int>("tasks");
        constexpr int noContainer = -1;
        QTest::newRow("nor its folder") << 0555 << 0644 << noContainer;
        QTest::newRow("file alone") << 0777 << 0444 << 0;
        QTest::newRow("both may be written") << 0777 << 0666 << 5;
    }
    void aStoreThatMayNotBeWrittenCannotBeOpened() {
        if (::geteuid() != 0)
            QSKIP("Only root can become a user without rights to the folder");
        QFETCH(int, folderMode);
        QFETCH(int, fileMode);
        const StoreFixture store;
        fill(store, 5);
        const QByteArray before = contentOf(store.file());
        QVERIFY(::chmod(QFile::encodeName(store.folder()).constData(), static_cast<mode_t>(folderMode)) == 0);
        QVERIFY(::chmod(QFile::encodeName(store.file()).constData(), static_cast<mode_t>(fileMode)) == 0);
        const pid_t child = ::fork();
        if (child == 0) {
            if (::setgid(65534) != 0 || ::setuid(65534) != 0)
                ::_exit(99);
            setLogSink([](const QString&) {});
            const auto opened = container(ModelContainer::openOrRecreate(store.file(), 200ms));
            ::_exit(opened ? static_cast<int>(opened->mainContext().tasks().size()) : 255);
        }
        int status = -1;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY(WIFEXITED(status));
        QTEST(static_cast<int>(static_cast<qint8>(WEXITSTATUS(status))), "tasks");
        if (folderMode == 0555)
            QCOMPARE(contentOf(store.file()), before);
    }

    void aFullDiskCostsNothing_data() {
        QTest::addColumn<bool>("withLog");
        QTest::addColumn<bool>("isOfEarlierVersion");
        QTest::newRow("closed in order") << false << false;
        QTest::newRow("killed") << true << false;
        QTest::newRow("with an index of before") << false << true;
    }
    void aFullDiskCostsNothing() {
        QFETCH(bool, withLog);
        QFETCH(bool, isOfEarlierVersion);
        const StoreFixture source;
        const StoreFixture full;
        if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount("none", QFile::encodeName(full.folder()).constData(), "tmpfs", 0, "size=1m") != 0)
            QSKIP(qPrintable(QStringLiteral("A small file system cannot be mounted: ") +
                             QString::fromLocal8Bit(std::strerror(errno))));
        const auto unmount =
            qScopeGuard([&full] { ::umount2(QFile::encodeName(full.folder()).constData(), MNT_DETACH); });
        fill(source, 20);
        {
            const auto open = source.open();
            open->mainContext().tasks().front()->setTitle(QStringLiteral("changed"));
            if (withLog)
                QVERIFY(!open->mainContext().save());
            for (const auto* suffix : {"", "-wal"})
                writeFile(full.file() + suffix, contentOf(source.file() + suffix));
        }
        if (isOfEarlierVersion) {
            SQLite::Database shell = full.raw();
            shell.exec("DROP INDEX AppUsageSession_startTime");
            shell.exec("CREATE INDEX AppUsageSession_startTime ON AppUsageSession(startTime)");
        }
        const QString ballast = full.folder() + "/ballast";
        {
            QFile file(ballast);
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
            while (file.write(QByteArray(4096, 'x')) == 4096) {
            }
        }
        const LogCapture log;
        {
            const auto opened = full.open();
            QVERIFY(opened);
            QVERIFY(log.lines().isEmpty());
            ModelContext& context = opened->mainContext();
            QCOMPARE(context.tasks().size(), size_t{20});
            QCOMPARE(context.tasks().front()->title() == QLatin1String("changed"), withLog);

            for (int i = 0; i < 20; ++i)
                context.tasks()[static_cast<size_t>(i)]->setTaskDescription(QString(4000, u'x'));
            AppUsageSession usage;
            usage.bundleID = QStringLiteral("org.example.a");
            context.insert(usage);
            const StoreResult failure = context.save();
            QVERIFY(failure);
            QVERIFY(context.hasChanges());
            QVERIFY(QFile::remove(ballast));
            QVERIFY(!context.save());
        }
        QCOMPARE(full.soundness(), QStringLiteral("ok"));
        QCOMPARE(full.value("SELECT min(length(taskDescription)) FROM TaskItem"), QStringLiteral("4000"));
        QCOMPARE(full.value("SELECT bundleID FROM AppUsageLog"), QStringLiteral("org.example.a"));
    }
};

QTEST_GUILESS_MAIN(ModelContainerTest)
#include "tst_ModelContainer.moc"
