#include "stats/SessionDetail.h"

#include "model/ModelContext.h"
#include "stats/SessionScoreTerms.h"
#include "stats/StatsFormats.h"

#include <QtGlobal>

#include <cmath>
#include <cstdlib>

namespace norvin {

SessionDetail::SessionDetail(ModelContext& context, QObject* parent)
    : QObject(parent)
    , m_context(context)
    , m_zone(QTimeZone::utc())
    , m_tasks(new SessionTaskList(context, this)) {
    const auto follow = [this](const TaskItem* task) {
        if (m_session && m_session->task == task->id())
            Q_EMIT changed();
    };
    connect(&m_context, &ModelContext::taskChanged, this, follow);
}

void SessionDetail::show(const SessionRow& session, const QTimeZone& zone) {
    m_session = session;
    m_zone = zone;
    describe();
}

void SessionDetail::clear() {
    m_session.reset();
    m_tasks->close();
    describe();
}

void SessionDetail::retranslate(const QLocale& locale) {
    m_locale = locale;
    m_tasks->retranslate();
    describe();
}

void SessionDetail::describe() {
    m_when.clear();
    m_termLabels.clear();
    m_termPoints.clear();
    m_totalPoints.clear();
    m_scoreNote.clear();
    if (m_session) {
        const SessionRow& session = *m_session;
        const QDateTime start = QDateTime::fromMSecsSinceEpoch(session.start.milliseconds(), m_zone);
        m_when = qtTrId("date_at_time")
                     .arg(m_locale.toString(start.date(), QLocale::LongFormat),
                          m_locale.toString(start.time(), QLocale::ShortFormat));
        const SessionScoreTerms terms = sessionScoreTerms(session);
        const int measured = session.legitimateTimeSeconds + session.distractedTimeSeconds;
        if (!terms.hasScore) {
            m_scoreNote = terms.hasEnoughData ? qtTrId("session_score_missing")
                                              : qtTrId("session_score_not_measured", measured);
        } else {
            if (terms.hasEnoughData) {
                addTerm(qtTrId("score_term_ratio").arg(std::lround(terms.ratio * 100)), terms.ratioPoints);
                addTerm(qtTrId("score_term_interruptions", session.interruptionCount),
                        -terms.interruptionPenalty);
                addTerm(qtTrId("score_term_app_attempts", session.blockedAttemptsCount),
                        -terms.blockedAttemptsPenalty);
                addTerm(qtTrId("score_term_site_attempts", session.blockedSiteAttemptsCount),
                        -terms.blockedSiteAttemptsPenalty);
            } else {
                m_scoreNote = qtTrId("session_score_not_measured", measured);
            }
            if (terms.remainder != 0)
                addTerm(qtTrId("session_score_remainder"), terms.remainder);
            m_totalPoints = points(terms.score);
        }
    }
    Q_EMIT changed();
}

void SessionDetail::addTerm(const QString& label, int hundredths) {
    m_termLabels.append(label);
    // What comes first is not added to anything.
    const QString sign = hundredths < 0                              ? QString(QChar(0x2212))
                         : m_termPoints.isEmpty() || hundredths == 0 ? QString()
                                                                     : QStringLiteral("+");
    m_termPoints.append(sign + points(std::abs(hundredths)));
}

QString SessionDetail::points(int hundredths) const {
    return m_locale.toString(hundredths / 100.0, 'f', 2);
}

QString SessionDetail::duration() const {
    return m_session ? formatTime(m_session->durationMinutes) : QString();
}

QString SessionDetail::scoreText() const {
    return m_session && m_session->score ? formatScore(*m_session->score) : QString();
}

const TaskItem* SessionDetail::task() const {
    return m_session && m_session->task ? m_context.task(*m_session->task) : nullptr;
}

QString SessionDetail::taskTitle() const {
    return task() != nullptr ? task()->title() : qtTrId("free_session");
}

QString SessionDetail::projectName() const {
    return task() != nullptr && task()->project() != nullptr ? task()->project()->name() : QString();
}

QString SessionDetail::projectColor() const {
    return task() != nullptr && task()->project() != nullptr ? task()->project()->colorHex() : QString();
}

} // namespace norvin
