#pragma once

#include "stats/AppTotalRows.h"
#include "stats/ChartModel.h"
#include "stats/StatsSessionRows.h"

#include <QLocale>
#include <QObject>
#include <QString>
#include <QStringList>

namespace norvin {

class PomodoroTimerService;
class StatsRecords;

/// The page about a period of the past. Its figures follow the records, the period, and the work phase that
/// runs. Main thread only.
class HistoryStatsView final : public QObject {
    Q_OBJECT
    /// Raw value of the period: "today", "week", "month", "year" or "all". Any other is ignored.
    Q_PROPERTY(QString period READ period WRITE setPeriod NOTIFY periodChanged)
    /// All of them, and their names by the same index.
    Q_PROPERTY(QList<QString> periods READ periods CONSTANT)
    Q_PROPERTY(QList<QString> periodNames READ periodNames NOTIFY periodChanged)
    /// What the period spans, in words.
    Q_PROPERTY(QString periodText READ periodText NOTIFY periodChanged)
    /// Whether all records of the period were read; until then the figures are those of what was.
    Q_PROPERTY(bool isComplete READ isComplete NOTIFY figuresChanged)
    // The headline figures, as they are written.
    Q_PROPERTY(QString sessionsText READ sessionsText NOTIFY figuresChanged)
    Q_PROPERTY(QString focusText READ focusText NOTIFY figuresChanged)
    Q_PROPERTY(QString scoreText READ scoreText NOTIFY figuresChanged)
    Q_PROPERTY(QString bestDayText READ bestDayText NOTIFY figuresChanged)
    /// The date of the best day; empty without one.
    Q_PROPERTY(QString bestDayDate READ bestDayDate NOTIFY figuresChanged)
    Q_PROPERTY(bool hasSessions READ hasSessions NOTIFY sectionsChanged)
    /// Whether any day of the week has a minute.
    Q_PROPERTY(bool hasDistribution READ hasDistribution NOTIFY sectionsChanged)
    Q_PROPERTY(bool hasUsage READ hasUsage NOTIFY sectionsChanged)
    /// Minutes over time; see chartData(). Each has a label, of which the chart shows those that fit.
    Q_PROPERTY(norvin::ChartModel* focus READ focus CONSTANT)
    /// 7 points: minutes by day of the week, Monday first.
    Q_PROPERTY(norvin::ChartModel* weekdays READ weekdays CONSTANT)
    /// Seconds by category; the key is the category as it is stored.
    Q_PROPERTY(norvin::ChartModel* categories READ categories CONSTANT)
    /// The eight that were used most.
    Q_PROPERTY(norvin::AppTotalRows* topApps READ topApps CONSTANT)
    /// The ten newest of the period's completed sessions, the newest first.
    Q_PROPERTY(norvin::StatsSessionRows* recent READ recent CONSTANT)
public:
    static constexpr int topAppCount = 8;
    static constexpr int recentCount = 10;

    /// Everything must outlive this.
    HistoryStatsView(const StatsRecords& records, const PomodoroTimerService& timerService,
                     const ModelContext& context, QObject* parent = nullptr);
    ~HistoryStatsView() override;

    [[nodiscard]] QString period() const { return rawValue(m_period); }
    void setPeriod(const QString& raw);
    [[nodiscard]] StatsPeriod statsPeriod() const { return m_period; }
    [[nodiscard]] QStringList periods() const;
    [[nodiscard]] QStringList periodNames() const;
    [[nodiscard]] QString periodText() const { return periodDescription(m_period); }
    [[nodiscard]] bool isComplete() const;
    [[nodiscard]] QString sessionsText() const;
    [[nodiscard]] QString focusText() const;
    [[nodiscard]] QString scoreText() const;
    [[nodiscard]] QString bestDayText() const;
    [[nodiscard]] QString bestDayDate() const;
    [[nodiscard]] bool hasSessions() const { return m_sessionCount > 0; }
    [[nodiscard]] bool hasDistribution() const { return m_weekdays->largest() > 0; }
    [[nodiscard]] bool hasUsage() const { return m_hasUsage; }
    [[nodiscard]] ChartModel* focus() const { return m_focus; }
    [[nodiscard]] ChartModel* weekdays() const { return m_weekdays; }
    [[nodiscard]] ChartModel* categories() const { return m_categories; }
    [[nodiscard]] AppTotalRows* topApps() const { return m_topApps; }
    [[nodiscard]] StatsSessionRows* recent() const { return m_recent; }

    // What the figures stand for.
    [[nodiscard]] int sessionCount() const { return m_sessionCount; }
    /// The work phase that runs included.
    [[nodiscard]] int periodFocusMinutes() const;
    [[nodiscard]] double avgPeriodScore() const;
    [[nodiscard]] int bestDayMinutes() const { return m_bestDay ? m_bestDay->minutes : 0; }
    [[nodiscard]] const std::optional<BestDay>& bestDay() const { return m_bestDay; }
    [[nodiscard]] qint64 usageSeconds() const { return m_usageSeconds; }
    /// The stretches of time behind the points of `focus`.
    [[nodiscard]] const std::vector<TimeBucket>& buckets() const { return m_buckets; }

    /// Computes everything anew from the records.
    void update();
    /// What the timer adds may have changed.
    void updateLive();
    /// The texts in the language of now; those of the records with the next update().
    void retranslate(const QLocale& locale);

Q_SIGNALS:
    void periodChanged();
    void figuresChanged();
    void sectionsChanged();

private:
    void showWeekdays(SessionSpan sessions);
    void showRecent(SessionSpan sessions);
    void showBuckets();

    const StatsRecords& m_records;
    const PomodoroTimerService& m_timerService;
    QLocale m_locale;
    StatsPeriod m_period = StatsPeriod::week;
    ChartModel* m_focus;
    ChartModel* m_weekdays;
    ChartModel* m_categories;
    AppTotalRows* m_topApps;
    StatsSessionRows* m_recent;
    int m_sessionCount = 0;
    int m_recordedMinutes = 0;
    ScoreSum m_recordedScores;
    std::optional<BestDay> m_bestDay;
    qint64 m_usageSeconds = 0;
    bool m_hasUsage = false;
    /// Without the work phase that runs.
    std::vector<TimeBucket> m_buckets;
    // What moves with the timer, as it was last told.
    int m_shownMinutes = 0;
    QString m_shownScore;
};

} // namespace norvin
