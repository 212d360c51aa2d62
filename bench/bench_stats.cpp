// The statistics of a heavy user's month and ten years: until the first figures are there, a change of
// period, a second of a session; beside the same sums asked of SQLite. The store is a file, warm in the
// system's cache.

#include "bench/TenYears.h"
#include "stats/HistoryStatsView.h"
#include "stats/StatsRecords.h"
#include "stats/StatsScreen.h"
#include "tests/support/FocusRig.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTranslator>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace {

using namespace norvin;

/// Texts with places for two numbers, as those of lengths have.
class AnyText final : public QTranslator {
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char*, const char* key, const char*, int) const override {
        const bool hasTwo = std::string_view(key).find("hours_minutes") != std::string_view::npos;
        return hasTwo ? QStringLiteral("%1 h %2 min") : QStringLiteral("%1 min");
    }
};

/// A store with so many days of records, and the page over it.
struct Years {
    explicit Years(int days) {
        auto opened = ModelContainer::openOrRecreate(folder.filePath(QStringLiteral("NorvinFocus.sqlite")));
        if (!std::holds_alternative<std::unique_ptr<ModelContainer>>(opened))
            fail("the store cannot be opened");
        container = std::get<std::unique_ptr<ModelContainer>>(std::move(opened));
        focus.clock.setNow(QDateTime(QDate(2025, 6, 18), QTime(17, 0), QTimeZone::systemTimeZone()));
        fillWithRecords(container->mainContext(), focus.clock.now().date(), days);
        screen = std::make_unique<StatsScreen>(container->mainContext(), container->storeFile(), focus.timer,
                                               focus.clock, StatsScreen::OfferUndo());
        screen->setTab(QStringLiteral("history"));
    }
    static Years& of(const benchmark::State& state) {
        static std::map<int64_t, std::unique_ptr<Years>> made;
        std::unique_ptr<Years>& years = made[state.range(0)];
        if (!years)
            years = std::make_unique<Years>(static_cast<int>(state.range(0)));
        return *years;
    }
    void open(const char* period) {
        screen->history()->setPeriod(QLatin1String(period));
        screen->open();
        while (!screen->history()->isComplete())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        FocusRig::settle();
    }

    QTemporaryDir folder;
    FocusRig focus;
    std::unique_ptr<ModelContainer> container;
    std::unique_ptr<StatsScreen> screen;
};

void openPage(benchmark::State& state, const char* period) {
    Years& years = Years::of(state);
    for ([[maybe_unused]] auto iteration : state) {
        years.open(period);
        state.PauseTiming();
        years.screen->close();
        FocusRig::settle();
        state.ResumeTiming();
    }
}

void openMonth(benchmark::State& state) {
    openPage(state, "month");
}

void openAll(benchmark::State& state) {
    openPage(state, "all");
}

void switchPeriod(benchmark::State& state) {
    Years& years = Years::of(state);
    years.open("all");
    bool all = true;
    for ([[maybe_unused]] auto iteration : state) {
        all = !all;
        years.screen->history()->setPeriod(all ? QStringLiteral("all") : QStringLiteral("year"));
    }
    state.counters["bytes"] = static_cast<double>(years.screen->records().tables().bytes());
    years.screen->close();
}

void liveSecond(benchmark::State& state) {
    Years& years = Years::of(state);
    years.open("all");
    years.focus.timer.startSession(nullptr, PomodoroPhase::work, 1440);
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming();
        years.focus.clock.advance(std::chrono::milliseconds(1));
        state.ResumeTiming();
        years.screen->history()->updateLive();
    }
    years.focus.timer.stopSession();
    years.screen->close();
}

// An interval is closed: the tables take it, and the page counts anew.
void intervalRecorded(benchmark::State& state) {
    Years& years = Years::of(state);
    years.open("all");
    AppUsageSession usage;
    usage.bundleID = QStringLiteral("org.example.App1");
    usage.appName = QStringLiteral("App 1");
    usage.category = QStringLiteral("category_other");
    usage.startTime = years.focus.clock.now();
    usage.durationSeconds = 0;
    for ([[maybe_unused]] auto iteration : state) {
        Q_EMIT years.container->mainContext().appUsageInserted(usage);
        QCoreApplication::processEvents();
    }
    years.screen->close();
}

class Sqlite final {
public:
    explicit Sqlite(const QString& file) {
        if (sqlite3_open_v2(file.toUtf8().constData(), &m_handle, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK)
            fail("the store cannot be opened beside itself");
    }
    Sqlite(const Sqlite&) = delete;
    Sqlite& operator=(const Sqlite&) = delete;
    ~Sqlite() { sqlite3_close(m_handle); }
    /// Goes through all rows of a query.
    void run(const std::string& sql) {
        if (sqlite3_exec(m_handle, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
            fail(sqlite3_errmsg(m_handle));
    }

private:
    sqlite3* m_handle = nullptr;
};

// The sums of the history page as somebody would ask SQLite for them.
void sumInSql(benchmark::State& state, const char* back) {
    Years& years = Years::of(state);
    Sqlite database(years.container->storeFile());
    const std::string since =
        back == nullptr
            ? std::string("0")
            : std::to_string(startOfDay(years.focus.clock.now().addDays(-30)).toMSecsSinceEpoch());
    const std::string of = " FROM Session WHERE completed AND startTime >= " + since;
    const std::string used = " FROM AppUsageSession JOIN AppUsageSource ON AppUsageSource.id = source "
                             "WHERE startTime >= " +
                             since;
    for ([[maybe_unused]] auto iteration : state) {
        database.run("SELECT count(*), sum(durationMinutes), avg(score)" + of);
        database.run("SELECT date(startTime / 1000, 'unixepoch', 'localtime') AS day, sum(durationMinutes)" +
                     of + " GROUP BY day");
        database.run("SELECT strftime('%w', startTime / 1000, 'unixepoch', 'localtime') AS day, "
                     "sum(durationMinutes)" +
                     of + " GROUP BY day");
        database.run("SELECT category, sum(durationSeconds) AS seconds" + used +
                     " GROUP BY category ORDER BY seconds DESC");
        // The name comes with the first interval.
        database.run("SELECT bundleID, appName, category, min(startTime), sum(durationSeconds) AS seconds" +
                     used + " GROUP BY bundleID ORDER BY seconds DESC");
    }
}

void sqlMonth(benchmark::State& state) {
    sumInSql(state, "30");
}

void sqlAll(benchmark::State& state) {
    sumInSql(state, nullptr);
}

constexpr int month = 30;
constexpr int tenYears = 3652;

BENCHMARK(openMonth)->Arg(month)->Arg(tenYears)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(openAll)->Arg(month)->Arg(tenYears)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(switchPeriod)->Arg(month)->Arg(tenYears)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(liveSecond)->Arg(month)->Arg(tenYears)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(intervalRecorded)->Arg(month)->Arg(tenYears)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(sqlMonth)->Arg(month)->Arg(tenYears)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(sqlAll)->Arg(month)->Arg(tenYears)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    AnyText texts;
    QCoreApplication::installTranslator(&texts);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
