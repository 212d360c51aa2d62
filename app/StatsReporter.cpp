#include "app/StatsReporter.h"

#include "app/StatsReport.h"
#include "stats/HistoryStatsView.h"
#include "stats/StatsRecords.h"
#include "stats/TodayStatsView.h"

#include <utility>

namespace norvin {

StatsReporter::StatsReporter(StatsRecords& records, const PomodoroTimerService& timer,
                             const ModelContext& context, QObject* parent)
    : QObject(parent)
    , m_records(records)
    , m_timer(timer)
    , m_context(context) {}

StatsReporter::~StatsReporter() {
    disconnect(m_watch);
    if (!m_questions.empty())
        m_records.release();
}

void StatsReporter::report(std::optional<StatsPeriod> period, Answer answer) {
    m_questions.push_back({period, std::move(answer)});
    if (m_questions.size() == 1) {
        m_watch = connect(&m_records, &StatsRecords::changed, this, &StatsReporter::answerSoon);
        m_records.acquire();
    }
    answerSoon();
}

// The records tell of a change from within what they do; they are let go outside of it.
void StatsReporter::answerSoon() {
    QMetaObject::invokeMethod(this, &StatsReporter::answerAll, Qt::QueuedConnection);
}

void StatsReporter::answerAll() {
    if (m_questions.empty())
        return;
    // In another time zone everything is read again first.
    m_records.refreshDay();
    // The streak, and the intervals of long ago, are in no figure before everything is there.
    if (!m_records.isComplete() && m_records.problem().isEmpty())
        return;
    disconnect(m_watch);
    // An answer may bring the next question.
    const std::vector<Question> questions = std::exchange(m_questions, {});
    const QString problem = m_records.isComplete() ? QString() : m_records.problem();
    std::vector<std::variant<QJsonObject, QString>> outcomes;
    for (const Question& question : questions) {
        if (problem.isEmpty())
            outcomes.emplace_back(reportFor(question.period));
        else
            outcomes.emplace_back(problem);
    }
    m_records.release();
    for (size_t i = 0; i < questions.size(); ++i)
        questions[i].answer(outcomes[i]);
}

QJsonObject StatsReporter::reportFor(std::optional<StatsPeriod> period) const {
    if (period) {
        HistoryStatsView history(m_records, m_timer, m_context);
        history.setPeriod(rawValue(*period));
        history.update();
        return historyReport(history, m_records, m_context);
    }
    TodayStatsView today(m_records, m_timer, m_context);
    today.update();
    return todayReport(today, m_records, m_context);
}

} // namespace norvin
