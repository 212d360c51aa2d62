#include "app/StatsReport.h"
#include "app/StatsReporter.h"
#include "stats/StatsRecords.h"
#include "tests/support/FocusRig.h"

#include <QJsonArray>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>
#include <QTranslator>

using namespace norvin;
using namespace std::chrono_literals;

class tst_StatsReport final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void answersWhetherAnybodyHasTheRecordsOrNot();
    void readsAgainInAnotherTimeZone();
    void includesTheWorkPhaseThatRuns();
    void readsWellInATerminal();
    void isATable();

private:
    QTranslator m_english;
};

namespace {

struct ReportRig : FocusRig {
    ReportRig() {
        clock.setNow(QDateTime(QDate(2025, 3, 11), QTime(12, 0), paris));
        TaskItem* const task = addTask(QStringLiteral("Write, \"it\"\n\x1b[31mnow"));
        record(QDateTime(QDate(2025, 3, 11), QTime(9, 50), paris), 25, 7.5, task->id());
        record(QDateTime(QDate(2025, 3, 11), QTime(11, 0), paris), 50, std::nullopt, {});
        record(QDateTime(QDate(2025, 3, 10), QTime(23, 59), paris), 100, 2.5, {});
        record(QDateTime(QDate(2025, 3, 4), QTime(0, 0), paris), 5, std::nullopt, {});
        record(QDateTime(QDate(2025, 3, 3), QTime(23, 59), paris), 500, 10, {});
        use("org.example.Editor", "Editor", "category_development", 3700, clock.now());
        use("org.example.Game", "Game", "category_other", 100, clock.now().addDays(-2));
    }
    void record(const QDateTime& start, int minutes, std::optional<double> score,
                std::optional<TaskId> task) const {
        Session session;
        session.startTime = start;
        session.durationMinutes = minutes;
        session.completed = true;
        session.score = score;
        session.task = task;
        context().insert(session);
    }
    void use(const char* bundle, const char* name, const char* category, int seconds,
             const QDateTime& start) const {
        AppUsageSession made;
        made.bundleID = QLatin1String(bundle);
        made.appName = QLatin1String(name);
        made.category = QLatin1String(category);
        made.startTime = start;
        made.durationSeconds = seconds;
        context().insert(made);
    }
    [[nodiscard]] QJsonObject report(std::optional<StatsPeriod> period) {
        QJsonObject given;
        reporter.report(period, [&given](const std::variant<QJsonObject, QString>& outcome) {
            given = std::get<QJsonObject>(outcome);
        });
        settle();
        return given;
    }
    static inline const QTimeZone paris{"Europe/Paris"};
    StatsRecords records{context(), {}, clock};
    StatsReporter reporter{records, timer, context()};
};

} // namespace

void tst_StatsReport::initTestCase() {
    QVERIFY(m_english.load(QStringLiteral(":/i18n/norvin-focus_en.qm")));
    QCoreApplication::installTranslator(&m_english);
}

void tst_StatsReport::answersWhetherAnybodyHasTheRecordsOrNot() {
    ReportRig rig;
    QStringList answered;
    for (const StatsPeriod period : {StatsPeriod::week, StatsPeriod::all}) {
        rig.reporter.report(period, [&answered](const std::variant<QJsonObject, QString>& outcome) {
            const QJsonObject report = std::get<QJsonObject>(outcome);
            answered.append(report[QStringLiteral("period")].toString() + u' ' +
                            report[QStringLiteral("sessions")].toVariant().toString());
        });
    }
    QVERIFY(answered.isEmpty());
    QTRY_COMPARE(answered, (QStringList{"week 4", "all 5"}));
    QVERIFY(!rig.records.isComplete());

    rig.records.acquire();
    QCOMPARE(rig.report(std::nullopt)[QStringLiteral("sessions")].toInt(), 2);
    QVERIFY(rig.records.isComplete());
    rig.records.release();
}

void tst_StatsReport::readsAgainInAnotherTimeZone() {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("store"));
    FocusRig rig;
    const auto opened = ModelContainer::openOrRecreate(file);
    ModelContext& context = std::get<std::unique_ptr<ModelContainer>>(opened)->mainContext();
    Session session;
    session.startTime = rig.clock.now();
    session.completed = true;
    context.insert(session);
    StatsRecords records(context, file, rig.clock);
    StatsReporter reporter(records, rig.timer, context);
    records.acquire();
    QTRY_VERIFY(records.isComplete());
    rig.clock.setNow(rig.clock.now().toTimeZone(QTimeZone("Asia/Kolkata")));
    QJsonObject given;
    reporter.report(StatsPeriod::all, [&given](const std::variant<QJsonObject, QString>& outcome) {
        given = std::get<QJsonObject>(outcome);
    });
    QTRY_VERIFY(!given.isEmpty());
    QCOMPARE(given[QStringLiteral("timeZone")].toString(), QStringLiteral("Asia/Kolkata"));
    QCOMPARE(given[QStringLiteral("sessions")].toInt(), 1);
}

void tst_StatsReport::includesTheWorkPhaseThatRuns() {
    ReportRig rig;
    rig.timer.startSession(nullptr, PomodoroPhase::work);
    rig.pass(61s);
    const QJsonObject today = rig.report(std::nullopt);
    QCOMPARE(today[QStringLiteral("focusMinutes")].toInt(), 77);
    QCOMPARE(today[QStringLiteral("hours")].toArray().at(12).toInt(), 0);
    const QJsonObject week = rig.report(StatsPeriod::week);
    QCOMPARE(week[QStringLiteral("focusMinutes")].toInt(), 182);
    int sum = 0;
    for (const QJsonValue& bucket : week[QStringLiteral("chart")][QStringLiteral("buckets")].toArray())
        sum += bucket[QStringLiteral("minutes")].toInt();
    QCOMPARE(sum, 182);
}

void tst_StatsReport::readsWellInATerminal() {
    ReportRig rig;
    QCOMPARE(statsText(rig.report(std::nullopt)),
             QStringLiteral("Tuesday, 11 March 2025\n"
                            "  Sessions      2\n"
                            "  Focus         1 h 15 min\n"
                            "  Score         7.5\n"
                            "  Streak        2 days\n"
                            "  Applications  1 h 1 min\n"
                            "\nBy hour\n"
                            "  09:00  25 min\n"
                            "  11:00  50 min\n"
                            "\nBy category\n"
                            "  Development  1 h 1 min\n"
                            "\nMost used applications\n"
                            "  1  Editor  1 h 1 min  100 %  Development\n"
                            "\nSessions of today\n"
                            "  09:50  25 min  7.5  Write, \"it\"  [31mnow\n"
                            "  11:00  50 min  -    no task\n"));
    const QString week = statsText(rig.report(StatsPeriod::week));
    for (const char* line : {"\n  Best day      1 h 40 min  2025-03-10\n", "\nBy day\n  2025-03-04  5 min\n",
                             "\n  Monday   1 h 40 min\n", "\nLast sessions\n  2025-03-11 11:00  50 min"})
        QVERIFY2(week.contains(QLatin1String(line)), qPrintable(week));
    QVERIFY(!week.contains(QLatin1String("2025-03-03")));
}

void tst_StatsReport::isATable() {
    ReportRig rig;
    const QByteArray table = statsCsv(rig.report(StatsPeriod::week));
    QVERIFY(table.startsWith("section,key,name,value,unit\r\nfigures,sessions,Sessions,4,count\r\n"));
    for (const char* line :
         {"figures,averageScore,Average score,5,score", "figures,bestDay,2025-03-10,100,min",
          "chart,2025-03-10T00:00:00.000+01:00,2025-03-10,100,min", "weekdays,0,Monday,100,min",
          "categories,category_development,Development,3700,s", "applications,org.example.Game,Game,100,s",
          "scores,2025-03-11T09:50:00.000+01:00,\"Write, \"\"it\"\"\n\x1b[31mnow\",7.5,score"})
        QVERIFY2(table.contains(QByteArray("\r\n") + line + "\r\n"), line);
    QVERIFY(statsCsv(rig.report(std::nullopt)).contains("\r\nhours,9,09:00,25,min\r\n"));
}

QTEST_GUILESS_MAIN(tst_StatsReport)
#include "tst_StatsReport.moc"
