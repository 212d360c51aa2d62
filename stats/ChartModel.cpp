#include "stats/ChartModel.h"

#include <QStringList>
#include <QtGlobal>

#include <algorithm>
#include <utility>

namespace norvin {

ChartModel::ChartModel(QObject* parent)
    : QAbstractListModel(parent) {}

void ChartModel::setPoints(QList<ChartPoint> points) {
    if (points == m_points)
        return;
    const auto sameKey = [](const ChartPoint& a, const ChartPoint& b) { return a.key == b.key; };
    if (std::equal(points.cbegin(), points.cend(), m_points.cbegin(), m_points.cend(), sameKey)) {
        for (qsizetype i = 0; i < points.size(); ++i) {
            if (points.at(i) == m_points.at(i))
                continue;
            m_points[i] = points.at(i);
            const QModelIndex index = this->index(static_cast<int>(i));
            Q_EMIT dataChanged(index, index);
        }
    } else {
        beginResetModel();
        m_points = std::move(points);
        endResetModel();
    }
    Q_EMIT changed();
}

QList<double> ChartModel::values() const {
    QList<double> values;
    values.reserve(m_points.size());
    for (const ChartPoint& point : m_points)
        values.append(point.value);
    return values;
}

double ChartModel::largest() const {
    double largest = 0;
    for (const ChartPoint& point : m_points)
        largest = std::max(largest, point.value);
    return largest;
}

double ChartModel::total() const {
    double total = 0;
    for (const ChartPoint& point : m_points)
        total += point.value;
    return total;
}

QString ChartModel::summary() const {
    QStringList parts;
    for (const ChartPoint& point : m_points) {
        if (point.value != 0)
            parts.append(qtTrId("chart_value_format").arg(point.name, point.valueText));
    }
    return parts.join(QStringLiteral("; "));
}

int ChartModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_points.size());
}

QVariant ChartModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= m_points.size())
        return {};
    const ChartPoint& point = m_points.at(index.row());
    switch (role) {
    case LabelRole:
        return point.label;
    case NameRole:
        return point.name;
    case ValueRole:
        return point.value;
    case ValueTextRole:
    case Qt::DisplayRole:
        return point.valueText;
    case KeyRole:
        return point.key;
    default:
        return {};
    }
}

QHash<int, QByteArray> ChartModel::roleNames() const {
    return {{LabelRole, "label"},
            {NameRole, "name"},
            {ValueRole, "value"},
            {ValueTextRole, "valueText"},
            {KeyRole, "key"}};
}

} // namespace norvin
