#include "stats/export/RecordExport.h"

#include <QSaveFile>

#include <algorithm>
#include <memory>

namespace norvin {

namespace {

/// Says how far the work has come by how far the records have come in their span of time.
class Progress final {
public:
    Progress(ExportControl& control, const RecordExport& wanted)
        : m_control(control)
        , m_from(wanted.range.from)
        , m_until(wanted.range.to.isNone() ? wanted.now : wanted.range.to) {}

    /// @return whether to go on
    bool reach(const QDateTime& start) {
        if (m_control.isCancelled)
            return false;
        const Instant instant(start);
        if (m_from.isNone())
            m_from = instant;
        const auto whole = static_cast<double>(m_until.milliseconds() - m_from.milliseconds());
        const auto done = static_cast<double>(instant.milliseconds() - m_from.milliseconds());
        const int percent = whole > 0 ? static_cast<int>(std::clamp(100 * done / whole, 0.0, 100.0)) : 0;
        if (percent > m_percent && m_control.showProgress)
            m_control.showProgress(percent);
        m_percent = std::max(m_percent, percent);
        return true;
    }

private:
    ExportControl& m_control;
    Instant m_from;
    Instant m_until;
    int m_percent = 0;
};

/// The records of the store's file, or those that came along.
class Source final {
public:
    explicit Source(const RecordExport& wanted)
        : m_wanted(wanted) {}

    [[nodiscard]] StoreResult open() {
        if (m_wanted.storeFile.isEmpty())
            return {};
        auto opened = RecordScan::open(m_wanted.storeFile);
        if (const auto* error = std::get_if<StoreError>(&opened))
            return *error;
        m_scan = std::move(std::get<std::unique_ptr<RecordScan>>(opened));
        return {};
    }
    [[nodiscard]] StoreResult sessions(const RecordScan::Visit<Session>& visit) {
        if (m_scan)
            return m_scan->sessions(m_wanted.range, visit);
        static_cast<void>(std::all_of(m_wanted.sessions.cbegin(), m_wanted.sessions.cend(), visit));
        return {};
    }
    [[nodiscard]] StoreResult usage(const RecordScan::Visit<AppUsageSession>& visit) {
        if (m_scan)
            return m_scan->usageRecords(m_wanted.range, visit);
        static_cast<void>(std::all_of(m_wanted.usage.cbegin(), m_wanted.usage.cend(), visit));
        return {};
    }

private:
    const RecordExport& m_wanted;
    std::unique_ptr<RecordScan> m_scan;
};

void beginJson(JsonRows& rows, const RecordExport& wanted, RecordStamps& stamps) {
    rows.beginDocument();
    rows.word("format", "norvin-focus-statistics");
    rows.literal("version", "1");
    rows.word("period", wanted.period.toUtf8());
    const auto stamp = [&rows](const char* name, Instant instant) {
        if (instant.isNone())
            rows.nothing(name);
        else
            rows.word(name, RecordStamps::utc(instant));
    };
    stamp("from", wanted.range.from);
    stamp("to", wanted.range.to);
    rows.text("timeZone", QString::fromUtf8(wanted.zone.id()));
    rows.word("writtenUtc", RecordStamps::utc(wanted.now));
    rows.word("writtenLocal", stamps.local(wanted.now));
}

class Writing final {
public:
    Writing(const RecordExport& wanted, ExportControl& control)
        : m_wanted(wanted)
        , m_source(wanted)
        , m_stamps(wanted.zone)
        , m_progress(control, wanted) {}

    [[nodiscard]] StoreResult open() { return m_source.open(); }
    [[nodiscard]] const ExportCounts& counts() const { return m_counts; }

    [[nodiscard]] StoreResult writeCsv(CsvRows& rows) {
        rows.takeNames();
        if (m_wanted.kind == RecordFile::sessions) {
            writeSession(rows, {}, {}, m_stamps);
            return addSessions(rows, [this](const QDateTime& start) { return m_progress.reach(start); });
        }
        writeUsage(rows, {}, m_stamps);
        return addUsage(rows);
    }

    [[nodiscard]] StoreResult writeJson(JsonRows& rows, const ExportControl& control) {
        beginJson(rows, m_wanted, m_stamps);
        rows.beginList("sessions");
        // A twentieth of the intervals: they move no progress.
        if (StoreResult error =
                addSessions(rows, [&control](const QDateTime&) { return !control.isCancelled; }))
            return error;
        rows.endList();
        rows.beginList("usage");
        if (StoreResult error = addUsage(rows))
            return error;
        rows.endList();
        rows.endDocument();
        return {};
    }

private:
    template <class Proceed>
    [[nodiscard]] StoreResult addSessions(RecordRows& rows, const Proceed& proceed) {
        return m_source.sessions([&](const Session& session) {
            writeSession(rows, session, m_wanted.tasks, m_stamps);
            ++m_counts.sessions;
            return rows.isGood() && proceed(session.startTime);
        });
    }
    [[nodiscard]] StoreResult addUsage(RecordRows& rows) {
        return m_source.usage([&](const AppUsageSession& usage) {
            writeUsage(rows, usage, m_stamps);
            ++m_counts.usage;
            return rows.isGood() && m_progress.reach(usage.startTime);
        });
    }

    const RecordExport& m_wanted;
    Source m_source;
    RecordStamps m_stamps;
    Progress m_progress;
    ExportCounts m_counts;
};

} // namespace

ExportOutcome writeRecords(const RecordExport& wanted, ExportControl& control) {
    Writing writing(wanted, control);
    if (const StoreResult error = writing.open())
        return ExportFailure{error->description};
    QSaveFile file(wanted.file);
    if (!file.open(QIODevice::WriteOnly))
        return ExportFailure{file.errorString()};
    StoreResult readError;
    bool isWritten = false;
    if (wanted.kind == RecordFile::json) {
        JsonRows rows(file);
        readError = writing.writeJson(rows, control);
        isWritten = rows.flush();
    } else {
        CsvRows rows(file);
        readError = writing.writeCsv(rows);
        isWritten = rows.flush();
    }
    if (readError)
        return ExportFailure{readError->description};
    if (!isWritten)
        return ExportFailure{file.errorString()};
    if (control.isCancelled)
        return ExportCancelled{};
    // The last bytes reach the disk here, where there may be no room for them; commit() would not tell.
    if (!file.flush() || !file.commit())
        return ExportFailure{file.errorString()};
    return ExportDone{writing.counts()};
}

} // namespace norvin
