#pragma once

#include "stats/SessionTaskList.h"
#include "stats/StatsTables.h"

#include <QLocale>
#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace norvin {

/// One recorded session, its score taken apart, and the choice of another task for it. Main thread only.
class SessionDetail final : public QObject {
    Q_OBJECT
    /// When it began: the day in full, and the time.
    Q_PROPERTY(QString when READ when NOTIFY changed)
    Q_PROPERTY(QString duration READ duration NOTIFY changed)
    Q_PROPERTY(QString scoreText READ scoreText NOTIFY changed)
    /// The terms of the score and their points, by the same index; they add up to the total.
    Q_PROPERTY(QStringList termLabels READ termLabels NOTIFY changed)
    Q_PROPERTY(QStringList termPoints READ termPoints NOTIFY changed)
    Q_PROPERTY(QString totalPoints READ totalPoints NOTIFY changed)
    /// Why there is no score, or why it says nothing; empty where the terms explain it.
    Q_PROPERTY(QString scoreNote READ scoreNote NOTIFY changed)
    /// Title of the task, or that there is none, and the name of its project, which may be empty.
    Q_PROPERTY(QString taskTitle READ taskTitle NOTIFY changed)
    Q_PROPERTY(QString projectName READ projectName NOTIFY changed)
    Q_PROPERTY(QString projectColor READ projectColor NOTIFY changed)
    Q_PROPERTY(norvin::SessionTaskList* tasks READ tasks CONSTANT)
public:
    /// @param context must outlive this
    SessionDetail(ModelContext& context, QObject* parent);

    /// @param zone in which times are written
    void show(const SessionRow& session, const QTimeZone& zone);
    /// None while nothing is shown.
    [[nodiscard]] const std::optional<SessionRow>& session() const { return m_session; }
    void clear();
    void retranslate(const QLocale& locale);

    [[nodiscard]] const QString& when() const { return m_when; }
    [[nodiscard]] QString duration() const;
    [[nodiscard]] QString scoreText() const;
    [[nodiscard]] const QStringList& termLabels() const { return m_termLabels; }
    [[nodiscard]] const QStringList& termPoints() const { return m_termPoints; }
    [[nodiscard]] const QString& totalPoints() const { return m_totalPoints; }
    [[nodiscard]] const QString& scoreNote() const { return m_scoreNote; }
    [[nodiscard]] QString taskTitle() const;
    [[nodiscard]] QString projectName() const;
    [[nodiscard]] QString projectColor() const;
    [[nodiscard]] SessionTaskList* tasks() const { return m_tasks; }

Q_SIGNALS:
    void changed();

private:
    void describe();
    void addTerm(const QString& label, int hundredths);
    [[nodiscard]] QString points(int hundredths) const;
    [[nodiscard]] const TaskItem* task() const;

    ModelContext& m_context;
    QLocale m_locale;
    QTimeZone m_zone;
    SessionTaskList* m_tasks;
    std::optional<SessionRow> m_session;
    QString m_when;
    QStringList m_termLabels;
    QStringList m_termPoints;
    QString m_totalPoints;
    QString m_scoreNote;
};

} // namespace norvin
