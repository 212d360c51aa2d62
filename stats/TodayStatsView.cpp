#include "stats/TodayStatsView.h"

#include "focus/PomodoroTimerService.h"
#include "stats/StatsFormats.h"
#include "stats/StatsRecords.h"
#include "stats/StatsShown.h"

#include <utility>

namespace norvin {

namespace {

// Every third hour has its number below the bar.
constexpr int labelledHours = 3;

} // namespace

TodayStatsView::TodayStatsView(const StatsRecords& records, const PomodoroTimerService& timerService,
                               const ModelContext& context, QObject* parent)
    : QObject(parent)
    , m_records(records)
    , m_timerService(timerService)
    , m_hourly(new ChartModel(this))
    , m_scores(new ChartModel(this))
    , m_categories(new ChartModel(this))
    , m_topApps(new AppTotalRows(this))
    , m_sessions(new StatsSessionRows(context, this)) {}

TodayStatsView::~TodayStatsView() = default;

void TodayStatsView::update() {
    const StatsTables& tables = m_records.tables();
    const SessionSpan sessions = sessionsOfDay(tables.sessions(), m_records.today());
    const UsageSpan usage = usageOfDay(tables.usage(), m_records.today());

    m_sessionCount = countSessions(sessions);
    m_recordedMinutes = focusMinutes(sessions, std::nullopt);
    m_recordedScores = sumScores(sessions);
    m_streak = computeStreak(tables.sessions(), m_records.today(), tables.days());
    m_usageSeconds = norvin::usageSeconds(usage);
    m_hasUsage = !usage.empty();
    m_categories->setPoints(categoryPoints(aggregateByCategory(usage, tables.sources())));
    m_topApps->setRows(aggregateByApp(usage, tables.sources()).mid(0, topAppCount), m_usageSeconds);
    m_sessions->setRows(completedRows(sessions), tables.days());
    showHours(sessions);
    showScores();
    m_shownMinutes = todayFocusMinutes();
    m_shownScore = scoreText();
    Q_EMIT sectionsChanged();
    Q_EMIT figuresChanged();
}

void TodayStatsView::showHours(SessionSpan sessions) {
    const std::array<int, 24> minutes = buildHourlyData(sessions, m_records.tables().days());
    QList<ChartPoint> points;
    for (int hour = 0; hour < 24; ++hour) {
        const QString name = m_locale.toString(QTime(hour, 0), QLocale::ShortFormat);
        points.append(minutesPoint(hour % labelledHours == 0 ? QString::number(hour) : QString(), name,
                                   minutes.at(static_cast<size_t>(hour)), hour));
    }
    m_hourly->setPoints(std::move(points));
}

void TodayStatsView::showScores() {
    QList<ChartPoint> points;
    for (const SessionRow& session : m_sessions->rows()) {
        if (!session.score)
            continue;
        const QString time =
            m_locale.toString(m_records.tables().days().dateTime(session.start).time(), QLocale::ShortFormat);
        points.append({.label = time,
                       .name = time,
                       .value = *session.score,
                       .valueText = formatScore(*session.score),
                       .key = session.id.toString()});
    }
    m_scores->setPoints(std::move(points));
}

void TodayStatsView::updateLive() {
    const int minutes = todayFocusMinutes();
    const QString score = scoreText();
    if (minutes == m_shownMinutes && score == m_shownScore)
        return;
    m_shownMinutes = minutes;
    m_shownScore = score;
    Q_EMIT figuresChanged();
}

void TodayStatsView::retranslate(const QLocale& locale) {
    m_locale = locale;
    m_sessions->setLocale(locale);
    m_topApps->retranslate();
}

int TodayStatsView::todayFocusMinutes() const {
    const std::optional<LiveWork> live = liveWork(m_timerService);
    return m_recordedMinutes + (live ? live->minutes : 0);
}

double TodayStatsView::todayAverageScore() const {
    ScoreSum scores = m_recordedScores;
    if (const std::optional<LiveWork> live = liveWork(m_timerService))
        scores.add(live->score);
    return scores.mean();
}

QString TodayStatsView::sessionsText() const {
    return QString::number(m_sessionCount);
}

QString TodayStatsView::focusText() const {
    return formatTime(todayFocusMinutes());
}

QString TodayStatsView::scoreText() const {
    return formatScore(todayAverageScore());
}

QString TodayStatsView::streakText() const {
    return qtTrId("kpi_streak_unit", m_streak);
}

QString TodayStatsView::appsText() const {
    return formatTime(todayAppMinutes());
}

} // namespace norvin
