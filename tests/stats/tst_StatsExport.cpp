#include "stats/HistoryStatsView.h"
#include "stats/StatsExport.h"
#include "stats/StatsRecords.h"
#include "stats/TodayStatsView.h"
#include "stats/export/StatsPages.h"
#include "tests/model/StoreFixture.h"
#include "tests/support/FocusRig.h"
#include "tests/support/PlausibleUser.h"

#include <QBuffer>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

#include <sys/resource.h>

#include <csignal>

using namespace norvin;
using namespace norvin::test;

/// Files of the statistics, read back by other means.
class StatsExportTest final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCoreApplication::installTranslator(&m_texts); }
    void tablesHoldAnyTextAndEveryHour();
    void jsonGivesBackTheStore();
    void writesWhatIsNotSavedYet();
    void aFailureLeavesWhatWasThere();
    void stopsWhenItIsTold();
    void picturesAndDocuments();
    void documentsGoOnOverPages();

private:
    /// Each text is its key, with all that belongs into it.
    class Keys final : public QTranslator {
        [[nodiscard]] bool isEmpty() const override { return false; }
        [[nodiscard]] QString translate(const char*, const char* key, const char*, int) const override {
            return QLatin1String(key) + QStringLiteral(" %1 %2");
        }
    };
    Keys m_texts;
};

namespace {

const QTimeZone paris("Europe/Paris");

struct Rig {
    explicit Rig(const QDateTime& now = QDateTime(QDate(2025, 3, 30), QTime(12, 0), paris))
        : container(store.open()) {
        focus.clock.setNow(now);
        history.setPeriod(QStringLiteral("all"));
        writer = std::make_unique<StatsExport>(
            context(), store.file(), focus.clock,
            StatsExport::Page{
                .today = today, .history = history, .showsToday = [this] { return showsToday; }});
    }
    [[nodiscard]] ModelContext& context() const { return container->mainContext(); }
    [[nodiscard]] QString path(const char* name) const { return files.filePath(QLatin1String(name)); }

    /// What the export says at its end.
    QString write(StatsExport::Kind kind, const QString& to) {
        writer->write(kind, QUrl::fromLocalFile(to));
        return outcome();
    }
    [[nodiscard]] QString outcome() const {
        QSignalSpy spy(writer.get(), &StatsExport::busyChanged);
        while (writer->isBusy() && spy.wait()) {
        }
        return writer->isBusy() ? QStringLiteral("still busy") : writer->noticeText();
    }
    [[nodiscard]] static QByteArray content(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }
    void live(int days) const {
        const QDate last = focus.clock.now().date();
        PlausibleUser user(
            3, paris,
            {.sessionsADay = 4, .intervals = 6, .applications = 12, .unscored = 20, .atOddHours = 10});
        user.live(
            last.addDays(-days), last, [this](const Session& session) { context().insert(session); },
            [this](const AppUsageSession& usage) { context().insert(usage); });
    }

    FocusRig focus;
    StoreFixture store;
    QTemporaryDir files;
    std::unique_ptr<ModelContainer> container;
    bool showsToday = false;
    StatsRecords records{context(), store.file(), focus.clock};
    TodayStatsView today{records, focus.timer, context()};
    HistoryStatsView history{records, focus.timer, context()};
    std::unique_ptr<StatsExport> writer;
};

/// Lines of fields, by the rules of RFC 4180 and nothing else.
QList<QByteArrayList> parsedCsv(const QByteArray& bytes) {
    QList<QByteArrayList> lines{{QByteArray()}};
    bool isQuoted = false;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const char c = bytes.at(i);
        QByteArray& field = lines.last().last();
        if (isQuoted && c == '"' && i + 1 < bytes.size() && bytes.at(i + 1) == '"')
            field += bytes.at(++i);
        else if (c == '"')
            isQuoted = !isQuoted;
        else if (!isQuoted && c == ',')
            lines.last().append(QByteArray());
        else if (!isQuoted && c == '\r' && i + 1 < bytes.size() && bytes.at(i + 1) == '\n') {
            lines.append(QByteArrayList{QByteArray()});
            ++i;
        } else
            field += c;
    }
    lines.removeLast(); // behind the last line end
    return lines;
}

QString utcText(const QDateTime& time) {
    return time.toUTC().toString(Qt::ISODateWithMs);
}

/// Keeps this process from making a file larger than this.
class FileSizeLimit final {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before{};
};

} // namespace

void StatsExportTest::tablesHoldAnyTextAndEveryHour() {
    Rig rig;
    Project* const project = rig.context().insert(
        std::make_unique<Project>(Project::Init{.name = QStringLiteral("Thèse; \"erste\" Fassung")}));
    const QString title = QStringLiteral("Write \"it\", now\nand\r\nthen = 1");
    const TaskItem* const task = addTask(rig.context(), title, project);
    // The last second before an hour that is left out, the first after it; an hour that comes twice.
    const QList<std::pair<QDateTime, QByteArray>> starts{
        {QDateTime(QDate(1950, 7, 1), QTime(0, 0), Qt::UTC), "1950-07-01T01:00:00.000+01:00"},
        {QDateTime(QDate(2024, 10, 27), QTime(0, 30), Qt::UTC), "2024-10-27T02:30:00.000+02:00"},
        {QDateTime(QDate(2024, 10, 27), QTime(1, 30), Qt::UTC), "2024-10-27T02:30:00.000+01:00"},
        {QDateTime(QDate(2025, 3, 30), QTime(0, 59, 59, 999), Qt::UTC), "2025-03-30T01:59:59.999+01:00"},
        {QDateTime(QDate(2025, 3, 30), QTime(1, 0), Qt::UTC), "2025-03-30T03:00:00.000+02:00"}};
    for (const auto& [start, local] : starts) {
        Session session = sessionOf(task, start);
        session.score = 7.1;
        session.completed = true;
        rig.context().insert(session);
        AppUsageSession usage;
        usage.bundleID = QStringLiteral("a,b");
        usage.appName = QStringLiteral("\"");
        usage.startTime = start;
        usage.endTime = start.addSecs(1);
        rig.context().insert(usage);
    }
    rig.context().insert(sessionOf(nullptr, starts.last().first.addSecs(1)));

    QCOMPARE(rig.write(StatsExport::Sessions, rig.path("s.csv")).isEmpty(), false);
    const QByteArray bytes = Rig::content(rig.path("s.csv"));
    QVERIFY(bytes.startsWith("id,startUtc,startLocal,minutes,completed,taskId,task,projectId,project,score,"
                             "interruptions,blockedApplications,blockedSites,legitimateSeconds,"
                             "distractedSeconds\r\n"));
    const QList<QByteArrayList> lines = parsedCsv(bytes);
    QCOMPARE(lines.size(), starts.size() + 2);
    for (qsizetype i = 0; i < starts.size(); ++i) {
        const QByteArrayList& line = lines.at(i + 1);
        QCOMPARE(line.size(), 15);
        QCOMPARE(QString::fromLatin1(line.at(1)), utcText(starts.at(i).first));
        QCOMPARE(line.at(2), starts.at(i).second);
        QCOMPARE(line.at(4), "true");
        QCOMPARE(QString::fromUtf8(line.at(6)), title);
        QCOMPARE(QString::fromUtf8(line.at(8)), project->name());
        QCOMPARE(line.at(9), "7.1");
    }
    QCOMPARE(lines.last().mid(4, 6), (QByteArrayList{"false", "", "", "", "", ""}));

    rig.write(StatsExport::Usage, rig.path("u.csv"));
    const QList<QByteArrayList> usage = parsedCsv(Rig::content(rig.path("u.csv")));
    QCOMPARE(usage.size(), starts.size() + 1);
    QCOMPARE(usage.at(4).mid(1), (QByteArrayList{"a,b", "\"", "", "0", "2025-03-30T00:59:59.999Z",
                                                 "2025-03-30T01:59:59.999+01:00", "2025-03-30T01:00:00.999Z",
                                                 "2025-03-30T03:00:00.999+02:00"}));
}

void StatsExportTest::jsonGivesBackTheStore() {
    Rig rig;
    rig.live(60);
    rig.history.setPeriod(QStringLiteral("month"));
    QVERIFY(!rig.write(StatsExport::Json, rig.path("all.json")).isEmpty());
    QVERIFY2(!rig.writer->isNoticeProblem(), qPrintable(rig.writer->noticeText()));

    QJsonParseError fault;
    const QJsonObject file = QJsonDocument::fromJson(Rig::content(rig.path("all.json")), &fault).object();
    QCOMPARE(fault.error, QJsonParseError::NoError);
    const QDateTime from(QDate(2025, 2, 28), QTime(0, 0), paris);
    QCOMPARE(file[QStringLiteral("from")].toString(), utcText(from));
    QVERIFY(file[QStringLiteral("to")].isNull());
    const QList<Session> sessions = rig.context().fetchSessions({.from = from});
    QVERIFY(sessions.size() > 20 && sessions.size() < rig.context().fetchSessions().size());
    QJsonArray expected;
    for (const Session& session : sessions) {
        expected.append(QJsonObject{
            {QStringLiteral("id"), session.id.toString()},
            {QStringLiteral("startUtc"), utcText(session.startTime)},
            {QStringLiteral("startLocal"), session.startTime.toTimeZone(paris)
                                               .toOffsetFromUtc(paris.offsetFromUtc(session.startTime))
                                               .toString(Qt::ISODateWithMs)},
            {QStringLiteral("minutes"), session.durationMinutes},
            {QStringLiteral("completed"), session.completed},
            {QStringLiteral("taskId"), QJsonValue()},
            {QStringLiteral("task"), QJsonValue()},
            {QStringLiteral("projectId"), QJsonValue()},
            {QStringLiteral("project"), QJsonValue()},
            {QStringLiteral("score"), session.score ? QJsonValue(*session.score) : QJsonValue()},
            {QStringLiteral("interruptions"), session.interruptionCount},
            {QStringLiteral("blockedApplications"), session.blockedAttemptsCount},
            {QStringLiteral("blockedSites"), session.blockedSiteAttemptsCount},
            {QStringLiteral("legitimateSeconds"), session.legitimateTimeSeconds},
            {QStringLiteral("distractedSeconds"), session.distractedTimeSeconds}});
    }
    QCOMPARE(file[QStringLiteral("sessions")].toArray(), expected);
    const QList<AppUsageSession> usage = rig.context().fetchAppUsage({.from = from});
    const QJsonArray intervals = file[QStringLiteral("usage")].toArray();
    QCOMPARE(intervals.size(), usage.size());
    for (qsizetype i = 0; i < usage.size(); ++i) {
        const QJsonObject interval = intervals.at(i).toObject();
        QCOMPARE(interval[QStringLiteral("id")].toString(), usage.at(i).id.toString());
        QCOMPARE(interval[QStringLiteral("bundleId")].toString(), usage.at(i).bundleID);
        QCOMPARE(interval[QStringLiteral("application")].toString(), usage.at(i).appName);
        QCOMPARE(interval[QStringLiteral("category")].toString(), usage.at(i).category);
        QCOMPARE(interval[QStringLiteral("seconds")].toInt(), usage.at(i).durationSeconds);
        QCOMPARE(interval[QStringLiteral("endUtc")].toString(), utcText(usage.at(i).endTime));
    }
}

void StatsExportTest::writesWhatIsNotSavedYet() {
    Rig rig;
    const QDateTime now = rig.focus.clock.now();
    for (const qint64 days : {-1, 0, 1})
        rig.context().insert(sessionOf(nullptr, now.addDays(days)));
    QVERIFY(rig.context().hasChanges());
    const auto lines = [&rig] {
        rig.write(StatsExport::Sessions, rig.path("s.csv"));
        return parsedCsv(Rig::content(rig.path("s.csv"))).size() - 1;
    };
    QCOMPARE(lines(), 3);
    // A period of the past has no end; the page of today has one.
    rig.history.setPeriod(QStringLiteral("today"));
    QCOMPARE(lines(), 2);
    rig.showsToday = true;
    QCOMPARE(lines(), 1);
    QCOMPARE(rig.writer->proposedName(StatsExport::Usage),
             QStringLiteral("norvin-focus-usage-2025-03-30.csv"));

    // Somebody else has the store for himself: what the file would lack is not passed over.
    SQLite::Database other = rig.store.raw();
    other.exec("BEGIN EXCLUSIVE");
    const LogCapture log;
    rig.context().insert(sessionOf(nullptr, now));
    const QByteArray before = Rig::content(rig.path("s.csv"));
    rig.write(StatsExport::Sessions, rig.path("s.csv"));
    QVERIFY(rig.writer->isNoticeProblem());
    QCOMPARE(Rig::content(rig.path("s.csv")), before);
    other.exec("ROLLBACK");
    QCOMPARE(lines(), 2);

    // Without a file, the context is asked.
    FocusRig focus;
    focus.context().insert(sessionOf(nullptr, focus.clock.now()));
    StatsRecords records(focus.context(), {}, focus.clock);
    const TodayStatsView today(records, focus.timer, focus.context());
    const HistoryStatsView history(records, focus.timer, focus.context());
    rig.writer = std::make_unique<StatsExport>(
        focus.context(), QString(), focus.clock,
        StatsExport::Page{.today = today, .history = history, .showsToday = [] { return true; }});
    QCOMPARE(lines(), 1);
}

void StatsExportTest::aFailureLeavesWhatWasThere() {
    Rig rig;
    rig.live(200);
    QFile old(rig.path("old.json"));
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    old.close();
    const auto fails = [&rig](StatsExport::Kind kind, const QString& path) {
        const QString notice = rig.write(kind, path);
        return rig.writer->isNoticeProblem() && !notice.isEmpty();
    };
    QVERIFY(!rig.context().save());
    {
        const FileSizeLimit limit(64 * 1024);
        QVERIFY(fails(StatsExport::Json, old.fileName()));
        QVERIFY(fails(StatsExport::Usage, old.fileName()));
    }
    {
        // Small enough to be noticed no sooner than at the end.
        const FileSizeLimit limit(2);
        rig.history.setPeriod(QStringLiteral("today"));
        QVERIFY(fails(StatsExport::Sessions, old.fileName()));
        QVERIFY(fails(StatsExport::Document, old.fileName()));
    }
    QCOMPARE(Rig::content(old.fileName()), "old");
    QCOMPARE(QDir(rig.files.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"old.json"});
    QVERIFY(fails(StatsExport::Json, rig.path("missing/all.json")));
    QVERIFY(fails(StatsExport::Json, rig.files.path()));
    QVERIFY(QDir(rig.files.path()).exists());
    QVERIFY(!rig.write(StatsExport::Json, old.fileName()).isEmpty());
    QVERIFY(!rig.writer->isNoticeProblem());
    QVERIFY(Rig::content(old.fileName()).startsWith("{"));
}

void StatsExportTest::stopsWhenItIsTold() {
    Rig rig;
    rig.live(200);
    QVERIFY(!rig.context().save());
    RecordExport wanted;
    wanted.file = rig.path("all.json");
    wanted.now = Instant(rig.focus.clock.now());
    wanted.zone = paris;
    wanted.storeFile = rig.store.file();
    ExportControl control;
    int reached = 0;
    control.showProgress = [&](int percent) {
        reached = percent;
        control.isCancelled = percent >= 50;
    };
    QVERIFY(std::holds_alternative<ExportCancelled>(writeRecords(wanted, control)));
    QVERIFY(reached >= 50 && reached < 60);
    QVERIFY(QDir(rig.files.path()).isEmpty());

    // The program ends meanwhile: what is there, if anything, is whole.
    rig.writer->write(StatsExport::Json, QUrl::fromLocalFile(wanted.file));
    QVERIFY(rig.writer->isBusy());
    rig.writer.reset();
    const QStringList left = QDir(rig.files.path()).entryList(QDir::Files | QDir::Hidden);
    QVERIFY(left.isEmpty() || left == QStringList{"all.json"});
    if (!left.isEmpty())
        QVERIFY(QJsonDocument::fromJson(Rig::content(wanted.file)).isObject());
}

void StatsExportTest::picturesAndDocuments() {
    Rig rig;
    QImage page(40, 30, QImage::Format_ARGB32_Premultiplied);
    page.fill(Qt::transparent);
    page.setPixelColor(5, 6, Qt::white);
    rig.writer->writePicture(page, QColor(7, 7, 15), QUrl::fromLocalFile(rig.path("page.png")));
    QVERIFY(!rig.outcome().isEmpty() && !rig.writer->isNoticeProblem());
    const QImage written(rig.path("page.png"));
    const int margin = (written.width() - page.width()) / 2;
    QVERIFY(margin > 0);
    QCOMPARE(written.pixelColor(0, 0), QColor(7, 7, 15));
    QCOMPARE(written.pixelColor(margin + 5, margin + 6), QColor(Qt::white));
    rig.writer->writePicture({}, Qt::black, QUrl::fromLocalFile(rig.path("none.png")));
    QVERIFY(rig.writer->isNoticeProblem() && !QFile::exists(rig.path("none.png")));

    rig.live(40);
    rig.records.acquire();
    QTRY_VERIFY(rig.records.isComplete());
    rig.history.update();
    QVERIFY(!rig.write(StatsExport::Document, rig.path("page.pdf")).isEmpty());
    QVERIFY(!rig.writer->isNoticeProblem());
    const QByteArray pdf = Rig::content(rig.path("page.pdf"));
    QVERIFY(pdf.startsWith("%PDF-") && pdf.contains("/MediaBox [0 0 595"));
    // Texts are set in a font that says which letters they are, not drawn as shapes.
    QVERIFY(pdf.contains("/ToUnicode"));
    rig.records.release();
}

void StatsExportTest::documentsGoOnOverPages() {
    StatsDocument document{.title = QStringLiteral("Focus statistics"),
                           .period = QStringLiteral("today"),
                           .date = QStringLiteral("now"),
                           .pageFormat = QStringLiteral("%1/%2"),
                           .figures = {},
                           .sections = {}};
    StatsDocument::Section sessions;
    sessions.title = QStringLiteral("Sessions");
    for (int i = 0; i < 100; ++i)
        sessions.rows.append({.lead = QStringLiteral("9:00"),
                              .name = QStringLiteral("Task %1 ").arg(i).repeated(40),
                              .value = QStringLiteral("25 min"),
                              .note = {},
                              .share = {}});
    document.sections = {sessions};
    QCOMPARE(StatsPages(document).count(), 3);
    QBuffer pdf;
    QVERIFY(pdf.open(QIODevice::WriteOnly));
    QVERIFY(writePdf(document, pdf));
    QCOMPARE(pdf.data().count("/Type /Page\n"), 3);
}

QTEST_MAIN(StatsExportTest)
#include "tst_StatsExport.moc"
