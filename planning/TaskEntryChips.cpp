#include "planning/TaskEntryChips.h"

#include <algorithm>

namespace norvin {

namespace {

QString nameOf(TaskEntryChips::Kind kind) {
    switch (kind) {
    case TaskEntryChips::Kind::priority:
        return QStringLiteral("priority");
    case TaskEntryChips::Kind::project:
        return QStringLiteral("project");
    case TaskEntryChips::Kind::phase:
        return QStringLiteral("phase");
    case TaskEntryChips::Kind::plannedDay:
        return QStringLiteral("plannedDay");
    case TaskEntryChips::Kind::dueDay:
        return QStringLiteral("dueDay");
    case TaskEntryChips::Kind::unknown:
        return QStringLiteral("unknown");
    }
    return {};
}

} // namespace

TaskEntryChips::~TaskEntryChips() = default;

void TaskEntryChips::set(const QList<Chip>& chips) {
    // Row by row from the front, so that a chip that has the keyboard keeps it while others come and go.
    const auto before = m_chips.size();
    for (qsizetype row = 0; row < m_chips.size();) {
        const auto isSame = [this, row](const Chip& chip) { return chip.kind == m_chips[row].kind; };
        if (std::any_of(chips.cbegin(), chips.cend(), isSame)) {
            ++row;
            continue;
        }
        beginRemoveRows({}, static_cast<int>(row), static_cast<int>(row));
        m_chips.removeAt(row);
        endRemoveRows();
    }
    for (qsizetype row = 0; row < chips.size(); ++row) {
        const int number = static_cast<int>(row);
        if (row < m_chips.size() && m_chips[row].kind == chips[row].kind) {
            if (m_chips[row] != chips[row]) {
                m_chips[row] = chips[row];
                Q_EMIT dataChanged(index(number), index(number));
            }
            continue;
        }
        beginInsertRows({}, number, number);
        m_chips.insert(row, chips[row]);
        endInsertRows();
    }
    while (m_chips.size() > chips.size()) {
        const int last = count() - 1;
        beginRemoveRows({}, last, last);
        m_chips.removeLast();
        endRemoveRows();
    }
    if (m_chips.size() != before)
        Q_EMIT countChanged();
}

int TaskEntryChips::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant TaskEntryChips::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Chip& chip = m_chips[index.row()];
    switch (role) {
    case KindRole:
        return nameOf(chip.kind);
    case Qt::DisplayRole:
    case LabelRole:
        return chip.label;
    case ColorRole:
        return chip.color;
    case IsUnknownRole:
        return chip.kind == Kind::unknown;
    default:
        return {};
    }
}

QHash<int, QByteArray> TaskEntryChips::roleNames() const {
    return {{KindRole, "kind"}, {LabelRole, "label"}, {ColorRole, "swatch"}, {IsUnknownRole, "isUnknown"}};
}

} // namespace norvin
