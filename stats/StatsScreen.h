#pragma once

#include "stats/HistoryStatsView.h"
#include "stats/StatsExplanation.h"
#include "stats/StatsExport.h"
#include "stats/StatsRecords.h"
#include "stats/TodayStatsView.h"

#include <QObject>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>

namespace norvin {

class Clock;
class ClockTimer;
class ModelContext;
class PomodoroTimerService;

/// The statistics page: today and the history. Reads the records only while it is open. Main thread only.
class StatsScreen final : public QObject {
    Q_OBJECT
    /// "today" or "history".
    Q_PROPERTY(QString tab READ tab WRITE setTab NOTIFY tabChanged)
    /// Whether the first figures have taken longer than a moment and are still awaited.
    Q_PROPERTY(bool isWaiting READ isWaiting NOTIFY waitingChanged)
    /// Whether there are figures to show: false for the moment until the first records were read.
    Q_PROPERTY(bool hasFigures READ hasFigures NOTIFY waitingChanged)
    /// Why there are none, in English; empty while all is well.
    Q_PROPERTY(QString problem READ problem NOTIFY waitingChanged)
    Q_PROPERTY(norvin::TodayStatsView* today READ today CONSTANT)
    Q_PROPERTY(norvin::HistoryStatsView* history READ history CONSTANT)
    Q_PROPERTY(norvin::StatsExplanation* explanation READ explanation CONSTANT)
    Q_PROPERTY(norvin::StatsExport* files READ files CONSTANT)
public:
    /// How long the first figures may take before the page says that it waits.
    static constexpr std::chrono::milliseconds patience{200};

    /// Offers to take back what was just done: a sentence about it, and what takes it back.
    using OfferUndo = std::function<void(const QString& text, std::function<void()> takeBack)>;

    /// Everything must outlive this. @param storeFile that of the context, see StatsRecords
    StatsScreen(ModelContext& context, const QString& storeFile, PomodoroTimerService& timer, Clock& clock,
                OfferUndo offerUndo, QObject* parent = nullptr);
    ~StatsScreen() override;

    [[nodiscard]] QString tab() const { return m_tab; }
    void setTab(const QString& tab);
    [[nodiscard]] bool isWaiting() const { return m_isWaiting; }
    [[nodiscard]] bool hasFigures() const;
    [[nodiscard]] QString problem() const { return m_records.problem(); }
    [[nodiscard]] TodayStatsView* today() { return &m_today; }
    [[nodiscard]] HistoryStatsView* history() { return &m_history; }
    [[nodiscard]] StatsExplanation* explanation() { return &m_explanation; }
    [[nodiscard]] StatsExport* files() { return &m_files; }
    [[nodiscard]] StatsRecords& records() { return m_records; }

    /// The page is seen.
    Q_INVOKABLE void open();
    /// The page is no longer seen: nothing is explained any more, and what was read is given back.
    Q_INVOKABLE void close();
    /// Reads the records again.
    Q_INVOKABLE void refresh();
    /// Lists the records behind a figure, bar or slice of the tab that is shown.
    /// @param what "sessions", "focus", "score", "streak", "apps", "best_day", "hour", "bucket", "weekday",
    ///   "category", "application" or "session"
    /// @param key that of the chart's point, the bundle identifier, or the id of the session; empty for a
    ///   figure
    Q_INVOKABLE void explain(const QString& what, const QString& key = {});
    /// Looks at the clock again, which may have jumped.
    void refreshDay();
    void retranslate(const QLocale& locale);

Q_SIGNALS:
    void tabChanged();
    void waitingChanged();

private:
    void scheduleUpdate();
    void update();
    void updateLive();
    void showWaiting();

    StatsRecords m_records;
    TodayStatsView m_today;
    HistoryStatsView m_history;
    StatsExplanation m_explanation;
    StatsExport m_files;
    Clock& m_clock;
    std::unique_ptr<ClockTimer> m_patience;
    QString m_tab = QStringLiteral("today");
    bool m_isOpen = false;
    bool m_isUpdateScheduled = false;
    bool m_isWaiting = false;
};

} // namespace norvin
