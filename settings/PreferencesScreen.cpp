#include "settings/PreferencesScreen.h"

#include "focus/PomodoroTimerService.h"
#include "platform/Autostart.h"
#include "platform/OverlaySupport.h"
#include "platform/Preferences.h"

#include <algorithm>

namespace norvin {

namespace {

constexpr auto thresholdKey = QLatin1String("inactivity_threshold_minutes");
constexpr auto detectorKey = QLatin1String("is_inactivity_detector_enabled");
// As the detector itself where nothing is stored.
constexpr int defaultThresholdMinutes = 3;
constexpr int mostThresholdMinutes = 60 * 24;
constexpr int longestName = 60;

QString reasonKeyOf(const Availability& availability) {
    return availability.isAvailable() ? QString() : availability.reason()->reasonKey;
}

} // namespace

PreferencesScreen::PreferencesScreen(Preferences& preferences, TickSoundSettings& tickSounds, QObject* parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_tickSounds(tickSounds) {
    connect(&preferences, &Preferences::changed, this, &PreferencesScreen::handleChange);
}

PreferencesScreen::~PreferencesScreen() = default;

void PreferencesScreen::setCompanions(const Companions& companions) {
    m_with = companions;
    if (m_with.autostart != nullptr)
        connect(m_with.autostart, &Autostart::changed, this, &PreferencesScreen::autostartChanged);
    retranslate(m_locale);
}

QString PreferencesScreen::profileName() const {
    return m_preferences.value(QLatin1String(profileNameKey)).value_or(QVariant()).toString();
}

void PreferencesScreen::setProfileName(const QString& name) {
    const QString kept = name.simplified().left(longestName);
    if (kept == profileName())
        return;
    if (kept.isEmpty())
        m_preferences.remove(QLatin1String(profileNameKey));
    else
        m_preferences.setValue(QLatin1String(profileNameKey), kept);
}

bool PreferencesScreen::detectsInactivity() const {
    return m_preferences.value(detectorKey).value_or(QVariant(true)).toBool();
}

void PreferencesScreen::setDetectsInactivity(bool detects) {
    if (detects != detectsInactivity())
        m_preferences.setValue(detectorKey, detects);
}

int PreferencesScreen::inactivityMinutes() const {
    const qlonglong stored = m_preferences.value(thresholdKey).value_or(QVariant(0)).toLongLong();
    return stored <= 0 ? defaultThresholdMinutes
                       : static_cast<int>(std::min<qlonglong>(stored, mostThresholdMinutes));
}

void PreferencesScreen::setInactivityMinutes(int minutes) {
    if (minutes >= 1 && minutes != inactivityMinutes())
        m_preferences.setValue(thresholdKey, std::min(minutes, mostThresholdMinutes));
}

QList<int> PreferencesScreen::inactivityChoices() const {
    QList<int> choices{1, 2, 3, 5, 10, 15};
    const int current = inactivityMinutes();
    if (!choices.contains(current))
        choices.insert(std::lower_bound(choices.begin(), choices.end(), current), current);
    return choices;
}

int PreferencesScreen::workMinutes() const {
    return PomodoroTimerService::workDuration / 60;
}

int PreferencesScreen::breakMinutes() const {
    return PomodoroTimerService::breakDuration / 60;
}

int PreferencesScreen::rearmingMinutes() const {
    return PomodoroTimerService::rearmingDuration / 60;
}

bool PreferencesScreen::hasFloatingTimer() const {
    return m_preferences.value(QLatin1String(floatingTimerKey)).value_or(QVariant(true)).toBool();
}

void PreferencesScreen::setHasFloatingTimer(bool wanted) {
    if (wanted != hasFloatingTimer())
        m_preferences.setValue(QLatin1String(floatingTimerKey), wanted);
}

QString PreferencesScreen::floatingTimerProblemKey() const {
    return m_with.overlays != nullptr ? reasonKeyOf(m_with.overlays->availability()) : QString();
}

bool PreferencesScreen::startsAtLogin() const {
    return m_with.autostart != nullptr && m_with.autostart->isEnabled();
}

void PreferencesScreen::setStartsAtLogin(bool starts) {
    if (m_with.autostart != nullptr)
        m_with.autostart->setEnabled(starts);
}

QString PreferencesScreen::autostartProblemKey() const {
    return m_with.autostart != nullptr ? reasonKeyOf(m_with.autostart->availability()) : QString();
}

void PreferencesScreen::open() {
    Q_EMIT autostartChanged();
    if (m_with.data != nullptr)
        m_with.data->refresh();
}

void PreferencesScreen::retranslate(const QLocale& locale) {
    m_locale = locale;
    if (m_with.data != nullptr)
        m_with.data->retranslate(locale);
}

void PreferencesScreen::handleChange(const QString& key) {
    if (key == QLatin1String(profileNameKey))
        Q_EMIT profileNameChanged();
    else if (key == detectorKey || key == thresholdKey)
        Q_EMIT inactivityChanged();
    else if (key == QLatin1String(floatingTimerKey))
        Q_EMIT floatingTimerChanged();
}

} // namespace norvin
