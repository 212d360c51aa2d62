#pragma once

#include "planning/PhaseRowsModel.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace norvin {

class Clock;
class ModelContext;
class PlanningEdits;
class Project;

/// The sheet in which a project is made or edited. Nothing reaches the store before saveProject(). Main
/// thread only.
class ProjectSheet final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isPresented READ isPresented WRITE setPresented NOTIFY presentedChanged)
    /// Whether there is a project being edited; otherwise one is made.
    Q_PROPERTY(bool isEditing READ isEditing NOTIFY projectChanged)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY edited)
    Q_PROPERTY(QString description READ description WRITE setDescription NOTIFY edited)
    /// One of `emojis`, or what the project has.
    Q_PROPERTY(QString selectedEmoji READ selectedEmoji WRITE setSelectedEmoji NOTIFY edited)
    /// One of `colors`, or what the project has.
    Q_PROPERTY(QString selectedColor READ selectedColor WRITE setSelectedColor NOTIFY edited)
    Q_PROPERTY(QList<QString> emojis READ emojis CONSTANT)
    Q_PROPERTY(QList<QString> colors READ colors CONSTANT)
    Q_PROPERTY(norvin::PhaseRowsModel* phases READ phases CONSTANT)
    /// The phase that is being typed; saving takes it as one of the phases.
    Q_PROPERTY(QString newPhaseName READ newPhaseName WRITE setNewPhaseName NOTIFY edited)
    /// Whether saveProject() would save: the name is not blank.
    Q_PROPERTY(bool canSave READ canSave NOTIFY edited)
    /// Whether closing the sheet would lose something.
    Q_PROPERTY(bool hasChanges READ hasChanges NOTIFY edited)
    /// What the removed phases leave without a phase, in the user's language; empty when nothing.
    Q_PROPERTY(QString removalNote READ removalNote NOTIFY edited)
public:
    using Action = std::function<void(Project*)>;

    /// Everything must outlive this.
    ProjectSheet(ModelContext& context, PlanningEdits& edits, Clock& clock, QObject* parent = nullptr);
    ~ProjectSheet() override;

    /// Opens the sheet. What was being edited in it before is dropped.
    /// @param project null to make a new one
    /// @param onCreated called with the new project once it is saved; onUpdated the same for an edited one
    void present(Project* project, Action onCreated = {}, Action onUpdated = {});
    [[nodiscard]] bool isPresented() const { return m_isPresented; }
    /// False closes the sheet and drops what is in it; true is ignored.
    void setPresented(bool presented);
    /// Null when a new one is made. A project that leaves the store meanwhile becomes a new one.
    [[nodiscard]] Project* project() const { return m_project; }
    [[nodiscard]] bool isEditing() const { return m_project != nullptr; }

    [[nodiscard]] const QString& name() const { return m_fields.name; }
    void setName(const QString& name);
    [[nodiscard]] const QString& description() const { return m_fields.description; }
    void setDescription(const QString& description);
    [[nodiscard]] const QString& selectedEmoji() const { return m_fields.emoji; }
    void setSelectedEmoji(const QString& emoji);
    [[nodiscard]] const QString& selectedColor() const { return m_fields.color; }
    void setSelectedColor(const QString& color);
    [[nodiscard]] const QString& newPhaseName() const { return m_newPhaseName; }
    void setNewPhaseName(const QString& name);
    [[nodiscard]] PhaseRowsModel* phases() { return &m_phases; }
    /// The names in the rows, in their order.
    [[nodiscard]] QStringList phaseNames() const;

    [[nodiscard]] static QList<QString> emojis();
    [[nodiscard]] static QList<QString> colors();

    [[nodiscard]] bool canSave() const;
    [[nodiscard]] bool hasChanges() const;
    [[nodiscard]] QString removalNote() const;

    // Rows that there are not are ignored.
    /// Makes a row of newPhaseName and clears it; a blank one does nothing.
    Q_INVOKABLE void addPhase();
    Q_INVOKABLE void removePhase(int row);
    Q_INVOKABLE void renamePhase(int row, const QString& name);
    /// Puts the row before the one that is at `to` now; the number of rows for the end.
    Q_INVOKABLE void movePhase(int from, int to);

    /// Saves and closes; does nothing while the name is blank. Of the rows that came from a phase a blank one
    /// leaves the phase its name, of the others it makes none. That phases were removed can be undone.
    Q_INVOKABLE void saveProject();

Q_SIGNALS:
    void presentedChanged();
    void projectChanged();
    /// Anything in the sheet changed.
    void edited();

private:
    struct Fields {
        QString name;
        QString description;
        QString emoji;
        QString color;
        bool operator==(const Fields&) const = default;
    };
    void setField(QString Fields::*field, const QString& value);
    void writeFields(Project& project) const;
    void writePhases(Project& project);
    [[nodiscard]] QList<ProjectPhase*> removedPhases() const;
    void dropProject();

    ModelContext& m_context;
    PlanningEdits& m_edits;
    Clock& m_clock;
    bool m_isPresented = false;
    Project* m_project = nullptr;
    Action m_onCreated;
    Action m_onUpdated;
    Fields m_fields;
    QString m_newPhaseName;
    PhaseRowsModel m_phases;
    // As they were when the sheet was opened.
    Fields m_originalFields;
    QList<PhaseRowsModel::Row> m_originalPhases;
};

} // namespace norvin
