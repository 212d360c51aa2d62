#include "planning/EntityListModel.h"

namespace norvin {

namespace {

// With more rows than these out of place, moving them one by one is dearer than showing them all anew.
constexpr int mostMoves = 16;

} // namespace

EntityListModel::~EntityListModel() = default;

int EntityListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

Entity* EntityListModel::entityAt(int row) const {
    return row >= 0 && row < count() ? m_rows.at(row) : nullptr;
}

int EntityListModel::rowOfEntity(const Entity* entity) const {
    return static_cast<int>(m_rows.indexOf(const_cast<Entity*>(entity)));
}

void EntityListModel::setRows(const Rows& wanted) {
    if (wanted == m_rows)
        return;
    const int countBefore = count();
    removeRowsExcept(QSet<const Entity*>(wanted.cbegin(), wanted.cend()));
    const QSet<const Entity*> present(m_rows.cbegin(), m_rows.cend());
    int moves = 0;
    for (qsizetype at = 0; at < wanted.size(); ++at) {
        if (at < m_rows.size() && m_rows.at(at) == wanted.at(at))
            continue;
        if (present.contains(wanted.at(at))) {
            if (++moves > mostMoves) {
                reset(wanted);
                break;
            }
            // One that goes far down is moved alone, rather than all that it passes.
            if (at + 1 < m_rows.size() && m_rows.at(at + 1) == wanted.at(at)) {
                qsizetype before = wanted.indexOf(m_rows.at(at)) - 1;
                while (!present.contains(wanted.at(before)))
                    --before;
                shiftRow(at, m_rows.indexOf(wanted.at(before)));
            } else {
                shiftRow(m_rows.indexOf(wanted.at(at), at), at);
            }
            continue;
        }
        qsizetype last = at;
        while (last + 1 < wanted.size() && !present.contains(wanted.at(last + 1)))
            ++last;
        beginInsertRows({}, static_cast<int>(at), static_cast<int>(last));
        m_rows = m_rows.first(at) + wanted.sliced(at, last - at + 1) + m_rows.sliced(at);
        endInsertRows();
        at = last;
    }
    if (count() != countBefore)
        Q_EMIT countChanged();
}

void EntityListModel::removeRowsExcept(const QSet<const Entity*>& wanted) {
    for (qsizetype last = m_rows.size() - 1; last >= 0; --last) {
        if (wanted.contains(m_rows.at(last)))
            continue;
        qsizetype first = last;
        while (first > 0 && !wanted.contains(m_rows.at(first - 1)))
            --first;
        beginRemoveRows({}, static_cast<int>(first), static_cast<int>(last));
        m_rows.remove(first, last - first + 1);
        endRemoveRows();
        last = first;
    }
}

void EntityListModel::shiftRow(qsizetype from, qsizetype to) {
    const auto source = static_cast<int>(from);
    beginMoveRows({}, source, source, {}, static_cast<int>(to > from ? to + 1 : to));
    m_rows.move(from, to);
    endMoveRows();
}

void EntityListModel::reset(const Rows& wanted) {
    beginResetModel();
    m_rows = wanted;
    endResetModel();
}

void EntityListModel::dropRow(const Entity* entity) {
    const int row = rowOfEntity(entity);
    if (row < 0)
        return;
    beginRemoveRows({}, row, row);
    m_rows.removeAt(row);
    endRemoveRows();
    Q_EMIT countChanged();
}

void EntityListModel::rowsTouched(const QSet<const Entity*>& entities) {
    int first = -1;
    for (int row = 0; row <= count(); ++row) {
        const bool touched = row < count() && entities.contains(m_rows.at(row));
        if (touched && first < 0)
            first = row;
        if (!touched && first >= 0) {
            Q_EMIT dataChanged(index(first), index(row - 1));
            first = -1;
        }
    }
}

void EntityListModel::allRowsTouched() {
    if (count() > 0)
        Q_EMIT dataChanged(index(0), index(count() - 1));
}

} // namespace norvin
