#include "stats/StatsScreen.h"

#include "focus/PomodoroTimerService.h"
#include "platform/Clock.h"

#include <utility>

namespace norvin {

StatsScreen::StatsScreen(ModelContext& context, const QString& storeFile, PomodoroTimerService& timer,
                         Clock& clock, OfferUndo offerUndo, QObject* parent)
    : QObject(parent)
    , m_records(context, storeFile, clock)
    , m_today(m_records, timer, context)
    , m_history(m_records, timer, context)
    , m_explanation(context, storeFile, timer, m_records, m_today, m_history, std::move(offerUndo))
    , m_files(context, storeFile, clock,
              {.today = m_today,
               .history = m_history,
               .showsToday = [this] { return m_tab == QLatin1String("today"); }})
    , m_clock(clock) {
    connect(&m_records, &StatsRecords::changed, this, &StatsScreen::scheduleUpdate);
    connect(&m_history, &HistoryStatsView::periodChanged, this, &StatsScreen::showWaiting);
    connect(&timer, &PomodoroTimerService::stateChanged, this, &StatsScreen::updateLive);
    connect(&timer, &PomodoroTimerService::phaseChanged, this, &StatsScreen::updateLive);
    connect(&timer, &PomodoroTimerService::timeRemainingChanged, this, &StatsScreen::updateLive);
    connect(&timer, &PomodoroTimerService::countersChanged, this, &StatsScreen::updateLive);
    // Titles of tasks, and tasks that leave with their sessions.
    connect(&context, &ModelContext::taskChanged, this, [this] {
        if (m_isOpen) {
            m_today.sessions()->refreshTitles();
            m_history.recent()->refreshTitles();
        }
    });
}

StatsScreen::~StatsScreen() = default;

void StatsScreen::setTab(const QString& tab) {
    if (tab == m_tab || (tab != QLatin1String("today") && tab != QLatin1String("history")))
        return;
    m_tab = tab;
    // Only the page that is seen is kept up to date.
    if (m_isOpen && hasFigures())
        update();
    Q_EMIT tabChanged();
}

bool StatsScreen::hasFigures() const {
    return m_records.isComplete(StatsPeriod::today);
}

void StatsScreen::open() {
    if (m_isOpen)
        return;
    m_isOpen = true;
    m_patience = m_clock.after(patience, [this] {
        m_patience.reset();
        showWaiting();
    });
    m_records.acquire();
    update();
}

void StatsScreen::close() {
    if (!m_isOpen)
        return;
    m_isOpen = false;
    m_patience.reset();
    m_explanation.close();
    m_records.release();
    showWaiting();
}

void StatsScreen::refresh() {
    m_records.reload();
}

void StatsScreen::explain(const QString& what, const QString& key) {
    m_explanation.explain(m_tab, what, key);
}

void StatsScreen::refreshDay() {
    m_records.refreshDay();
}

void StatsScreen::retranslate(const QLocale& locale) {
    m_today.retranslate(locale);
    m_history.retranslate(locale);
    m_files.retranslate(locale);
    update();
    // After the pages, whose names it uses.
    m_explanation.retranslate(locale);
}

// Many records may come and go at once, as when a task is deleted or brought back.
void StatsScreen::scheduleUpdate() {
    if (m_isUpdateScheduled)
        return;
    m_isUpdateScheduled = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isUpdateScheduled = false;
            update();
        },
        Qt::QueuedConnection);
}

void StatsScreen::update() {
    if (!m_isOpen)
        return;
    if (m_tab == QLatin1String("today"))
        m_today.update();
    else
        m_history.update();
    showWaiting();
}

void StatsScreen::updateLive() {
    if (!m_isOpen)
        return;
    if (m_tab == QLatin1String("today"))
        m_today.updateLive();
    else
        m_history.updateLive();
}

void StatsScreen::showWaiting() {
    const bool isThere = m_tab == QLatin1String("today") ? hasFigures() : m_history.isComplete();
    m_isWaiting = m_isOpen && !m_patience && !isThere && m_records.problem().isEmpty();
    Q_EMIT waitingChanged();
}

} // namespace norvin
