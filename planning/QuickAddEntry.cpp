#include "planning/QuickAddEntry.h"

#include "model/ModelContext.h"
#include "planning/AgendaRowsModel.h"
#include "planning/CalendarDays.h"
#include "planning/PlanningTexts.h"
#include "platform/Clock.h"
#include "sound/SoundService.h"

#include <QUuid>
#include <QtGlobal>

#include <array>
#include <memory>
#include <utility>

namespace norvin {

namespace {

const std::array<std::pair<TaskPriority, QString>, 3>& priorityNames() {
    static const std::array<std::pair<TaskPriority, QString>, 3> names{
        {{TaskPriority::low, QStringLiteral("low")},
         {TaskPriority::medium, QStringLiteral("medium")},
         {TaskPriority::high, QStringLiteral("high")}}};
    return names;
}

QString whyUnknown(const TaskEntry::Unknown& unknown, bool hasProject) {
    if (unknown.isAmbiguous)
        return qtTrId("chip_ambiguous").arg(unknown.name);
    if (unknown.field == TaskEntryField::project)
        return qtTrId("chip_unknown_project").arg(unknown.name);
    return hasProject ? qtTrId("chip_unknown_phase").arg(unknown.name)
                      : qtTrId("chip_phase_without_project").arg(unknown.name);
}

} // namespace

QuickAddEntry::QuickAddEntry(const AgendaCollaborators& collaborators, const QLocale& locale, QObject* parent)
    : QObject(parent)
    , m_with(collaborators)
    , m_locale(locale)
    , m_date(collaborators.clock.now())
    , m_chips(nullptr)
    , m_calendar(collaborators.context, collaborators.clock, locale) {
    const ModelContext& context = m_with.context;
    connect(&context, &ModelContext::projectInserted, this, &QuickAddEntry::scheduleUnderstanding);
    connect(&context, &ModelContext::projectChanged, this, &QuickAddEntry::scheduleUnderstanding);
    connect(&context, &ModelContext::phaseInserted, this, &QuickAddEntry::scheduleUnderstanding);
    connect(&context, &ModelContext::phaseChanged, this, &QuickAddEntry::scheduleUnderstanding);
    // What was understood may name what goes.
    const auto forget = [this] {
        m_entry = {};
        scheduleUnderstanding();
    };
    connect(&context, &ModelContext::projectAboutToBeRemoved, this, forget);
    connect(&context, &ModelContext::phaseAboutToBeRemoved, this, forget);
    connect(&m_calendar, &AgendaCalendarPopover::chosen, this, [this](QDate day) {
        choose(TaskEntryField::plannedDay);
        m_plannedDay = day;
        setShowCalendar(false);
        understand();
    });
}

QuickAddEntry::~QuickAddEntry() = default;

void QuickAddEntry::open(const QDateTime& date) {
    m_date = date;
    m_priority.reset();
    m_project = {};
    m_phase = {};
    m_plannedDay = {};
    setReport({}, {}, false);
    setLine({});
    understand();
}

TaskEntryParser QuickAddEntry::parser() const {
    return {m_with.context.projects(), m_with.clock.now().date(), m_locale};
}

void QuickAddEntry::setLine(const QString& line) {
    if (line == m_line)
        return;
    m_line = line;
    if (!line.isEmpty())
        setReport({}, {}, false);
    understand();
    Q_EMIT lineChanged();
}

void QuickAddEntry::scheduleUnderstanding() {
    if (std::exchange(m_isUnderstandingScheduled, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isUnderstandingScheduled = false;
            understand();
        },
        Qt::QueuedConnection);
}

void QuickAddEntry::understand() {
    m_entry = parser().parse(m_line, m_with.context.project(m_project));
    fillChoices();
    fillChips();
    Q_EMIT understood();
}

Project* QuickAddEntry::project() const {
    if (m_entry.project != nullptr)
        return m_entry.project;
    return m_with.context.project(m_project);
}

ProjectPhase* QuickAddEntry::phase() const {
    if (m_entry.phase != nullptr)
        return m_entry.phase;
    ProjectPhase* const chosen = m_with.context.phase(m_phase);
    return chosen != nullptr && chosen->project() == project() ? chosen : nullptr;
}

QString QuickAddEntry::projectId() const {
    return project() != nullptr ? project()->id().toString() : QString();
}

void QuickAddEntry::chooseProject(const QString& id) {
    choose(TaskEntryField::phase);
    choose(TaskEntryField::project);
    m_phase = {};
    m_project = ProjectId(QUuid(id));
    understand();
}

QString QuickAddEntry::phaseId() const {
    return phase() != nullptr ? phase()->id().toString() : QString();
}

void QuickAddEntry::choosePhase(const QString& id) {
    choose(TaskEntryField::phase);
    m_phase = ProjectPhaseId(QUuid(id));
    understand();
}

QDate QuickAddEntry::plannedDay() const {
    return m_entry.plannedDay.isValid() ? m_entry.plannedDay : m_plannedDay;
}

QString QuickAddEntry::priority() const {
    const TaskPriority wanted = m_entry.priority.value_or(m_priority.value_or(TaskPriority::medium));
    for (const auto& [value, name] : priorityNames()) {
        if (value == wanted)
            return name;
    }
    return {};
}

void QuickAddEntry::choosePriority(const QString& priority) {
    for (const auto& [value, name] : priorityNames()) {
        if (name != priority)
            continue;
        choose(TaskEntryField::priority);
        m_priority = value;
        understand();
    }
}

QString QuickAddEntry::dayText() const {
    const QDateTime now = m_with.clock.now();
    const QDate day = plannedDay().isValid() ? plannedDay() : dateOf(Instant(m_date), now);
    return dayInWords(day, now.date(), m_locale);
}

void QuickAddEntry::setShowCalendar(bool shows) {
    if (shows == m_showCalendar)
        return;
    m_showCalendar = shows;
    if (shows)
        m_calendar.open(plannedDay().isValid() ? plannedDay() : dateOf(Instant(m_date), m_with.clock.now()));
    else
        m_calendar.close();
    Q_EMIT showCalendarChanged();
}

// What is chosen takes the place of what the line says.
void QuickAddEntry::choose(TaskEntryField field) {
    if (m_entry.says(field))
        setLine(parser().withoutField(m_line, field, project()));
}

void QuickAddEntry::removeChip(int row) {
    if (row < 0 || row >= m_chips.count())
        return;
    const auto leave = [this](TaskEntryField field) {
        if (m_entry.says(field))
            setLine(parser().withFieldAsTitle(m_line, field, project()));
    };
    switch (m_chips.chips()[row].kind) {
    case TaskEntryChips::Kind::priority:
        m_priority.reset();
        leave(TaskEntryField::priority);
        break;
    case TaskEntryChips::Kind::project:
        m_project = {};
        leave(TaskEntryField::project);
        break;
    case TaskEntryChips::Kind::phase:
        m_phase = {};
        leave(TaskEntryField::phase);
        break;
    case TaskEntryChips::Kind::plannedDay:
        m_plannedDay = {};
        leave(TaskEntryField::plannedDay);
        break;
    case TaskEntryChips::Kind::dueDay:
        leave(TaskEntryField::dueDay);
        break;
    case TaskEntryChips::Kind::unknown:
        return;
    }
    understand();
}

void QuickAddEntry::fillChoices() {
    QVariantList projects{choice({}, qtTrId("task_no_project"))};
    for (const Project* each : m_with.context.projects())
        projects.append(choice(each->id().toString(), each->name(), each->colorHex()));
    QVariantList phases;
    if (project() != nullptr) {
        phases.append(choice({}, qtTrId("task_no_phase")));
        for (const ProjectPhase* each : project()->sortedPhases())
            phases.append(choice(each->id().toString(), each->name()));
    }
    if (projects == m_projects && phases == m_phases)
        return;
    m_projects = projects;
    m_phases = phases;
    Q_EMIT choicesChanged();
}

void QuickAddEntry::fillChips() {
    using Kind = TaskEntryChips::Kind;
    const QDate today = m_with.clock.now().date();
    QList<TaskEntryChips::Chip> chips;
    if (const auto said = m_entry.priority ? m_entry.priority : m_priority)
        chips.append({Kind::priority, qtTrId("chip_priority").arg(priorityLabel(said))});
    if (const Project* said = project())
        chips.append({Kind::project, said->name(), said->colorHex()});
    if (const ProjectPhase* said = phase())
        chips.append({Kind::phase, said->name()});
    if (plannedDay().isValid())
        chips.append(
            {Kind::plannedDay, qtTrId("chip_planned").arg(dayInWords(plannedDay(), today, m_locale))});
    if (m_entry.dueDay.isValid())
        chips.append({Kind::dueDay, qtTrId("chip_due").arg(dayInWords(m_entry.dueDay, today, m_locale))});
    for (const TaskEntry::Unknown& unknown : std::as_const(m_entry.unknown))
        chips.append({Kind::unknown, whyUnknown(unknown, project() != nullptr)});
    m_chips.set(chips);
}

void QuickAddEntry::setReport(const QString& title, QDate day, bool isProblem) {
    m_addedTitle = title;
    m_addedDay = day;
    m_isProblem = isProblem;
    Q_EMIT reportChanged();
}

QString QuickAddEntry::report() const {
    if (m_isProblem)
        return qtTrId("quick_add_needs_title");
    if (m_addedTitle.isEmpty())
        return {};
    return qtTrId("quick_add_added")
        .arg(m_addedTitle, dayInWords(m_addedDay, m_with.clock.now().date(), m_locale));
}

bool QuickAddEntry::add() {
    // Midnight may have passed since the line was understood.
    understand();
    if (m_entry.title.isEmpty()) {
        setReport({}, {}, true);
        return false;
    }
    const QDateTime now = m_with.clock.now();
    const auto startOf = [&now](QDate day) {
        return day.isValid() ? agendaDayOf(day, now).start.dateTime() : QDateTime();
    };
    const QDateTime planned = plannedDay().isValid() ? startOf(plannedDay()) : m_date;
    const QString title = m_entry.title;
    m_with.context.insert(std::make_unique<TaskItem>(
        TaskItem::Init{.title = title,
                       .priority = m_entry.priority.value_or(m_priority.value_or(TaskPriority::medium)),
                       .dueDate = startOf(m_entry.dueDay),
                       .plannedDate = planned,
                       .createdAt = now,
                       .project = project(),
                       .phase = phase()}));
    // What cannot be saved stays in memory and is tried again.
    static_cast<void>(m_with.context.save());
    QMetaObject::invokeMethod(
        this, [&sounds = m_with.sounds] { sounds.play(SoundEffect::pop, 1.0); }, Qt::QueuedConnection);
    setLine({});
    setReport(title, dateOf(Instant(planned), now), false);
    return true;
}

void QuickAddEntry::retranslate(const QLocale& locale) {
    m_locale = locale;
    m_calendar.setLocale(locale);
    understand();
    Q_EMIT reportChanged();
}

} // namespace norvin
