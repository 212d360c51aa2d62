#include "planning/ProjectSheet.h"

#include "model/ModelContext.h"
#include "planning/PlanningEdits.h"
#include "platform/Clock.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace norvin {

ProjectSheet::ProjectSheet(ModelContext& context, PlanningEdits& edits, Clock& clock, QObject* parent)
    : QObject(parent)
    , m_context(context)
    , m_edits(edits)
    , m_clock(clock)
    , m_phases(nullptr) {
    connect(&m_context, &ModelContext::projectAboutToBeRemoved, this, [this](const Project* project) {
        if (project == m_project)
            dropProject();
    });
    connect(&m_context, &ModelContext::phaseAboutToBeRemoved, this, [this](const ProjectPhase* phase) {
        m_phases.forget(phase);
        erase_if(m_originalPhases, [phase](const PhaseRowsModel::Row& row) { return row.phase == phase; });
        Q_EMIT edited();
    });
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&m_phases, signal, this, &ProjectSheet::edited);
    connect(&m_phases, &QAbstractItemModel::rowsMoved, this, &ProjectSheet::edited);
    connect(&m_phases, &QAbstractItemModel::dataChanged, this, &ProjectSheet::edited);
}

ProjectSheet::~ProjectSheet() = default;

QList<QString> ProjectSheet::emojis() {
    return {QStringLiteral("📋"), QStringLiteral("🚀"), QStringLiteral("🎯"), QStringLiteral("💡"),
            QStringLiteral("🎨"), QStringLiteral("📊"), QStringLiteral("🔧"), QStringLiteral("📱"),
            QStringLiteral("🌐"), QStringLiteral("🎮"), QStringLiteral("📝"),
            // The construction sign is drawn in colour only with the variation selector behind it.
            QStringLiteral(u"\U0001F3D7\uFE0F"), QStringLiteral("💼"), QStringLiteral("🔬"),
            QStringLiteral("📚"), QStringLiteral("🎵"), QStringLiteral("🛒"), QStringLiteral("⚡"),
            QStringLiteral("🧩"), QStringLiteral("🌟"), QStringLiteral("🔥"), QStringLiteral("🧠"),
            QStringLiteral("💎"), QStringLiteral("🪄")};
}

QList<QString> ProjectSheet::colors() {
    return {QStringLiteral("#7c3aed"), QStringLiteral("#6d28d9"), QStringLiteral("#4f46e5"),
            QStringLiteral("#06b6d4"), QStringLiteral("#10b981"), QStringLiteral("#f59e0b"),
            QStringLiteral("#ec4899"), QStringLiteral("#ef4444"), QStringLiteral("#8b5cf6"),
            QStringLiteral("#3b82f6"), QStringLiteral("#14b8a6"), QStringLiteral("#f97316")};
}

void ProjectSheet::present(Project* project, Action onCreated, Action onUpdated) {
    m_project = project;
    m_onCreated = std::move(onCreated);
    m_onUpdated = std::move(onUpdated);
    m_originalPhases.clear();
    if (project != nullptr) {
        m_originalFields = {.name = project->name(),
                            .description = project->projectDescription(),
                            .emoji = project->emoji(),
                            .color = project->colorHex()};
        for (ProjectPhase* phase : project->sortedPhases())
            m_originalPhases.append({.name = phase->name(), .phase = phase});
    } else {
        m_originalFields = {
            .name = {}, .description = {}, .emoji = emojis().constFirst(), .color = colors().constFirst()};
        m_originalPhases.append({.name = QStringLiteral("Phase 1")});
    }
    m_fields = m_originalFields;
    m_newPhaseName.clear();
    m_phases.setRows(m_originalPhases);
    Q_EMIT projectChanged();
    Q_EMIT edited();
    if (!std::exchange(m_isPresented, true))
        Q_EMIT presentedChanged();
}

void ProjectSheet::setPresented(bool presented) {
    if (presented || !m_isPresented)
        return;
    m_isPresented = false;
    m_project = nullptr;
    m_onCreated = {};
    m_onUpdated = {};
    Q_EMIT presentedChanged();
}

void ProjectSheet::dropProject() {
    // What was typed is not lost with it.
    m_project = nullptr;
    Q_EMIT projectChanged();
    Q_EMIT edited();
}

void ProjectSheet::setField(QString Fields::*field, const QString& value) {
    if (m_fields.*field == value)
        return;
    m_fields.*field = value;
    Q_EMIT edited();
}

void ProjectSheet::setName(const QString& name) {
    setField(&Fields::name, name);
}

void ProjectSheet::setDescription(const QString& description) {
    setField(&Fields::description, description);
}

void ProjectSheet::setSelectedEmoji(const QString& emoji) {
    setField(&Fields::emoji, emoji);
}

void ProjectSheet::setSelectedColor(const QString& color) {
    setField(&Fields::color, color);
}

void ProjectSheet::setNewPhaseName(const QString& name) {
    if (name == m_newPhaseName)
        return;
    m_newPhaseName = name;
    Q_EMIT edited();
}

QStringList ProjectSheet::phaseNames() const {
    QStringList names;
    for (const PhaseRowsModel::Row& row : m_phases.rows())
        names.append(row.name);
    return names;
}

bool ProjectSheet::canSave() const {
    return !m_fields.name.trimmed().isEmpty();
}

bool ProjectSheet::hasChanges() const {
    return m_fields != m_originalFields || m_phases.rows() != m_originalPhases ||
           !m_newPhaseName.trimmed().isEmpty();
}

QList<ProjectPhase*> ProjectSheet::removedPhases() const {
    QList<ProjectPhase*> removed;
    for (const PhaseRowsModel::Row& before : m_originalPhases) {
        const auto keepsIt = [&before](const PhaseRowsModel::Row& row) { return row.phase == before.phase; };
        if (before.phase && std::none_of(m_phases.rows().cbegin(), m_phases.rows().cend(), keepsIt))
            removed.append(before.phase);
    }
    return removed;
}

QString ProjectSheet::removalNote() const {
    return deletionConsequences(removedPhases());
}

void ProjectSheet::addPhase() {
    const QString name = m_newPhaseName.trimmed();
    if (name.isEmpty())
        return;
    m_newPhaseName.clear();
    m_phases.add(name);
}

void ProjectSheet::removePhase(int row) {
    m_phases.remove(row);
}

void ProjectSheet::renamePhase(int row, const QString& name) {
    m_phases.rename(row, name);
}

void ProjectSheet::movePhase(int from, int to) {
    m_phases.move(from, to);
}

void ProjectSheet::saveProject() {
    if (!m_isPresented || !canSave())
        return;
    // A name that is still in its field was typed to be a phase.
    addPhase();
    const bool isNew = m_project == nullptr;
    Project* project = m_project;
    if (isNew)
        project = m_context.insert(std::make_unique<Project>(Project::Init{.createdAt = m_clock.now()}));
    writeFields(*project);
    writePhases(*project);
    // What cannot be saved stays in memory, is shown as unsaved and tried again.
    static_cast<void>(m_context.save());
    const Action done = isNew ? m_onCreated : m_onUpdated;
    setPresented(false);
    if (done)
        done(project);
}

void ProjectSheet::writeFields(Project& project) const {
    project.setName(m_fields.name.trimmed());
    project.setProjectDescription(m_fields.description.trimmed());
    project.setEmoji(m_fields.emoji);
    project.setColorHex(m_fields.color);
}

void ProjectSheet::writePhases(Project& project) {
    const QList<PhaseRowsModel::Row> rows = m_phases.rows();
    m_edits.deletePhases(removedPhases());
    int position = 0;
    for (const PhaseRowsModel::Row& row : rows) {
        const QString name = row.name.trimmed();
        if (row.phase) {
            if (!name.isEmpty())
                row.phase->setName(name);
            row.phase->setOrderIndex(position++);
        } else if (!name.isEmpty()) {
            m_context.insert(std::make_unique<ProjectPhase>(ProjectPhase::Init{
                .name = name, .orderIndex = position++, .project = &project, .createdAt = m_clock.now()}));
        }
    }
}

} // namespace norvin
