#include "ChartLayout.h"

#include "stats/StatsFormats.h"

#include <QGuiApplication>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace norvin {

namespace {

constexpr double maximumScore = 10;
/// Points closer together than this would run into one another.
constexpr double markDistance = 14;
constexpr double labelGap = 10;
constexpr double barShare = 0.62;
constexpr double widestBar = 40;
constexpr double barRadius = 5;
constexpr int mostTicks = 4;
/// Lengths in minutes that people count in.
constexpr std::array roundSteps{1, 2, 5, 10, 15, 30, 60, 120, 180, 300, 600, 1200, 1800, 3000, 6000};

int roundStep(double largest) {
    for (const int step : roundSteps) {
        if (largest <= step * mostTicks)
            return step;
    }
    int step = roundSteps.back();
    while (largest > static_cast<double>(step) * mostTicks)
        step *= 2;
    return step;
}

} // namespace

void ChartLayout::setModel(ChartModel* model) {
    if (model == m_model)
        return;
    disconnect(m_connection);
    m_model = model;
    if (model != nullptr)
        m_connection = connect(model, &ChartModel::changed, this, &ChartLayout::update);
    update();
}

bool ChartLayout::showsMarks() const {
    return m_step >= markDistance || m_xs.size() == 1;
}

double ChartLayout::heightOf(double value) const {
    return m_height * (1 - std::clamp(value / m_top, 0.0, 1.0));
}

int ChartLayout::pointAt(double x) const {
    const int count = static_cast<int>(m_xs.size());
    if (count == 0)
        return -1;
    if (m_step <= 0)
        return 0;
    const double place = m_inBands ? std::floor(x / m_step) : std::round(x / m_step);
    return static_cast<int>(std::clamp(place, 0.0, count - 1.0));
}

void ChartLayout::update() {
    const QList<double> values = m_model ? m_model->values() : QList<double>();
    QFont font = QGuiApplication::font();
    font.setPixelSize(std::max(m_fontPixelSize, 1));
    const QFontMetricsF metrics(font);
    const double largest = m_model ? m_model->largest() : 0;
    const double slots = static_cast<double>(values.size()) - (m_inBands ? 0 : 1);
    m_step = slots > 0 ? m_width / slots : 0;
    m_top = m_scale == Score ? maximumScore : largest > 0 ? largest : 1;
    placeTicks(metrics);

    m_xs.clear();
    m_ys.clear();
    m_line.clear();
    for (qsizetype i = 0; i < values.size(); ++i) {
        const double place = static_cast<double>(i) + (m_inBands ? 0.5 : 0);
        m_xs.append(slots > 0 ? place * m_step : m_width / 2);
        m_ys.append(heightOf(values.at(i)));
        m_line.append(QPointF(m_xs.constLast(), m_ys.constLast()));
    }
    m_area = m_line;
    if (!m_line.isEmpty()) {
        m_area.prepend(QPointF(m_xs.constFirst(), m_height));
        m_area.append(QPointF(m_xs.constLast(), m_height));
    }
    placeLabels(metrics);
    placeNumbers(metrics);
    drawBars();
    Q_EMIT changed();
}

void ChartLayout::placeTicks(const QFontMetricsF& metrics) {
    m_tickYs.clear();
    m_tickTexts.clear();
    if (m_scale == Largest)
        return;
    const int step = m_scale == Score ? 5 : roundStep(m_top);
    const int ticks = m_scale == Score ? 2 : static_cast<int>(std::ceil(m_top / step));
    m_top = step * ticks;
    double widest = 0;
    for (int tick = 0; tick <= ticks; ++tick) {
        m_tickYs.append(heightOf(step * tick));
        m_tickTexts.append(m_scale == Score ? QString::number(step * tick) : formatTime(step * tick));
        widest = std::max(widest, std::ceil(metrics.horizontalAdvance(m_tickTexts.constLast())));
    }
    if (widest != m_tickWidth) {
        m_tickWidth = widest;
        Q_EMIT tickWidthChanged();
    }
}

// Every so many labels, counted from the last, which says where the chart has come to. One at an edge may be
// moved inwards, and then has to leave its neighbour the room.
void ChartLayout::placeLabels(const QFontMetricsF& metrics) {
    m_labelXs.clear();
    m_labelTexts.clear();
    QList<qsizetype> labelled;
    double widest = 0;
    for (qsizetype i = 0; i < m_xs.size(); ++i) {
        const QString& label = m_model->points().at(i).label;
        if (label.isEmpty())
            continue;
        labelled.append(i);
        widest = std::max(widest, metrics.horizontalAdvance(label));
    }
    double nearest = m_width;
    for (qsizetype i = 1; i < labelled.size(); ++i)
        nearest = std::min(nearest, m_xs.at(labelled.at(i)) - m_xs.at(labelled.at(i - 1)));
    qsizetype every = 1;
    while (every < labelled.size() && nearest * static_cast<double>(every) < widest + labelGap)
        ++every;
    double taken = std::numeric_limits<double>::infinity();
    for (qsizetype i = labelled.size() - 1; i >= 0; i -= every) {
        const QString& label = m_model->points().at(labelled.at(i)).label;
        const double half = metrics.horizontalAdvance(label) / 2;
        const double middle =
            std::max(half - m_overhang, std::min(m_xs.at(labelled.at(i)), m_width + m_overhang - half));
        if (middle + half + labelGap > taken)
            continue;
        taken = middle - half;
        m_labelXs.prepend(middle);
        m_labelTexts.prepend(label);
    }
}

void ChartLayout::placeNumbers(const QFontMetricsF& metrics) {
    m_numberXs.clear();
    m_numberYs.clear();
    m_numberTexts.clear();
    for (qsizetype i = 0; i < m_xs.size(); ++i) {
        const double value = m_model->points().at(i).value;
        const QString text = QString::number(std::lround(value));
        if (value == 0 || metrics.horizontalAdvance(text) > m_step)
            continue;
        m_numberXs.append(m_xs.at(i));
        m_numberYs.append(m_ys.at(i));
        m_numberTexts.append(text);
    }
}

void ChartLayout::drawBars() {
    m_bars.clear();
    if (!m_inBands)
        return;
    const double half = std::min(m_step * barShare, widestBar) / 2;
    for (qsizetype i = 0; i < m_xs.size(); ++i) {
        if (m_ys.at(i) >= m_height)
            continue;
        const double left = m_xs.at(i) - half;
        const double right = m_xs.at(i) + half;
        const double y = m_ys.at(i);
        const double radius = std::min({barRadius, half, m_height - y});
        m_bars += QStringLiteral("M%1 %5V%2Q%1 %3 %4 %3")
                      .arg(left)
                      .arg(y + radius)
                      .arg(y)
                      .arg(left + radius)
                      .arg(m_height);
        m_bars += QStringLiteral("H%1Q%2 %3 %2 %4V%5Z")
                      .arg(right - radius)
                      .arg(right)
                      .arg(y)
                      .arg(y + radius)
                      .arg(m_height);
    }
}

} // namespace norvin
