#include "DonutLayout.h"

#include <QLocale>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace norvin {

namespace {

constexpr double twelveOClock = -90;
/// Between two slices.
constexpr double gap = 1.6;
constexpr double thinnest = 0.8;

constexpr std::array categoryColors{
    std::pair(QLatin1String("category_development"), QLatin1String("#8b5cf6")),
    std::pair(QLatin1String("category_productivity"), QLatin1String("#3b82f6")),
    std::pair(QLatin1String("category_communication"), QLatin1String("#06b6d4")),
    std::pair(QLatin1String("category_social"), QLatin1String("#ec4899")),
    std::pair(QLatin1String("category_entertainment"), QLatin1String("#f97316")),
    std::pair(QLatin1String("category_design"), QLatin1String("#eab308")),
    std::pair(QLatin1String("category_navigation"), QLatin1String("#22c55e")),
    std::pair(QLatin1String("category_system"), QLatin1String("#94a3b8")),
    std::pair(QLatin1String("category_other"), QLatin1String("#64748b")),
};
/// For what nobody has given a colour.
constexpr std::array furtherColors{QLatin1String("#14b8a6"), QLatin1String("#a3e635"),
                                   QLatin1String("#fb7185"), QLatin1String("#38bdf8"),
                                   QLatin1String("#d97706"), QLatin1String("#c084fc")};

} // namespace

void DonutLayout::setModel(ChartModel* model) {
    if (model == m_model)
        return;
    disconnect(m_connection);
    m_model = model;
    if (model != nullptr)
        m_connection = connect(model, &ChartModel::changed, this, &DonutLayout::update);
    update();
}

void DonutLayout::setLanguage(const QString& language) {
    if (language == m_language)
        return;
    m_language = language;
    update();
}

int DonutLayout::sliceAt(double x, double y) const {
    // Counted from the start of the first slice, as the slices are.
    const double angle = std::fmod(qRadiansToDegrees(std::atan2(y, x)) - twelveOClock + 360, 360);
    for (qsizetype i = m_starts.size() - 1; i >= 0; --i) {
        if (angle >= m_starts.at(i) - twelveOClock - gap / 2)
            return static_cast<int>(i);
    }
    return m_starts.isEmpty() ? -1 : 0;
}

QString DonutLayout::colorOf(const QString& key) {
    for (const auto& [category, color] : categoryColors) {
        if (key == category)
            return color;
    }
    // Not qHash(), which may answer otherwise on another day.
    size_t number = 0;
    for (const QChar character : key)
        number = number * 31 + character.unicode();
    return furtherColors.at(number % furtherColors.size());
}

void DonutLayout::update() {
    m_starts.clear();
    m_sweeps.clear();
    m_shares.clear();
    m_colors.clear();
    const QLocale locale(m_language);
    const double total = m_model ? m_model->total() : 0;
    const double room = m_model && m_model->rowCount() > 1 ? gap : 0;
    double start = twelveOClock;
    if (total > 0) {
        for (const ChartPoint& point : m_model->points()) {
            const double share = point.value / total;
            m_starts.append(start + room / 2);
            m_sweeps.append(std::max(share * 360 - room, std::min(share * 360, thinnest)));
            m_shares.append(share > 0 && share < 0.005
                                ? qtTrId("chart_share_small").arg(locale.toString(1))
                                : qtTrId("chart_share").arg(locale.toString(std::lround(share * 100))));
            m_colors.append(colorOf(point.key));
            start += share * 360;
        }
    }
    Q_EMIT changed();
}

} // namespace norvin
