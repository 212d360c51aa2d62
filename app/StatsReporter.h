#pragma once

#include "stats/StatsPeriod.h"

#include <QJsonObject>
#include <QObject>
#include <QString>

#include <functional>
#include <optional>
#include <variant>
#include <vector>

namespace norvin {

class ModelContext;
class PomodoroTimerService;
class StatsRecords;

/// Answers with the figures of the statistics page, whether that is open or not. The records are read
/// meanwhile where nobody has them, and let go when everybody has their answer. Main thread only.
class StatsReporter final : public QObject {
    Q_OBJECT
public:
    /// The report, or in English why there is none.
    using Answer = std::function<void(const std::variant<QJsonObject, QString>& outcome)>;

    /// Everything must outlive this.
    StatsReporter(StatsRecords& records, const PomodoroTimerService& timer, const ModelContext& context,
                  QObject* parent = nullptr);
    ~StatsReporter() override;

    /// Answers once, from the event loop; not at all where this is destroyed before.
    /// @param period that of the history page; none for the page of today
    void report(std::optional<StatsPeriod> period, Answer answer);

private:
    struct Question {
        std::optional<StatsPeriod> period;
        Answer answer;
    };
    void answerSoon();
    void answerAll();
    [[nodiscard]] QJsonObject reportFor(std::optional<StatsPeriod> period) const;

    StatsRecords& m_records;
    const PomodoroTimerService& m_timer;
    const ModelContext& m_context;
    std::vector<Question> m_questions;
    QMetaObject::Connection m_watch;
};

} // namespace norvin
