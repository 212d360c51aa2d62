#include "ChartCursor.h"

#include <QtGlobal>

#include <algorithm>

namespace norvin {

void ChartCursor::setModel(ChartModel* model) {
    if (model == m_model)
        return;
    disconnect(m_connection);
    m_model = model;
    if (model != nullptr)
        m_connection = connect(model, &ChartModel::changed, this, &ChartCursor::changed);
    Q_EMIT changed();
}

void ChartCursor::setIndex(int index) {
    if (index == m_index)
        return;
    m_index = index;
    Q_EMIT changed();
}

const ChartPoint* ChartCursor::point() const {
    return m_model && m_index >= 0 && m_index < m_model->rowCount() ? &m_model->points().at(m_index)
                                                                    : nullptr;
}

QString ChartCursor::name() const {
    return point() != nullptr ? point()->name : QString();
}

QString ChartCursor::valueText() const {
    return point() != nullptr ? point()->valueText : QString();
}

QString ChartCursor::text() const {
    return point() != nullptr ? qtTrId("chart_value_format").arg(point()->name, point()->valueText)
                              : QString();
}

QString ChartCursor::keyAt(int index) const {
    if (!m_model || index < 0 || index >= m_model->rowCount())
        return {};
    const QString& key = m_model->points().at(index).key;
    return key.isEmpty() ? QString::number(index) : key;
}

int ChartCursor::first() const {
    const QList<ChartPoint> points = m_model ? m_model->points() : QList<ChartPoint>();
    const auto found = std::find_if(points.cbegin(), points.cend(),
                                    [](const ChartPoint& point) { return point.value != 0; });
    if (found == points.cend())
        return points.isEmpty() ? -1 : 0;
    return static_cast<int>(found - points.cbegin());
}

} // namespace norvin
