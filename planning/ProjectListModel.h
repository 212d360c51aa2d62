#pragma once

#include "model/Project.h"
#include "planning/EntityListModel.h"

#include <QCollator>
#include <QHash>
#include <QLocale>
#include <QString>

#include <optional>

namespace norvin {

class ModelContext;
class TaskItem;

/// The projects whose name or description contains what is looked for, with what their tasks come to. Tasks
/// are counted without their subtasks. What changes in the store is counted at the end of the event-loop
/// turn, and only in the projects that it touches. Empty before the first load(). Main thread only.
class ProjectListModel final : public norvin::EntityListModel {
    Q_OBJECT
    /// Projects there are, whatever is looked for.
    Q_PROPERTY(int total READ total NOTIFY totalChanged)
public:
    enum Role {
        ProjectIdRole = Qt::UserRole + 1, ///< "projectId": text
        NameRole,                         ///< "name"; also the display role
        EmojiRole,                        ///< "emoji": empty for none
        ColorRole,                        ///< "colorHex": hexadecimal colour text
        DescriptionRole,                  ///< "description"
        TaskCountRole,                    ///< "taskCount"
        OpenCountRole,                    ///< "openCount": those that are not done
        DoneCountRole,                    ///< "doneCount"
        ProgressRole,                     ///< "progress": done ÷ tasks, 0 to 1; 0 without tasks
        PhaseCountRole,                   ///< "phaseCount"
    };
    Q_ENUM(Role)

    /// By name in the order of the language; the newest first; the furthest first.
    enum class Order { name, created, progress };

    /// @param context must outlive this
    explicit ProjectListModel(ModelContext& context, QObject* parent = nullptr);
    ~ProjectListModel() override;

    /// Counts everything for the first time and follows the store from then on; does nothing when called
    /// again.
    void load();
    /// Takes what changed into account now rather than at the end of the turn.
    void settle();

    void setSearchText(const QString& text);
    [[nodiscard]] Order order() const { return m_order; }
    void setOrder(Order order);
    /// Whose alphabet it is; that of the machine until told.
    void setLocale(const QLocale& locale);

    [[nodiscard]] int total() const { return static_cast<int>(m_tiles.size()); }
    /// Null when there is no such row.
    [[nodiscard]] Project* projectAt(int row) const;
    /// −1 when the project is not shown.
    [[nodiscard]] int rowOf(const Project& project) const { return rowOfEntity(&project); }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void totalChanged();

private:
    struct Tile {
        int tasks = 0;
        int done = 0;
        int phases = 0;
        QString searchKey;
        std::optional<QCollatorSortKey> nameKey;

        [[nodiscard]] double progress() const { return tasks == 0 ? 0.0 : double(done) / tasks; }
    };
    void follow(Project* project);
    void forget(Project* project);
    void touch(Project* project);
    void countTasks(const Project& project);
    void arrange();
    [[nodiscard]] bool comesBefore(const Project& a, const Project& b) const;

    ModelContext& m_context;
    QCollator m_collator;
    Order m_order = Order::name;
    QString m_wanted;
    QHash<const Entity*, Tile> m_tiles;
    QSet<Project*> m_touched;
    bool m_isLoaded = false;
};

} // namespace norvin
