#include "ui/welcome/WelcomeScreen.h"

#include "distraction/BlockListsScreen.h"
#include "focus/DeepWorkScreen.h"
#include "platform/BrowserAccess.h"
#include "platform/Preferences.h"
#include "ui/Localization.h"

#include <utility>

namespace norvin {

WelcomeScreen::WelcomeScreen(Collaborators collaborators, QObject* parent)
    : QObject(parent)
    , m_with(std::move(collaborators)) {
    connect(&m_with.browsers, &BrowserAccess::changed, this, &WelcomeScreen::pageAccessChanged);
}

WelcomeScreen::~WelcomeScreen() = default;

bool WelcomeScreen::isFirstLaunch(const Preferences& preferences) {
    return !preferences.value(QLatin1String(completedKey)).value_or(QVariant(false)).toBool() &&
           !preferences.value(QLatin1String(Localization::preferencesKey));
}

QString WelcomeScreen::pageAccess() const {
    const std::optional<Unavailable> reason = m_with.browsers.accessibility().reason();
    if (!reason)
        return QStringLiteral("on");
    return reason->reasonKey == QLatin1String("health_accessibility_off") ? QStringLiteral("off")
                                                                          : QStringLiteral("missing");
}

BlockListSuggestions* WelcomeScreen::suggestions() const {
    return m_with.blockLists.suggestions();
}

void WelcomeScreen::setTaskTitle(const QString& title) {
    if (title == m_taskTitle)
        return;
    m_taskTitle = title;
    Q_EMIT taskTitleChanged();
}

void WelcomeScreen::present() {
    if (m_isPresented)
        return;
    m_isPresented = true;
    setTaskTitle({});
    goTo(Language);
    Q_EMIT presentedChanged();
}

void WelcomeScreen::next() {
    if (!m_isPresented)
        return;
    if (m_step == Lists && suggestions()->chosenCount() > 0)
        m_with.blockLists.addChosenSuggestions();
    if (m_step == Task)
        static_cast<void>(m_with.deepWork.addTask(m_taskTitle));
    goOn();
}

void WelcomeScreen::skip() {
    if (m_isPresented)
        goOn();
}

void WelcomeScreen::back() {
    if (m_isPresented && m_step != Language)
        goTo(static_cast<Step>(m_step - 1));
}

void WelcomeScreen::leave() {
    if (!m_isPresented)
        return;
    settleLanguage();
    close();
}

void WelcomeScreen::allowPageAccess() {
    m_with.browsers.setAccessibilityEnabled(true);
}

void WelcomeScreen::start() {
    if (!m_isPresented || m_taskTitle.trimmed().isEmpty())
        return;
    // Shown once more during a session, there is nothing to start.
    if (m_with.deepWork.startPhaseWith(m_taskTitle, PomodoroPhase::work, std::nullopt))
        static_cast<void>(m_with.deepWork.addTask(m_taskTitle));
    close();
    Q_EMIT started();
}

void WelcomeScreen::goOn() {
    if (m_step == Language)
        settleLanguage();
    if (m_step == Task)
        close();
    else
        goTo(static_cast<Step>(m_step + 1));
}

// Whoever goes on in a language has chosen it.
void WelcomeScreen::settleLanguage() {
    m_with.localization.setLanguage(m_with.localization.language());
}

void WelcomeScreen::goTo(Step step) {
    m_step = step;
    if (step == Lists)
        suggestions()->refresh();
    Q_EMIT stepChanged();
}

void WelcomeScreen::close() {
    m_isPresented = false;
    m_with.preferences.setValue(QLatin1String(completedKey), true);
    Q_EMIT presentedChanged();
}

} // namespace norvin
