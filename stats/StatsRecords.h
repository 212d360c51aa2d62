#pragma once

#include "model/ModelContext.h"
#include "stats/StatsAggregates.h"
#include "stats/StatsTables.h"

#include <QObject>
#include <QString>
#include <QThreadPool>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

namespace norvin {

class Clock;
class ClockTimer;

/// The records of the store as tables, for as long as anybody holds them. They are read on a thread of their
/// own, the last month first, and then follow the context: what is recorded moves them at once, sessions that
/// are edited are read again. When the last holder lets go, the memory is given back. Main thread only.
class StatsRecords final : public QObject {
    Q_OBJECT
public:
    /// How far back what is read first reaches, in days before today.
    static constexpr int firstDays = 31;

    /// Everything must outlive this. @param storeFile that of the context; empty for a store in memory, which
    /// is read at once and on the main thread
    StatsRecords(ModelContext& context, QString storeFile, Clock& clock, QObject* parent = nullptr);
    ~StatsRecords() override;

    /// Has the records read, unless somebody holds them already; every call is to be matched by a release().
    void acquire();
    void release();
    /// Reads everything again.
    void reload();

    /// Empty until something was read, and for the part that is not read yet.
    [[nodiscard]] const StatsTables& tables() const { return m_tables; }
    /// Whether all that figures of this period look at is there.
    [[nodiscard]] bool isComplete(StatsPeriod period) const;
    /// Whether everything is there.
    [[nodiscard]] bool isComplete() const { return m_stage == Stage::complete; }
    /// Why the records could not be read, in English; empty where they could.
    [[nodiscard]] const QString& problem() const { return m_problem; }

    /// Now, in the zone of the tables, and the day that it lies in.
    [[nodiscard]] Instant now() const;
    [[nodiscard]] qint64 today() const { return m_today; }
    /// Looks at the clock again: after midnight today is another day, and in another time zone everything is
    /// read again.
    void refreshDay();

Q_SIGNALS:
    /// Records came or went, or today is another day.
    void changed();

private:
    enum class Stage { empty, month, sessions, complete };
    enum class Wanted { everything, sessions };
    struct Reading;
    void startReading(Wanted wanted);
    void readSessionsAgain();
    static void read(const Reading& reading, StatsRecords* receiver, const std::shared_ptr<Reading>& which);
    void readThroughContext();
    void watchMidnight();
    void take(Stage stage, StatsTables tables);
    void fail(const QString& problem);
    void cancelReading();

    ModelContext& m_context;
    QString m_storeFile;
    Clock& m_clock;
    QThreadPool m_thread;
    std::shared_ptr<Reading> m_reading;
    std::vector<QMetaObject::Connection> m_connections;
    StatsTables m_tables;
    Stage m_stage = Stage::empty;
    QString m_problem;
    qint64 m_today = 0;
    std::unique_ptr<ClockTimer> m_midnight;
    int m_holders = 0;
};

} // namespace norvin
