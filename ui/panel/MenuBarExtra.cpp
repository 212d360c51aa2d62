#include "ui/panel/MenuBarExtra.h"

#include "focus/DeepWorkScreen.h"
#include "platform/Clock.h"
#include "platform/OverlaySupport.h"
#include "ui/Localization.h"
#include "ui/shell/WindowActions.h"

#include <QCursor>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QScreen>

namespace norvin {

namespace {

constexpr auto panelAction = "show_panel";
constexpr auto floatingTimerAction = "toggle_floating_timer";
constexpr auto showWindowEntry = "show_window";

QString translated(const QString& key) {
    return qtTrId(key.toUtf8().constData());
}

} // namespace

MenuBarExtra::MenuBarExtra(const Collaborators& collaborators, QObject* parent)
    : QObject(parent)
    , m_with(collaborators)
    , m_floatingTimer({.timer = m_with.timer,
                       .deepWork = m_with.deepWork,
                       .preferences = m_with.preferences,
                       .support = m_with.support,
                       .clock = m_with.clock,
                       .engine = m_with.engine,
                       .mainWindow = m_with.mainWindow})
    , m_panel({.deepWork = m_with.deepWork,
               .floatingTimer = m_floatingTimer,
               .support = m_with.support,
               .clock = m_with.clock,
               .engine = m_with.engine,
               .ambientSound = m_with.ambientSound}) {
    addActions();
    using Timer = PomodoroTimerService;
    connect(&m_with.timer, &Timer::stateChanged, this, &MenuBarExtra::refresh);
    connect(&m_with.timer, &Timer::phaseChanged, this, &MenuBarExtra::refresh);
    connect(&m_with.timer, &Timer::timeRemainingChanged, this, &MenuBarExtra::countSecond);
    connect(&m_with.actions, &WindowActions::changed, this, &MenuBarExtra::refreshMenu);
    connect(&m_floatingTimer, &FloatingTimer::isEnabledChanged, this, &MenuBarExtra::refreshMenu);
    connect(&m_with.localization, &Localization::languageChanged, this, [this] {
        m_floatingTimer.retranslate();
        refresh();
    });
    connect(&m_with.item, &StatusItem::activated, this, &MenuBarExtra::openPanel);
    connect(&m_with.item, &StatusItem::secondaryActivated, this, [this] {
        const TimerState state = m_with.timer.state();
        if (state == TimerState::running)
            m_with.deepWork.pause();
        else if (state == TimerState::paused)
            m_with.deepWork.resume();
        else
            m_with.deepWork.start();
    });
    connect(&m_with.item, &StatusItem::menuEntryChosen, this, &MenuBarExtra::choose);
    connect(&m_panel, &TrayPanel::windowWanted, this, &MenuBarExtra::windowWanted);
}

MenuBarExtra::~MenuBarExtra() = default;

void MenuBarExtra::addActions() {
    m_with.actions.add({.id = QLatin1String(panelAction),
                        .titleKey = QStringLiteral("action_show_panel"),
                        .symbol = QStringLiteral("timer"),
                        .run = [this] { m_panel.toggle(); }});
    m_with.actions.add({.id = QLatin1String(floatingTimerAction),
                        .titleKey = QStringLiteral("action_toggle_floating_timer"),
                        .symbol = QStringLiteral("timer"),
                        .isOffered = [this] { return m_floatingTimer.isAvailable(); },
                        .run = [this] { m_floatingTimer.setEnabled(!m_floatingTimer.isEnabled()); }});
}

void MenuBarExtra::show() {
    m_isShown = true;
    refresh();
}

QString MenuBarExtra::phaseText() const {
    const PomodoroPhase phase = m_with.timer.phase();
    const bool isWork = phase == PomodoroPhase::work;
    switch (m_with.timer.state()) {
    case TimerState::idle:
        return qtTrId("phase_idle");
    case TimerState::completed:
        return isWork                              ? qtTrId("completed_work_title")
               : phase == PomodoroPhase::breakTime ? qtTrId("completed_break_title")
                                                   : qtTrId("completed_rearming_title");
    case TimerState::running:
    case TimerState::paused:
        break;
    }
    return isWork                              ? qtTrId("phase_work")
           : phase == PomodoroPhase::breakTime ? qtTrId("phase_break")
                                               : qtTrId("phase_rearming");
}

int MenuBarExtra::minutesLeft() const {
    return (m_with.timer.timeRemaining() + 59) / 60;
}

// Trays keep the text that they have read, so a running time is told by what stays true: by the minute.
QString MenuBarExtra::timeText() const {
    switch (m_with.timer.state()) {
    case TimerState::running: {
        const QDateTime end = m_with.clock.now().addSecs(m_with.timer.timeRemaining());
        return qtTrId("tray_time_left", minutesLeft())
            .arg(m_with.localization.locale().toString(end.time(), QLocale::ShortFormat));
    }
    case TimerState::paused:
        return qtTrId("tray_paused").arg(m_with.timer.timeRemainingString());
    case TimerState::idle:
    case TimerState::completed:
        break;
    }
    return {};
}

void MenuBarExtra::refresh() {
    if (!m_isShown)
        return;
    m_content.symbolFile = QStringLiteral(":/icons/%1.svg").arg(m_with.deepWork.phaseSymbol());
    refreshTexts();
    refreshMenu();
}

void MenuBarExtra::countSecond() {
    const TimerState state = m_with.timer.state();
    if (!m_isShown || (state != TimerState::running && state != TimerState::paused))
        return;
    if (minutesLeft() == m_shownMinutes) {
        m_content.label = m_with.timer.timeRemainingString();
        m_with.item.setContent(m_content);
        return;
    }
    refreshTexts();
    refreshMenu();
}

void MenuBarExtra::refreshTexts() {
    const TimerState state = m_with.timer.state();
    const bool isUnderWay = state == TimerState::running || state == TimerState::paused;
    m_shownMinutes = minutesLeft();
    m_content.label = isUnderWay ? m_with.timer.timeRemainingString() : QString();
    m_content.title = state == TimerState::idle ? QStringLiteral("Norvin Focus") : phaseText();
    m_content.text = state == TimerState::idle ? phaseText() : timeText();
    m_with.item.setContent(m_content);
}

void MenuBarExtra::appendAction(QList<StatusItem::MenuEntry>& entries, const char* id) const {
    for (const WindowActions::Action& action : m_with.actions.actions()) {
        if (action.id == QLatin1String(id) && WindowActions::isOffered(action)) {
            entries.append({.id = action.id,
                            .text = translated(action.titleKey),
                            .isEnabled = WindowActions::isEnabled(action)});
        }
    }
}

void MenuBarExtra::refreshMenu() {
    if (!m_isShown)
        return;
    const QString time = timeText();
    QList<StatusItem::MenuEntry> entries{
        {.id = QStringLiteral("state"),
         .text = time.isEmpty() ? phaseText() : phaseText() + QStringLiteral(" – ") + time,
         .isEnabled = false},
        {}};
    for (const char* id : {"start_work", "start_break", "start_rearming", "pause", "resume", "stop"})
        appendAction(entries, id);
    entries.append(StatusItem::MenuEntry{});
    appendAction(entries, panelAction);
    entries.append({.id = QLatin1String(showWindowEntry), .text = qtTrId("tray_show_window")});
    if (m_floatingTimer.isAvailable()) {
        entries.append({.id = QLatin1String(floatingTimerAction),
                        .text = qtTrId("floating_timer"),
                        .isChecked = m_floatingTimer.isEnabled()});
    }
    entries.append(StatusItem::MenuEntry{});
    appendAction(entries, "check_for_updates");
    appendAction(entries, "quit");
    m_with.item.setMenu(entries);
}

void MenuBarExtra::choose(const QString& id) {
    if (id == QLatin1String(showWindowEntry))
        Q_EMIT windowWanted();
    else if (id == QLatin1String(panelAction))
        openPanel(std::nullopt);
    else
        m_with.actions.run(id);
}

void MenuBarExtra::openPanel(std::optional<QPoint> position) {
    // Where windows can be placed, the pointer is known too; it is still at the item or its menu.
    if (!position && m_with.support.availability().isAvailable()) {
        const QPoint pointer = QCursor::pos();
        if (const QScreen* screen = QGuiApplication::screenAt(pointer)) {
            const QPoint origin = screen->geometry().topLeft();
            position = origin + (pointer - origin) * screen->devicePixelRatio();
        }
    }
    m_panel.toggle(position);
}

} // namespace norvin
