#include "sound/ImmersionService.h"

#include "platform/Preferences.h"

#include <algorithm>
#include <cmath>

namespace norvin {

namespace {

constexpr auto depthKey = QLatin1String("immersion_depth");
// Smaller ones nobody sees, and each of them has the window drawn anew.
constexpr double step = 1.0 / 40;

double depthInRange(double depth) {
    return std::isnan(depth) ? ImmersionService::defaultDepth : std::clamp(depth, 0.0, 1.0);
}

} // namespace

ImmersionService::ImmersionService(Preferences& preferences, QObject* parent)
    : QObject(parent)
    , m_preferences(preferences) {
    if (const auto depth = preferences.value(depthKey)) {
        bool isNumber = false;
        const double number = depth->toDouble(&isNumber);
        m_depth = isNumber ? depthInRange(number) : defaultDepth;
    }
}

ImmersionService::~ImmersionService() = default;

void ImmersionService::setDepth(double depth) {
    const double wanted = depthInRange(depth);
    if (wanted == m_depth)
        return;
    m_depth = wanted;
    m_preferences.setValue(depthKey, wanted);
    Q_EMIT depthChanged();
    update();
}

int ImmersionService::depthPercent() const {
    return static_cast<int>(std::lround(m_depth * 100));
}

void ImmersionService::setDepthPercent(int percent) {
    // What was stored in between two steps stays until it is really moved.
    if (percent != depthPercent())
        setDepth(percent / 100.0);
}

void ImmersionService::followWork(std::chrono::seconds elapsed) {
    const double way = std::clamp(std::chrono::duration<double>(elapsed) / descent, 0.0, 1.0);
    m_reached = std::ceil(way * way * (3 - 2 * way) / step) * step;
    update();
}

void ImmersionService::surface() {
    m_reached = 0;
    update();
}

void ImmersionService::update() {
    const double depth = m_depth * std::min(m_reached, 1.0);
    if (depth == m_effectiveDepth)
        return;
    m_effectiveDepth = depth;
    Q_EMIT effectiveDepthChanged();
}

} // namespace norvin
