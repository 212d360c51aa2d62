#pragma once

#include "model/ProjectPhase.h"

#include <QAbstractListModel>
#include <QList>
#include <QPointer>
#include <QString>

namespace norvin {

/// The phases of a project while they are edited. A row remembers the phase that it came from, so that its
/// name and place can change without its tasks losing it. Main thread only.
class PhaseRowsModel final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum Role {
        NameRole = Qt::UserRole + 1, ///< "name"
        TaskCountRole,               ///< "taskCount": tasks that are in the phase; 0 in a new one
    };
    Q_ENUM(Role)

    struct Row {
        QString name;
        /// The phase in the store that the row stands for; null for one that is to be made.
        QPointer<ProjectPhase> phase = {};
        bool operator==(const Row&) const = default;
    };

    explicit PhaseRowsModel(QObject* parent)
        : QAbstractListModel(parent) {}
    ~PhaseRowsModel() override;

    [[nodiscard]] const QList<Row>& rows() const { return m_rows; }
    void setRows(const QList<Row>& rows);
    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }

    // Rows that there are not are ignored.
    void add(const QString& name);
    void remove(int row);
    void rename(int row, const QString& name);
    /// Puts the row before the one that is at `to` now; count() for the end.
    void move(int from, int to);
    /// The phase left the store; its row stays, and stands for a new one.
    void forget(const ProjectPhase* phase);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    [[nodiscard]] bool hasRow(int row) const { return row >= 0 && row < count(); }

    QList<Row> m_rows;
};

} // namespace norvin
