#pragma once

#include "stats/AppTotalRows.h"
#include "stats/ChartModel.h"
#include "stats/StatsSessionRows.h"

#include <QLocale>
#include <QObject>
#include <QString>

namespace norvin {

class PomodoroTimerService;
class StatsRecords;

/// The page about today. Its figures follow the records and, second by second, the work phase that runs.
/// Main thread only.
class TodayStatsView final : public QObject {
    Q_OBJECT
    // The headline figures, as they are written.
    Q_PROPERTY(QString sessionsText READ sessionsText NOTIFY figuresChanged)
    Q_PROPERTY(QString focusText READ focusText NOTIFY figuresChanged)
    Q_PROPERTY(QString scoreText READ scoreText NOTIFY figuresChanged)
    Q_PROPERTY(QString streakText READ streakText NOTIFY figuresChanged)
    Q_PROPERTY(QString appsText READ appsText NOTIFY figuresChanged)
    /// Whether any completed session of today took a minute.
    Q_PROPERTY(bool hasHours READ hasHours NOTIFY sectionsChanged)
    Q_PROPERTY(bool hasScores READ hasScores NOTIFY sectionsChanged)
    Q_PROPERTY(bool hasUsage READ hasUsage NOTIFY sectionsChanged)
    Q_PROPERTY(bool hasSessions READ hasSessions NOTIFY sectionsChanged)
    /// 24 points: minutes by hour.
    Q_PROPERTY(norvin::ChartModel* hourly READ hourly CONSTANT)
    /// The scores of today's sessions, in the order of their start.
    Q_PROPERTY(norvin::ChartModel* scores READ scores CONSTANT)
    /// Seconds by category; the key is the category as it is stored.
    Q_PROPERTY(norvin::ChartModel* categories READ categories CONSTANT)
    /// The five that were used most.
    Q_PROPERTY(norvin::AppTotalRows* topApps READ topApps CONSTANT)
    /// Today's completed sessions, the first of the day first.
    Q_PROPERTY(norvin::StatsSessionRows* sessions READ sessions CONSTANT)
public:
    static constexpr int topAppCount = 5;

    /// Everything must outlive this.
    TodayStatsView(const StatsRecords& records, const PomodoroTimerService& timerService,
                   const ModelContext& context, QObject* parent = nullptr);
    ~TodayStatsView() override;

    [[nodiscard]] QString sessionsText() const;
    [[nodiscard]] QString focusText() const;
    [[nodiscard]] QString scoreText() const;
    [[nodiscard]] QString streakText() const;
    [[nodiscard]] QString appsText() const;
    [[nodiscard]] bool hasHours() const { return m_hourly->largest() > 0; }
    [[nodiscard]] bool hasScores() const { return m_scores->rowCount() > 0; }
    [[nodiscard]] bool hasUsage() const { return m_hasUsage; }
    [[nodiscard]] bool hasSessions() const { return m_sessions->rowCount() > 0; }
    [[nodiscard]] ChartModel* hourly() const { return m_hourly; }
    [[nodiscard]] ChartModel* scores() const { return m_scores; }
    [[nodiscard]] ChartModel* categories() const { return m_categories; }
    [[nodiscard]] AppTotalRows* topApps() const { return m_topApps; }
    [[nodiscard]] StatsSessionRows* sessions() const { return m_sessions; }

    // What the figures stand for.
    [[nodiscard]] int sessionCount() const { return m_sessionCount; }
    /// The work phase that runs included.
    [[nodiscard]] int todayFocusMinutes() const;
    [[nodiscard]] double todayAverageScore() const;
    [[nodiscard]] int streak() const { return m_streak; }
    [[nodiscard]] int todayAppMinutes() const { return static_cast<int>(m_usageSeconds / 60); }

    /// Computes everything anew from the records.
    void update();
    /// What the timer adds may have changed.
    void updateLive();
    /// The texts in the language of now; those of the records with the next update().
    void retranslate(const QLocale& locale);

Q_SIGNALS:
    void figuresChanged();
    void sectionsChanged();

private:
    void showHours(SessionSpan sessions);
    void showScores();

    const StatsRecords& m_records;
    const PomodoroTimerService& m_timerService;
    QLocale m_locale;
    ChartModel* m_hourly;
    ChartModel* m_scores;
    ChartModel* m_categories;
    AppTotalRows* m_topApps;
    StatsSessionRows* m_sessions;
    int m_sessionCount = 0;
    int m_recordedMinutes = 0;
    ScoreSum m_recordedScores;
    int m_streak = 0;
    qint64 m_usageSeconds = 0;
    bool m_hasUsage = false;
    // What moves with the timer, as it was last told.
    int m_shownMinutes = 0;
    QString m_shownScore;
};

} // namespace norvin
