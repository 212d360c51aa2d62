// The store beside what it is built on: one save beside SQLite's C interface and beside the bare flush of a
// file, and the load of the planning graph beside a bare scan of the same rows.

#include "model/ModelContainer.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <vector>

namespace {

using norvin::ModelContainer;

constexpr int projectCount = 200;
constexpr int tasksPerProject = 100;
constexpr int savesPerRound = 1000;

[[noreturn]] void fail(const char* what) {
    std::cerr << "bench_store: " << what << '\n';
    std::exit(1);
}

std::unique_ptr<ModelContainer> openStore(const QString& file) {
    auto result = ModelContainer::openOrRecreate(file);
    if (auto* container = std::get_if<std::unique_ptr<ModelContainer>>(&result))
        return std::move(*container);
    fail("the store cannot be opened");
}

// On a disk and not in memory, or the flush would cost nothing.
QString directory() {
    static const QTemporaryDir directory(QCoreApplication::applicationDirPath() +
                                         QStringLiteral("/bench-store-XXXXXX"));
    return directory.path();
}

// Everything a heavy user has planned, made once.
const QString& planningStore() {
    static const QString file = [] {
        const QString path = directory() + QStringLiteral("/planning.sqlite");
        const auto container = openStore(path);
        auto& context = container->mainContext();
        for (int i = 0; i < projectCount; ++i) {
            auto* project = context.insert(std::make_unique<norvin::Project>(
                norvin::Project::Init{.name = QStringLiteral("Project %1").arg(i)}));
            for (int j = 0; j < tasksPerProject; ++j) {
                context.insert(std::make_unique<norvin::TaskItem>(norvin::TaskItem::Init{
                    .title = QStringLiteral("Task %1 of project %2").arg(j).arg(i), .project = project}));
            }
        }
        if (context.save())
            fail("the planning store cannot be saved");
        return path;
    }();
    return file;
}

class LatencyCounters final {
public:
    template <class Operation>
    void measure(benchmark::State& state, const Operation& operation) {
        const auto start = std::chrono::steady_clock::now();
        operation();
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(elapsed.count());
        m_microseconds.push_back(elapsed.count() * 1e6);
    }
    void report(benchmark::State& state) {
        std::sort(m_microseconds.begin(), m_microseconds.end());
        state.counters["p50_us"] = m_microseconds.at(m_microseconds.size() / 2);
        state.counters["p99_us"] = m_microseconds.at(m_microseconds.size() * 99 / 100);
    }

private:
    std::vector<double> m_microseconds;
};

class Sqlite final {
public:
    explicit Sqlite(const QString& file) {
        if (sqlite3_open(QFile::encodeName(file).constData(), &m_handle) != SQLITE_OK)
            fail("SQLite cannot open its file");
    }
    Sqlite(const Sqlite&) = delete;
    Sqlite& operator=(const Sqlite&) = delete;
    ~Sqlite() {
        for (sqlite3_stmt* statement : m_statements)
            sqlite3_finalize(statement);
        sqlite3_close(m_handle);
    }
    void run(const char* sql) {
        if (sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
            fail(sqlite3_errmsg(m_handle));
    }
    sqlite3_stmt* prepare(const char* sql) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(m_handle, sql, -1, &statement, nullptr) != SQLITE_OK)
            fail(sqlite3_errmsg(m_handle));
        m_statements.push_back(statement);
        return statement;
    }

private:
    sqlite3* m_handle = nullptr;
    std::vector<sqlite3_stmt*> m_statements;
};

void saveThroughContext(benchmark::State& state) {
    const auto container = openStore(directory() + QStringLiteral("/context.sqlite"));
    auto& context = container->mainContext();
    LatencyCounters latencies;
    for ([[maybe_unused]] auto iteration : state) {
        const QDateTime now = QDateTime::currentDateTime();
        const norvin::AppUsageSession usage{.bundleID = QStringLiteral("org.example.Editor"),
                                            .appName = QStringLiteral("Editor"),
                                            .startTime = now.addSecs(-60),
                                            .endTime = now,
                                            .durationSeconds = 60,
                                            .category = QStringLiteral("category_development")};
        latencies.measure(state, [&] {
            context.insert(usage);
            if (context.save())
                fail("a record cannot be saved");
        });
    }
    latencies.report(state);
}

// The same row, with the same settings of the connection.
void saveThroughSqlite(benchmark::State& state) {
    const QString file = directory() + QStringLiteral("/sqlite.sqlite");
    openStore(file);
    Sqlite database(file);
    database.run("PRAGMA journal_mode = WAL");
    database.run("PRAGMA synchronous = FULL");
    database.run("PRAGMA foreign_keys = ON");
    database.run("PRAGMA wal_autocheckpoint = 0");
    database.run("INSERT OR IGNORE INTO AppUsageSource VALUES (1, 'org.example.Editor', 'Editor', "
                 "'category_development')");
    sqlite3_stmt* insert =
        database.prepare("INSERT INTO AppUsageSession VALUES (randomblob(16), 1, ?1, ?2, 60)");
    sqlite3_stmt* begin = database.prepare("BEGIN IMMEDIATE");
    sqlite3_stmt* commit = database.prepare("COMMIT");
    LatencyCounters latencies;
    for ([[maybe_unused]] auto iteration : state) {
        const qint64 now = QDateTime::currentMSecsSinceEpoch();
        latencies.measure(state, [&] {
            sqlite3_bind_int64(insert, 1, now - 60000);
            sqlite3_bind_int64(insert, 2, now);
            for (sqlite3_stmt* statement : {begin, insert, commit}) {
                if (sqlite3_step(statement) != SQLITE_DONE)
                    fail("a row cannot be inserted");
                sqlite3_reset(statement);
            }
        });
    }
    latencies.report(state);
}

// What no store that keeps its promise can go below: a page appended and flushed.
void flushBare(benchmark::State& state) {
    const QByteArray name = QFile::encodeName(directory() + QStringLiteral("/bare"));
    const int descriptor = ::open(name.constData(), O_CREAT | O_WRONLY | O_APPEND | O_CLOEXEC, 0600);
    if (descriptor < 0)
        fail("the bare file cannot be opened");
    const std::array<char, 4096> page{};
    LatencyCounters latencies;
    for ([[maybe_unused]] auto iteration : state) {
        latencies.measure(state, [&] {
            if (::write(descriptor, page.data(), page.size()) != static_cast<ssize_t>(page.size()) ||
                ::fdatasync(descriptor) != 0)
                fail("the bare file cannot be written");
        });
    }
    ::close(descriptor);
    latencies.report(state);
}

void loadPlanningGraph(benchmark::State& state) {
    const QString& file = planningStore();
    for ([[maybe_unused]] auto iteration : state) {
        const auto start = std::chrono::steady_clock::now();
        const auto container = openStore(file);
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(elapsed.count());
        if (container->mainContext().tasks().size() != projectCount * tasksPerProject)
            fail("the planning store is not complete");
    }
}

// Every column of the same rows is read, and nothing is made of it.
void scanPlanningRows(benchmark::State& state) {
    const QString& file = planningStore();
    for ([[maybe_unused]] auto iteration : state) {
        const auto start = std::chrono::steady_clock::now();
        Sqlite database(file);
        qint64 bytes = 0;
        for (const char* sql : {"SELECT * FROM Project", "SELECT * FROM ProjectPhase",
                                "SELECT * FROM TaskItem", "SELECT * FROM TaskResource"}) {
            sqlite3_stmt* query = database.prepare(sql);
            while (sqlite3_step(query) == SQLITE_ROW) {
                for (int column = 0; column < sqlite3_column_count(query); ++column) {
                    benchmark::DoNotOptimize(sqlite3_column_blob(query, column));
                    bytes += sqlite3_column_bytes(query, column);
                }
            }
        }
        benchmark::DoNotOptimize(bytes);
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(elapsed.count());
    }
}

} // namespace

BENCHMARK(saveThroughContext)->UseManualTime()->Iterations(savesPerRound);
BENCHMARK(saveThroughSqlite)->UseManualTime()->Iterations(savesPerRound);
BENCHMARK(flushBare)->UseManualTime()->Iterations(savesPerRound);
BENCHMARK(loadPlanningGraph)->UseManualTime()->Iterations(20);
BENCHMARK(scanPlanningRows)->UseManualTime()->Iterations(20);

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
