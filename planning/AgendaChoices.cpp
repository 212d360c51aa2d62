#include "planning/AgendaChoices.h"

namespace norvin {

AgendaChoices::~AgendaChoices() = default;

void AgendaChoices::set(const QList<Choice>& choices, const QString& currentId) {
    if (choices != m_choices) {
        beginResetModel();
        m_choices = choices;
        m_currentId = currentId;
        endResetModel();
    } else if (currentId != m_currentId) {
        m_currentId = currentId;
        if (!m_choices.isEmpty())
            Q_EMIT dataChanged(index(0), index(count() - 1), {IsCurrentRole});
    } else {
        return;
    }
    Q_EMIT changed();
}

int AgendaChoices::currentRow() const {
    for (int row = 0; row < count(); ++row) {
        if (m_choices[row].id == m_currentId)
            return row;
    }
    return -1;
}

QString AgendaChoices::currentLabel() const {
    const int row = currentRow();
    return row < 0 ? QString() : m_choices[row].label;
}

QString AgendaChoices::currentColor() const {
    const int row = currentRow();
    return row < 0 ? QString() : m_choices[row].color;
}

void AgendaChoices::choose(int row) {
    if (row >= 0 && row < count())
        Q_EMIT chosen(m_choices[row].id);
}

int AgendaChoices::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant AgendaChoices::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Choice& choice = m_choices[index.row()];
    switch (role) {
    case IdRole:
        return choice.id;
    case Qt::DisplayRole:
    case LabelRole:
        return choice.label;
    case ColorRole:
        return choice.color;
    case IsCurrentRole:
        return choice.id == m_currentId;
    default:
        return {};
    }
}

QHash<int, QByteArray> AgendaChoices::roleNames() const {
    return {{IdRole, "choiceId"}, {LabelRole, "label"}, {ColorRole, "swatch"}, {IsCurrentRole, "isCurrent"}};
}

} // namespace norvin
