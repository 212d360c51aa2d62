#pragma once

#include "model/Project.h"
#include "model/ProjectPhase.h"
#include "planning/AgendaCalendarPopover.h"
#include "planning/FilteredTaskList.h"
#include "planning/TaskEntryChips.h"
#include "planning/TaskEntryParser.h"

#include <QDateTime>
#include <QLocale>
#include <QObject>
#include <QString>
#include <QVariantList>

#include <optional>

namespace norvin {

/// New tasks from one line each. What the line says is shown before it is saved, and can be chosen with the
/// pointer instead: what is chosen holds for the following lines too, unless a line says otherwise. Main
/// thread only.
class QuickAddEntry final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString line READ line WRITE setLine NOTIFY lineChanged)
    /// The title that the task would get.
    Q_PROPERTY(QString title READ title NOTIFY understood)
    Q_PROPERTY(norvin::TaskEntryChips* chips READ chips CONSTANT)
    /// Maps with "id", "name" and "color"; the first stands for none.
    Q_PROPERTY(QVariantList projects READ projects NOTIFY choicesChanged)
    /// The same for the phases of the project; empty without one.
    Q_PROPERTY(QVariantList phases READ phases NOTIFY choicesChanged)
    /// Empty for none; the same for phaseId.
    Q_PROPERTY(QString projectId READ projectId WRITE chooseProject NOTIFY understood)
    Q_PROPERTY(QString phaseId READ phaseId WRITE choosePhase NOTIFY understood)
    /// "low", "medium" or "high".
    Q_PROPERTY(QString priority READ priority WRITE choosePriority NOTIFY understood)
    /// The day that the task would be planned for, in words.
    Q_PROPERTY(QString dayText READ dayText NOTIFY understood)
    /// Where that day is chosen.
    Q_PROPERTY(norvin::AgendaCalendarPopover* calendar READ calendar CONSTANT)
    Q_PROPERTY(bool showCalendar READ showCalendar WRITE setShowCalendar NOTIFY showCalendarChanged)
    /// What became of the last line, in the user's language; empty when there is nothing to say.
    Q_PROPERTY(QString report READ report NOTIFY reportChanged)
    /// Whether the report says why nothing was added.
    Q_PROPERTY(bool isProblem READ isProblem NOTIFY reportChanged)
public:
    QuickAddEntry(const AgendaCollaborators& collaborators, const QLocale& locale, QObject* parent = nullptr);
    ~QuickAddEntry() override;

    /// Begins with an empty line. @param date when tasks are planned whose line names no day
    void open(const QDateTime& date);
    [[nodiscard]] const QString& line() const { return m_line; }
    void setLine(const QString& line);
    [[nodiscard]] const QString& title() const { return m_entry.title; }
    [[nodiscard]] TaskEntryChips* chips() { return &m_chips; }
    [[nodiscard]] const QVariantList& projects() const { return m_projects; }
    [[nodiscard]] const QVariantList& phases() const { return m_phases; }
    [[nodiscard]] QString projectId() const;
    /// Chooses another project, and none of its phases.
    void chooseProject(const QString& id);
    [[nodiscard]] QString phaseId() const;
    void choosePhase(const QString& id);
    [[nodiscard]] QString priority() const;
    void choosePriority(const QString& priority);
    [[nodiscard]] QString dayText() const;
    [[nodiscard]] AgendaCalendarPopover* calendar() { return &m_calendar; }
    [[nodiscard]] bool showCalendar() const { return m_showCalendar; }
    void setShowCalendar(bool shows);
    [[nodiscard]] QString report() const;
    [[nodiscard]] bool isProblem() const { return m_isProblem; }

    /// Makes the words of a chip a part of the title, or takes back what was chosen. An unknown one stays.
    Q_INVOKABLE void removeChip(int row);
    /// Makes and saves the task, and empties the line; without a title it says so and keeps the line.
    /// @return whether a task was made
    Q_INVOKABLE bool add();

    void retranslate(const QLocale& locale);

Q_SIGNALS:
    void lineChanged();
    void understood();
    void choicesChanged();
    void showCalendarChanged();
    void reportChanged();

private:
    [[nodiscard]] TaskEntryParser parser() const;
    [[nodiscard]] Project* project() const;
    [[nodiscard]] ProjectPhase* phase() const;
    [[nodiscard]] QDate plannedDay() const;
    void choose(TaskEntryField field);
    void understand();
    void scheduleUnderstanding();
    void fillChoices();
    void fillChips();
    void setReport(const QString& title, QDate day, bool isProblem);

    AgendaCollaborators m_with;
    QLocale m_locale;
    QDateTime m_date;
    QString m_line;
    TaskEntry m_entry;
    // Chosen with the pointer; null ids for nothing.
    std::optional<TaskPriority> m_priority;
    ProjectId m_project;
    ProjectPhaseId m_phase;
    QDate m_plannedDay;
    TaskEntryChips m_chips;
    QVariantList m_projects;
    QVariantList m_phases;
    AgendaCalendarPopover m_calendar;
    QString m_addedTitle;
    QDate m_addedDay;
    bool m_isProblem = false;
    bool m_showCalendar = false;
    bool m_isUnderstandingScheduled = false;
};

} // namespace norvin
