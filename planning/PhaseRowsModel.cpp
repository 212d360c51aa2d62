#include "planning/PhaseRowsModel.h"

namespace norvin {

PhaseRowsModel::~PhaseRowsModel() = default;

void PhaseRowsModel::setRows(const QList<Row>& rows) {
    beginResetModel();
    m_rows = rows;
    endResetModel();
    Q_EMIT countChanged();
}

void PhaseRowsModel::add(const QString& name) {
    beginInsertRows({}, count(), count());
    m_rows.append({.name = name});
    endInsertRows();
    Q_EMIT countChanged();
}

void PhaseRowsModel::remove(int row) {
    if (!hasRow(row))
        return;
    beginRemoveRows({}, row, row);
    m_rows.removeAt(row);
    endRemoveRows();
    Q_EMIT countChanged();
}

void PhaseRowsModel::rename(int row, const QString& name) {
    if (!hasRow(row) || m_rows.at(row).name == name)
        return;
    m_rows[row].name = name;
    Q_EMIT dataChanged(index(row), index(row), {NameRole, Qt::DisplayRole});
}

void PhaseRowsModel::move(int from, int to) {
    // Where the row is already, there is nothing to move, and the base class would object.
    if (!hasRow(from) || to < 0 || to > count() || to == from || to == from + 1)
        return;
    beginMoveRows({}, from, from, {}, to);
    m_rows.move(from, to > from ? to - 1 : to);
    endMoveRows();
}

void PhaseRowsModel::forget(const ProjectPhase* phase) {
    for (int row = 0; row < count(); ++row) {
        if (m_rows.at(row).phase != phase)
            continue;
        m_rows[row].phase = nullptr;
        Q_EMIT dataChanged(index(row), index(row), {TaskCountRole});
    }
}

int PhaseRowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant PhaseRowsModel::data(const QModelIndex& index, int role) const {
    if (!hasRow(index.row()))
        return {};
    const Row& row = m_rows.at(index.row());
    switch (role) {
    case NameRole:
    case Qt::DisplayRole:
        return row.name;
    case TaskCountRole:
        return row.phase ? static_cast<int>(row.phase->tasks().size()) : 0;
    default:
        return {};
    }
}

QHash<int, QByteArray> PhaseRowsModel::roleNames() const {
    return {{NameRole, "name"}, {TaskCountRole, "taskCount"}};
}

} // namespace norvin
