#include "stats/StatsExplanation.h"

#include "focus/PomodoroTimerService.h"
#include "model/ModelContext.h"
#include "stats/FigureTexts.h"
#include "stats/HistoryStatsView.h"
#include "stats/StatsRecords.h"
#include "stats/StatsShown.h"
#include "stats/TodayStatsView.h"

#include <QtGlobal>

#include <algorithm>
#include <utility>

namespace norvin {

namespace {

/// The name of a point of a chart; empty where there is no such point.
QString nameOf(const ChartModel& chart, const QString& place) {
    return chart.points().value(place.toInt()).name;
}

const SessionRow* find(SessionSpan sessions, const SessionId& id) {
    const auto found = std::find_if(sessions.begin(), sessions.end(),
                                    [&id](const SessionRow& session) { return session.id == id; });
    return found == sessions.end() ? nullptr : &*found;
}

void saveQuietly(ModelContext& context) {
    // What cannot be saved stays in memory, is shown as unsaved and tried again.
    static_cast<void>(context.save());
}

} // namespace

StatsExplanation::StatsExplanation(ModelContext& context, const QString& storeFile,
                                   const PomodoroTimerService& timer, StatsRecords& records,
                                   TodayStatsView& today, HistoryStatsView& history, OfferUndo offerUndo,
                                   QObject* parent)
    : QObject(parent)
    , m_context(context)
    , m_timer(timer)
    , m_records(records)
    , m_today(today)
    , m_history(history)
    , m_offerUndo(std::move(offerUndo))
    , m_rows(new ExplanationRows(context, this))
    , m_intervals(new UsageIntervalRows(context, storeFile, this))
    , m_session(new SessionDetail(context, this)) {
    connect(&m_records, &StatsRecords::changed, this, &StatsExplanation::scheduleUpdate);
    connect(&m_history, &HistoryStatsView::sectionsChanged, this, &StatsExplanation::scheduleUpdate);
    connect(&m_timer, &PomodoroTimerService::stateChanged, this, &StatsExplanation::scheduleUpdate);
    connect(&m_timer, &PomodoroTimerService::phaseChanged, this, &StatsExplanation::scheduleUpdate);
    connect(&m_timer, &PomodoroTimerService::timeRemainingChanged, this, &StatsExplanation::updateLive);
    connect(&m_timer, &PomodoroTimerService::countersChanged, this, &StatsExplanation::updateLive);
    connect(&m_context, &ModelContext::taskChanged, m_rows, &ExplanationRows::refreshTitles);
}

StatsExplanation::~StatsExplanation() = default;

std::optional<FigureQuestion> StatsExplanation::questionAbout(const QString& tab, const QString& what,
                                                              const QString& key) const {
    const std::optional<Figure> figure = figureFromRawValue(what);
    if (!figure)
        return std::nullopt;
    FigureQuestion question{
        .figure = *figure, .key = key, .period = {}, .date = {}, .from = {}, .to = {}, .category = {}};
    if (tab == QLatin1String("history"))
        question.period = m_history.statsPeriod();
    if (*figure == Figure::bucket) {
        const std::vector<TimeBucket>& buckets = m_history.buckets();
        bool isNumber = false;
        const auto place = key.toULongLong(&isNumber);
        if (!question.period || !isNumber || place >= buckets.size())
            return std::nullopt;
        question.date = buckets[place].date;
        // Whatever lies before the first one belongs to it.
        if (place > 0)
            question.from = question.date;
        question.to = buckets[place].end;
    }
    return question;
}

void StatsExplanation::explain(const QString& tab, const QString& what, const QString& key) {
    // A point of the evolution of the score is one session.
    const bool isSession =
        what == QLatin1String("session") || (what == QLatin1String("score") && !key.isEmpty());
    Place place;
    if (isSession) {
        place.session = SessionId(QUuid(key));
        place.level = OneSession;
        if (find(m_records.tables().sessions(), place.session) == nullptr)
            return;
    } else {
        const std::optional<FigureQuestion> question = questionAbout(tab, what, key);
        if (!question)
            return;
        place.question = *question;
        place.level = question->figure == Figure::application ? Intervals : Records;
    }
    if (!isPresented())
        m_records.acquire();
    m_places.clear();
    enter(std::move(place));
}

void StatsExplanation::enter(Place place) {
    m_places.push_back(std::move(place));
    show();
}

void StatsExplanation::open(int row) {
    if (level() != Records || row < 0 || row >= m_rows->rowCount())
        return;
    Place& here = m_places.back();
    const FigureRecord& record = m_rows->records()[static_cast<size_t>(row)];
    Place next;
    if (const auto* session = std::get_if<SessionRow>(&record)) {
        next.level = OneSession;
        next.session = session->id;
    } else if (const auto* day = std::get_if<DayCount>(&record)) {
        next.question = here.question;
        next.question.figure = Figure::day;
        next.question.key = QString::number(day->day);
    } else if (const auto* total = std::get_if<AppTotal>(&record)) {
        next.level = Intervals;
        next.question = here.question;
        next.question.figure = Figure::application;
        next.question.key = total->bundleID;
        if (here.question.figure == Figure::category)
            next.question.category = here.question.key;
    } else {
        return;
    }
    here.row = row;
    enter(std::move(next));
}

void StatsExplanation::back() {
    if (!isPresented())
        return;
    m_places.pop_back();
    if (!isPresented())
        m_records.release();
    show();
}

void StatsExplanation::close() {
    if (!isPresented())
        return;
    m_places.clear();
    m_records.release();
    show();
}

void StatsExplanation::chooseTask() {
    // There is none for the moment in which all records are read again for another time zone.
    if (level() != OneSession || !m_session->session())
        return;
    m_session->tasks()->open(m_session->session()->task);
    Place place;
    place.level = TaskChoice;
    place.session = m_places.back().session;
    enter(std::move(place));
}

void StatsExplanation::setTask(int row) {
    if (level() != TaskChoice || row < 0 || row >= m_session->tasks()->rowCount())
        return;
    const std::optional<TaskId> task = m_session->tasks()->taskAt(row);
    SessionRow session = *m_session->session();
    const std::optional<TaskId> before = std::exchange(session.task, task);
    const bool isChanged = m_context.setSessionTask(session.id, task);
    back();
    if (!isChanged)
        return;
    saveQuietly(m_context);
    // The records are read again in a moment.
    m_session->show(session, m_records.tables().days().zone());
    m_offerUndo(task ? qtTrId("undo_session_task_format").arg(m_session->taskTitle())
                     : qtTrId("undo_session_no_task"),
                [&context = m_context, id = session.id, before] {
                    // Where the task is gone, this changes nothing.
                    static_cast<void>(context.setSessionTask(id, before));
                });
}

void StatsExplanation::deleteSession() {
    if (level() != OneSession)
        return;
    const std::optional<Session> session = m_context.session(m_places.back().session);
    const QString text = qtTrId("undo_session_deleted_format").arg(m_session->when());
    back();
    if (!session)
        return;
    m_context.remove(session->id);
    saveQuietly(m_context);
    m_offerUndo(text, [&context = m_context, session = *session] { context.insert(session); });
}

FigureMoment StatsExplanation::moment() const {
    return {.now = m_records.now(), .today = m_records.today(), .live = liveWork(m_timer)};
}

bool StatsExplanation::isComplete() const {
    if (!isPresented() || level() == OneSession || level() == TaskChoice)
        return true;
    const FigureQuestion& question = m_places.back().question;
    return question.figure == Figure::streak || question.figure == Figure::day
               ? m_records.isComplete()
               : m_records.isComplete(question.period.value_or(StatsPeriod::today));
}

// Fills what the level that is now the last one shows; what the others showed is given back.
void StatsExplanation::show() {
    const StatsDays& days = m_records.tables().days();
    const bool isSession = level() == OneSession || level() == TaskChoice;
    if (!isSession || !isPresented())
        m_session->clear();
    if (level() != TaskChoice)
        m_session->tasks()->close();
    if (level() != Intervals)
        m_intervals->clear();
    m_rows->setRecords({}, days);
    if (isPresented()) {
        const Place& here = m_places.back();
        if (level() == Records)
            m_rows->setRecords(recordsBehind(here.question, m_records.tables(), moment()), days);
        else if (level() == Intervals)
            m_intervals->show(usageQuestion(here.question, days, m_records.today()), days.zone());
        else if (const SessionRow* session = find(m_records.tables().sessions(), here.session))
            m_session->show(*session, days.zone());
    }
    describe();
    Q_EMIT levelChanged();
}

void StatsExplanation::describe() {
    m_title.clear();
    m_scopeText.clear();
    m_figureText.clear();
    m_ruleText.clear();
    m_sumText.clear();
    if (isPresented()) {
        const FigureQuestion& question = m_places.back().question;
        QString name;
        FigureSum sum;
        switch (level()) {
        case Records:
            if (question.figure == Figure::hour)
                name = nameOf(*m_today.hourly(), question.key);
            else if (question.figure == Figure::weekday)
                name = nameOf(*m_history.weekdays(), question.key);
            else if (question.figure == Figure::bucket)
                name = bucketName(question.date, bucketUnit(*question.period), m_records.tables().days(),
                                  m_locale);
            sum = sumOf(m_rows->records());
            m_sumText = figureSumText(question.figure, sum);
            break;
        case Intervals: {
            const UsageSum intervals = sumOfIntervals(question, m_records.tables(), m_records.today());
            name = intervals.total.name;
            sum.seconds = intervals.total.duration;
            m_sumText = intervalSumText(intervals);
            break;
        }
        case OneSession:
        case TaskChoice:
            break;
        }
        if (level() == OneSession || level() == TaskChoice) {
            m_title = level() == OneSession ? qtTrId("session_detail_title") : qtTrId("session_task_title");
            m_scopeText = m_session->when();
        } else {
            m_title = figureTitle(question, name, m_locale);
            m_scopeText = figureScope(question);
            m_figureText = figureValue(question.figure, sum);
            m_ruleText = figureRule(question.figure);
        }
    }
    Q_EMIT contentChanged();
}

// Many records may come and go at once, as when a task is deleted or brought back.
void StatsExplanation::scheduleUpdate() {
    if (!isPresented() || std::exchange(m_isUpdateScheduled, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isUpdateScheduled = false;
            if (isPresented())
                update();
        },
        Qt::QueuedConnection);
}

// After midnight a bucket has another place in the chart, and the one that was the last has an end.
void StatsExplanation::followBucket() {
    FigureQuestion& question = m_places.front().question;
    if (question.figure != Figure::bucket || question.period != m_history.statsPeriod())
        return;
    const std::vector<TimeBucket>& buckets = m_history.buckets();
    const auto found = std::find_if(buckets.cbegin(), buckets.cend(), [&question](const TimeBucket& bucket) {
        return bucket.date == question.date;
    });
    if (found == buckets.cend())
        return;
    question.from = found == buckets.cbegin() ? Instant() : found->date;
    question.to = found->end;
}

void StatsExplanation::update() {
    followBucket();
    const StatsDays& days = m_records.tables().days();
    switch (level()) {
    case Records:
        m_rows->updateRecords(recordsBehind(m_places.back().question, m_records.tables(), moment()), days);
        break;
    case Intervals: {
        // Of another day after midnight; what is recorded, they follow by themselves.
        const UsageQuestion question = usageQuestion(m_places.back().question, days, m_records.today());
        if (!m_intervals->shows(question, days.zone()))
            m_intervals->show(question, days.zone());
        break;
    }
    case OneSession:
    case TaskChoice:
        if (const SessionRow* session = find(m_records.tables().sessions(), m_places.back().session)) {
            m_session->show(*session, days.zone());
        } else if (m_records.isComplete()) {
            // Somebody deleted it, perhaps with its task.
            const SessionId gone = m_places.back().session;
            while (isPresented() && m_places.back().session == gone)
                m_places.pop_back();
            if (!isPresented())
                m_records.release();
            show();
            return;
        }
        break;
    }
    describe();
}

void StatsExplanation::updateLive() {
    if (!isPresented() || level() != Records)
        return;
    const std::optional<LiveWork> live = liveWork(m_timer);
    const bool counts = live && countsLive(m_places.back().question, m_records.now());
    const bool isListed =
        !m_rows->records().empty() && std::holds_alternative<LiveWork>(m_rows->records().front());
    if (counts != isListed) {
        // It has gone over into another bucket, or is over.
        scheduleUpdate();
    } else if (isListed) {
        m_rows->setLive(*live);
        describe();
    }
}

void StatsExplanation::retranslate(const QLocale& locale) {
    m_locale = locale;
    m_rows->setLocale(locale);
    m_intervals->setLocale(locale);
    m_session->retranslate(locale);
    describe();
}

} // namespace norvin
