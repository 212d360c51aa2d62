#pragma once

#include "model/TaskStatus.h"

#include <QDate>
#include <QList>
#include <QLocale>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace norvin {

class Project;
class ProjectPhase;

/// What a line about a task can say beside its title.
enum class TaskEntryField { priority, project, phase, plannedDay, dueDay };

/// A line about a task, taken apart.
struct TaskEntry {
    /// A word that begins like a project or phase, and is the name of none or of several.
    struct Unknown {
        TaskEntryField field;
        QString name;
        bool isAmbiguous;
        bool operator==(const Unknown&) const = default;
    };

    /// What is left when everything understood is taken out, in one line with single blanks.
    QString title;
    // None for what the line does not say.
    std::optional<TaskPriority> priority;
    Project* project = nullptr;
    ProjectPhase* phase = nullptr;
    QDate plannedDay;
    QDate dueDay;
    /// These stay in the title.
    QList<Unknown> unknown;

    [[nodiscard]] bool says(TaskEntryField field) const;
};

/// Understands one line about a task, such as “Write report !high #Thesis @Draft tomorrow by 12 December”, in
/// English and French at once. Of several words for the same thing the last one counts, and the others belong
/// to the title; so does what is in quotes, and every word after a backslash.
///
/// - priority: !high !medium !low, !haute !moyenne !basse, !1 (high) to !3 (low)
/// - project: # and its name, the beginning of it where only one begins so, or the name in quotes
/// - phase of the project: the same after @
/// - days: see TaskEntryDates.h
class TaskEntryParser final {
public:
    /// @param projects those that can be named
    TaskEntryParser(const std::vector<Project*>& projects, QDate today, const QLocale& locale)
        : m_projects(projects)
        , m_today(today)
        , m_locale(locale) {}

    /// @param project the one whose phases can be named if the line names none; may be null
    [[nodiscard]] TaskEntry parse(const QString& line, const Project* project = nullptr) const;
    /// The line with a backslash before each word that says this, which makes a part of the title of them.
    [[nodiscard]] QString withFieldAsTitle(const QString& line, TaskEntryField field,
                                           const Project* project = nullptr) const;
    /// The line without the words that say this.
    [[nodiscard]] QString withoutField(const QString& line, TaskEntryField field,
                                       const Project* project = nullptr) const;

private:
    struct Word;
    struct Parsed;
    [[nodiscard]] static std::vector<Word> wordsOf(const QString& line);
    [[nodiscard]] Parsed parsed(const QString& line, const Project* project) const;
    void readTags(Parsed& parsed, const Project* project) const;
    void readPriority(Parsed& parsed) const;
    void readDates(Parsed& parsed) const;

    const std::vector<Project*>& m_projects;
    QDate m_today;
    QLocale m_locale;
};

} // namespace norvin
