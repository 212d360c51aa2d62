#pragma once

#include "model/ProjectPhase.h"
#include "planning/PhaseListModel.h"

#include <QList>
#include <QObject>
#include <QString>

namespace norvin {

class Clock;
class ModelContext;
class PlanningEdits;

/// The sheet that adds, renames, orders and deletes the phases of a project; each step is saved at once. Main
/// thread only.
class ManagePhasesSheet final : public QObject {
    Q_OBJECT
    Q_PROPERTY(norvin::PhaseListModel* phases READ phases CONSTANT)
    Q_PROPERTY(QString newPhaseName READ newPhaseName WRITE setNewPhaseName NOTIFY newPhaseNameChanged)
    /// Text of the id of the phase that is being renamed; empty for none.
    Q_PROPERTY(QString editingPhaseId READ editingPhaseId NOTIFY editingChanged)
    Q_PROPERTY(QString editingName READ editingName WRITE setEditingName NOTIFY editingChanged)
public:
    /// Everything must outlive this.
    ManagePhasesSheet(ModelContext& context, PlanningEdits& edits, Clock& clock, QObject* parent = nullptr);
    ~ManagePhasesSheet() override;

    /// Null for none, which lets go of whatever was being typed.
    void setProject(Project* project);
    [[nodiscard]] Project* project() const { return m_project; }

    [[nodiscard]] PhaseListModel* phases() { return &m_phases; }
    [[nodiscard]] const QString& newPhaseName() const { return m_newPhaseName; }
    void setNewPhaseName(const QString& name);
    [[nodiscard]] const QString& editingPhaseId() const { return m_editingPhaseId; }
    [[nodiscard]] const QString& editingName() const { return m_editingName; }
    void setEditingName(const QString& name);

    /// Adds a phase named newPhaseName, trimmed, with the number of phases as its place, and clears the name;
    /// a blank one adds nothing.
    Q_INVOKABLE void addPhase();
    /// Puts the phases of these rows, in their order, before the one that is in row `to` now (the number of
    /// rows for the end), and numbers all phases anew. Rows that there are not are ignored.
    Q_INVOKABLE void movePhase(const QList<int>& from, int to);
    /// Deletes the phases of these rows, which can be undone for a while. Their tasks stay without a phase,
    /// and the other phases keep their numbers.
    Q_INVOKABLE void deletePhase(const QList<int>& at);
    /// What the deletion leaves without a phase, in the user's language; empty for nothing.
    Q_INVOKABLE [[nodiscard]] QString consequencesOfDeletion(const QList<int>& at) const;
    /// Begins to rename a phase; what was begun before is dropped.
    Q_INVOKABLE void beginEdit(const QString& phaseId);
    Q_INVOKABLE void cancelEdit();
    /// Names the phase editingName, trimmed, and ends the renaming; a blank name leaves it its own.
    Q_INVOKABLE void saveEdit(const QString& phaseId);
    /// Takes the last edit of planning back, if it still can be.
    Q_INVOKABLE void undo();

Q_SIGNALS:
    void newPhaseNameChanged();
    void editingChanged();

private:
    [[nodiscard]] QList<ProjectPhase*> phasesAt(const QList<int>& rows) const;
    [[nodiscard]] ProjectPhase* phaseWithId(const QString& phaseId) const;

    ModelContext& m_context;
    PlanningEdits& m_edits;
    Clock& m_clock;
    Project* m_project = nullptr;
    PhaseListModel m_phases;
    QString m_newPhaseName;
    QString m_editingPhaseId;
    QString m_editingName;
};

} // namespace norvin
