#include "stats/HistoryStatsView.h"

#include "focus/PomodoroTimerService.h"
#include "stats/StatsFormats.h"
#include "stats/StatsRecords.h"
#include "stats/StatsShown.h"

#include <algorithm>
#include <utility>

namespace norvin {

HistoryStatsView::HistoryStatsView(const StatsRecords& records, const PomodoroTimerService& timerService,
                                   const ModelContext& context, QObject* parent)
    : QObject(parent)
    , m_records(records)
    , m_timerService(timerService)
    , m_focus(new ChartModel(this))
    , m_weekdays(new ChartModel(this))
    , m_categories(new ChartModel(this))
    , m_topApps(new AppTotalRows(this))
    , m_recent(new StatsSessionRows(context, this)) {}

HistoryStatsView::~HistoryStatsView() = default;

void HistoryStatsView::setPeriod(const QString& raw) {
    const std::optional<StatsPeriod> wanted = statsPeriodFromRawValue(raw);
    if (!wanted || *wanted == m_period)
        return;
    m_period = *wanted;
    Q_EMIT periodChanged();
    update();
}

QStringList HistoryStatsView::periods() const {
    QStringList raws;
    for (const StatsPeriod period : allStatsPeriods)
        raws.append(rawValue(period));
    return raws;
}

QStringList HistoryStatsView::periodNames() const {
    QStringList names;
    for (const StatsPeriod period : allStatsPeriods)
        names.append(periodName(period));
    return names;
}

bool HistoryStatsView::isComplete() const {
    return m_records.isComplete(m_period);
}

void HistoryStatsView::update() {
    const StatsTables& tables = m_records.tables();
    const SessionSpan sessions = filterSessions(tables.sessions(), m_period, m_records.today());
    const UsageSpan usage = filterAppUsages(tables.usage(), m_period, m_records.today());

    m_sessionCount = countSessions(sessions);
    m_recordedMinutes = focusMinutes(sessions, std::nullopt);
    m_recordedScores = sumScores(sessions);
    m_bestDay = norvin::bestDay(sessions);
    m_usageSeconds = norvin::usageSeconds(usage);
    m_hasUsage = !usage.empty();
    m_categories->setPoints(categoryPoints(aggregateByCategory(usage, tables.sources())));
    m_topApps->setRows(aggregateByApp(usage, tables.sources()).mid(0, topAppCount), m_usageSeconds);
    m_buckets = chartData(sessions, m_period, m_records.now(), tables.days(), std::nullopt);
    showWeekdays(sessions);
    showRecent(sessions);
    showBuckets();
    m_shownMinutes = periodFocusMinutes();
    m_shownScore = scoreText();
    Q_EMIT sectionsChanged();
    Q_EMIT figuresChanged();
}

void HistoryStatsView::showWeekdays(SessionSpan sessions) {
    const std::array<int, 7> minutes = buildWeekdayData(sessions);
    QList<ChartPoint> points;
    for (int day = 0; day < 7; ++day) {
        // The locale counts from 1 for Monday.
        points.append(minutesPoint(m_locale.standaloneDayName(day + 1, QLocale::ShortFormat),
                                   m_locale.standaloneDayName(day + 1, QLocale::LongFormat),
                                   minutes.at(static_cast<size_t>(day)), day));
    }
    m_weekdays->setPoints(std::move(points));
}

void HistoryStatsView::showRecent(SessionSpan sessions) {
    std::vector<SessionRow> rows;
    for (auto row = sessions.rbegin(); row != sessions.rend() && std::ssize(rows) < recentCount; ++row) {
        if (row->completed)
            rows.push_back(*row);
    }
    m_recent->setRows(std::move(rows), m_records.tables().days());
}

void HistoryStatsView::showBuckets() {
    const StatsDays& days = m_records.tables().days();
    const BucketUnit unit = bucketUnit(m_period);
    const std::optional<LiveWork> live = liveWork(m_timerService);
    const Instant now = m_records.now();
    QList<ChartPoint> points;
    points.reserve(static_cast<qsizetype>(m_buckets.size()));
    for (const TimeBucket& bucket : m_buckets) {
        const bool isCurrent = bucket.date <= now && (bucket.end.isNone() || now < bucket.end);
        const QDateTime start = days.dateTime(bucket.date);
        QString label;
        switch (unit) {
        case BucketUnit::hour:
            label = QString::number(start.time().hour());
            break;
        case BucketUnit::day:
            label = m_locale.toString(start.date(), qtTrId("date_day_month_short"));
            break;
        case BucketUnit::month:
            label = m_locale.toString(start.date(), qtTrId("date_month_year_short"));
            break;
        }
        const int minutes = bucket.minutes + (live && isCurrent ? live->minutes : 0);
        points.append(minutesPoint(label, bucketName(bucket.date, unit, days, m_locale), minutes,
                                   static_cast<int>(points.size())));
    }
    m_focus->setPoints(std::move(points));
}

void HistoryStatsView::updateLive() {
    const int minutes = periodFocusMinutes();
    const QString score = scoreText();
    if (minutes == m_shownMinutes && score == m_shownScore)
        return;
    if (minutes != m_shownMinutes)
        showBuckets();
    m_shownMinutes = minutes;
    m_shownScore = score;
    Q_EMIT figuresChanged();
}

void HistoryStatsView::retranslate(const QLocale& locale) {
    m_locale = locale;
    m_recent->setLocale(locale);
    m_topApps->retranslate();
    Q_EMIT periodChanged();
}

int HistoryStatsView::periodFocusMinutes() const {
    const std::optional<LiveWork> live = liveWork(m_timerService);
    return m_recordedMinutes + (live ? live->minutes : 0);
}

double HistoryStatsView::avgPeriodScore() const {
    ScoreSum scores = m_recordedScores;
    if (const std::optional<LiveWork> live = liveWork(m_timerService))
        scores.add(live->score);
    return scores.mean();
}

QString HistoryStatsView::sessionsText() const {
    return QString::number(m_sessionCount);
}

QString HistoryStatsView::focusText() const {
    return formatTime(periodFocusMinutes());
}

QString HistoryStatsView::scoreText() const {
    return formatScore(avgPeriodScore());
}

QString HistoryStatsView::bestDayText() const {
    return formatTime(bestDayMinutes());
}

QString HistoryStatsView::bestDayDate() const {
    return m_bestDay ? m_locale.toString(QDate::fromJulianDay(m_bestDay->day), QLocale::ShortFormat)
                     : QString();
}

} // namespace norvin
