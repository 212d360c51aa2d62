#include "distraction/TrackingHealthModel.h"

#include <QCoreApplication>

#include <algorithm>

namespace norvin {

namespace {

QString text(const QString& key) {
    return qtTrId(key.toUtf8().constData());
}

} // namespace

TrackingHealthModel::TrackingHealthModel(QList<Check> checks, QObject* parent)
    : QAbstractListModel(parent)
    , m_checks(std::move(checks)) {
    m_answers.fill(Availability::available(), m_checks.size());
    refresh();
}

TrackingHealthModel::~TrackingHealthModel() = default;

int TrackingHealthModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_checks.size());
}

QVariant TrackingHealthModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const std::optional<Unavailable>& reason = m_answers.at(index.row()).reason();
    switch (role) {
    case Qt::DisplayRole:
    case CapabilityRole:
        return text(m_checks.at(index.row()).capabilityKey);
    case IsAvailableRole:
        return !reason.has_value();
    case ReasonRole:
        return reason ? text(reason->reasonKey) : QString();
    case RemedyRole:
        return reason ? text(reason->reasonKey + QStringLiteral("_remedy")) : QString();
    case DetailRole:
        return reason ? reason->detail : QString();
    default:
        return {};
    }
}

QHash<int, QByteArray> TrackingHealthModel::roleNames() const {
    return {{CapabilityRole, "capability"},
            {IsAvailableRole, "isAvailable"},
            {ReasonRole, "reason"},
            {RemedyRole, "remedy"},
            {DetailRole, "detail"}};
}

void TrackingHealthModel::refresh() {
    for (qsizetype row = 0; row < m_checks.size(); ++row) {
        Availability answer = m_checks.at(row).ask();
        if (answer == m_answers.at(row))
            continue;
        m_answers[row] = std::move(answer);
        const QModelIndex changed = index(static_cast<int>(row));
        Q_EMIT dataChanged(changed, changed);
    }
    const auto problems =
        static_cast<int>(std::count_if(m_answers.cbegin(), m_answers.cend(),
                                       [](const Availability& answer) { return !answer.isAvailable(); }));
    if (problems != m_problemCount) {
        m_problemCount = problems;
        Q_EMIT problemCountChanged();
    }
}

void TrackingHealthModel::retranslate() {
    if (!m_checks.isEmpty())
        Q_EMIT dataChanged(index(0), index(static_cast<int>(m_checks.size()) - 1));
}

} // namespace norvin
