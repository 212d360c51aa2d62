#pragma once

#include "model/Session.h"
#include "stats/ExplanationRows.h"
#include "stats/FigureRecords.h"
#include "stats/SessionDetail.h"
#include "stats/UsageIntervalRows.h"

#include <QLocale>
#include <QObject>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace norvin {

class HistoryStatsView;
class ModelContext;
class PomodoroTimerService;
class StatsRecords;
class TodayStatsView;

/// Where a figure comes from: the records behind it, level by level down to a single session or interval.
/// What is shown follows the records and the work phase that runs. Main thread only.
class StatsExplanation final : public QObject {
    Q_OBJECT
    /// Whether anything is being explained.
    Q_PROPERTY(bool isPresented READ isPresented NOTIFY levelChanged)
    Q_PROPERTY(Level level READ level NOTIFY levelChanged)
    /// Whether back() leads to a level that was shown before.
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY levelChanged)
    /// The row that the level was left at, when it is shown again; else 0.
    Q_PROPERTY(int place READ place NOTIFY levelChanged)
    /// What is explained, and of which days.
    Q_PROPERTY(QString title READ title NOTIFY contentChanged)
    Q_PROPERTY(QString scopeText READ scopeText NOTIFY contentChanged)
    /// The figure as it is written, and how it comes about, as a sentence.
    Q_PROPERTY(QString figureText READ figureText NOTIFY contentChanged)
    Q_PROPERTY(QString ruleText READ ruleText NOTIFY contentChanged)
    /// How many records there are, and what they add up to.
    Q_PROPERTY(QString sumText READ sumText NOTIFY contentChanged)
    /// Whether all records of the figure were read; until then, those that were are shown.
    Q_PROPERTY(bool isComplete READ isComplete NOTIFY contentChanged)
    Q_PROPERTY(norvin::ExplanationRows* records READ records CONSTANT)
    Q_PROPERTY(norvin::UsageIntervalRows* intervals READ intervals CONSTANT)
    Q_PROPERTY(norvin::SessionDetail* session READ session CONSTANT)
public:
    enum Level {
        Records,   ///< sessions, days or applications
        Intervals, ///< those of one application
        OneSession,
        TaskChoice ///< another task for it
    };
    Q_ENUM(Level)

    /// Offers to take back what was just done: a sentence about it, and what takes it back.
    using OfferUndo = std::function<void(const QString& text, std::function<void()> takeBack)>;

    /// Everything must outlive this. @param storeFile that of the context; empty for a store in memory
    StatsExplanation(ModelContext& context, const QString& storeFile, const PomodoroTimerService& timer,
                     StatsRecords& records, TodayStatsView& today, HistoryStatsView& history,
                     OfferUndo offerUndo, QObject* parent = nullptr);
    ~StatsExplanation() override;

    [[nodiscard]] bool isPresented() const { return !m_places.empty(); }
    [[nodiscard]] Level level() const { return isPresented() ? m_places.back().level : Records; }
    [[nodiscard]] bool canGoBack() const { return m_places.size() > 1; }
    [[nodiscard]] int place() const { return isPresented() ? m_places.back().row : 0; }
    [[nodiscard]] const QString& title() const { return m_title; }
    [[nodiscard]] const QString& scopeText() const { return m_scopeText; }
    [[nodiscard]] const QString& figureText() const { return m_figureText; }
    [[nodiscard]] const QString& ruleText() const { return m_ruleText; }
    [[nodiscard]] const QString& sumText() const { return m_sumText; }
    [[nodiscard]] bool isComplete() const;
    [[nodiscard]] ExplanationRows* records() const { return m_rows; }
    [[nodiscard]] UsageIntervalRows* intervals() const { return m_intervals; }
    [[nodiscard]] SessionDetail* session() const { return m_session; }

    /// Begins with a figure, bar, slice or row. A question that there is no answer to does nothing.
    /// @param tab "today" or "history"
    /// @param what and @param key as of StatsScreen::explain()
    void explain(const QString& tab, const QString& what, const QString& key);
    /// Opens the row of a list of records; one with nothing behind it does nothing.
    Q_INVOKABLE void open(int row);
    /// Opens the choice of another task for the session that is shown.
    Q_INVOKABLE void chooseTask();
    /// Gives the session that is shown the task of a row of the choice, and goes back.
    Q_INVOKABLE void setTask(int row);
    /// Deletes the session that is shown, and goes back.
    Q_INVOKABLE void deleteSession();
    /// To the level before; from the first one, out.
    Q_INVOKABLE void back();
    Q_INVOKABLE void close();

    void retranslate(const QLocale& locale);

Q_SIGNALS:
    void levelChanged();
    void contentChanged();

private:
    struct Place {
        Level level = Records;
        FigureQuestion question = {};
        SessionId session = {};
        /// Row that was opened from here.
        int row = 0;
    };
    void enter(Place place);
    void show();
    void describe();
    void scheduleUpdate();
    void followBucket();
    void update();
    void updateLive();
    [[nodiscard]] FigureMoment moment() const;
    [[nodiscard]] std::optional<FigureQuestion> questionAbout(const QString& tab, const QString& what,
                                                              const QString& key) const;

    ModelContext& m_context;
    const PomodoroTimerService& m_timer;
    StatsRecords& m_records;
    TodayStatsView& m_today;
    HistoryStatsView& m_history;
    OfferUndo m_offerUndo;
    QLocale m_locale;
    ExplanationRows* m_rows;
    UsageIntervalRows* m_intervals;
    SessionDetail* m_session;
    std::vector<Place> m_places;
    QString m_title;
    QString m_scopeText;
    QString m_figureText;
    QString m_ruleText;
    QString m_sumText;
    bool m_isUpdateScheduled = false;
};

} // namespace norvin
