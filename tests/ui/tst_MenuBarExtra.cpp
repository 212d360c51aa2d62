#include "platform/fake/FakeOverlaySupport.h"
#include "platform/fake/FakeStatusItem.h"
#include "tests/ui/UiRig.h"
#include "ui/alert/OverlayWindow.h"
#include "ui/panel/MenuBarExtra.h"

using namespace norvin;
using namespace std::chrono_literals;

/// The item in the tray, the panel behind it, and the floating timer.
class MenuBarExtraTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { make(QStringLiteral("en")); }
    void cleanup() {
        extra.reset();
        rig.reset();
    }

    void itemTellsTheState();
    void secondsAreTheLabelsAndMinutesTheTips();
    void menuOffersWhatCanBeDone();
    void middleClickPausesAndResumes();
    void panelOpensAndClosesWithTheClick();
    void panelRunsASession();
    void panelIsAPlainWindowWithoutAPlace();
    void panelTakesEachKey();
    void panelPlaces_data();
    void panelPlaces();
    void floatingTimerStandsInForTheWindow();
    void floatingTimerIsDraggedAndKeepsItsPlace();
    void floatingTimerIsSwitchedOff();
    void floatingPlaces_data();
    void floatingPlaces();
    void badOffsetsAreForgotten();
    void showsItsFaces_data();
    void showsItsFaces();

private:
    void make(const QString& language) {
        cleanup();
        rig = std::make_unique<UiRig>(language);
        QVERIFY(rig->loaded);
        makeExtra();
    }
    void makeExtra() {
        extra.reset();
        support.setAvailability(Availability::available());
        item = std::make_unique<FakeStatusItem>();
        actions = std::make_unique<WindowActions>(nullptr);
        actions->add({.id = QStringLiteral("start_work"),
                      .titleKey = QStringLiteral("action_start_work"),
                      .symbol = QStringLiteral("timer"),
                      .isOffered = [this] { return rig->deepWork.state() == QLatin1String("idle"); },
                      .run = [this] { rig->deepWork.start(); }});
        actions->add({.id = QStringLiteral("stop"),
                      .titleKey = QStringLiteral("action_stop"),
                      .symbol = QStringLiteral("timer"),
                      .isOffered = [this] { return rig->deepWork.state() == QLatin1String("running"); },
                      .run = [this] { rig->deepWork.stop(); }});
        actions->add({.id = QStringLiteral("check_for_updates"),
                      .titleKey = QStringLiteral("check_for_updates"),
                      .symbol = QStringLiteral("timer"),
                      .isEnabled = [this] { return canCheckForUpdates; },
                      .run = [] {}});
        actions->add({.id = QStringLiteral("quit"),
                      .titleKey = QStringLiteral("quit_button"),
                      .symbol = QStringLiteral("power"),
                      .run = [this] { ++quits; }});
        extra =
            std::make_unique<MenuBarExtra>(MenuBarExtra::Collaborators{.item = *item,
                                                                       .timer = rig->focus.timer,
                                                                       .deepWork = rig->deepWork,
                                                                       .preferences = rig->focus.preferences,
                                                                       .support = support,
                                                                       .clock = rig->focus.clock,
                                                                       .engine = rig->userInterface->engine(),
                                                                       .localization = *rig->localization,
                                                                       .actions = *actions,
                                                                       .mainWindow = *rig->window()});
        extra->show();
    }
    [[nodiscard]] QString symbol() const { return QFileInfo(item->content().symbolFile).completeBaseName(); }
    [[nodiscard]] QQuickWindow* panel() const { return extra->panel().window(); }
    [[nodiscard]] OverlayWindow* floating() const { return extra->floatingTimer().window(); }
    [[nodiscard]] static QQuickItem* in(QQuickWindow* window, const char* name) {
        return window->findChild<QQuickItem*>(QLatin1String(name));
    }
    static void click(QQuickWindow* window, const char* name) {
        static_cast<void>(window->grabWindow()); // lays out what has come and gone
        const QQuickItem* item = in(window, name);
        QVERIFY2(item && item->isVisible(), name);
        QTest::mouseClick(window, Qt::LeftButton, {},
                          item->mapToScene(item->boundingRect().center()).toPoint());
    }
    [[nodiscard]] static QString spoken(QQuickItem* item) {
        return QAccessible::queryAccessibleInterface(item)->text(QAccessible::Name);
    }
    void openPanel() {
        item->click(QPoint(700, 10));
        QVERIFY(panel());
        QVERIFY(QTest::qWaitForWindowActive(panel()));
    }
    /// The windows of these tests all take the keyboard, the floating timer too; it would close the panel.
    void switchFloatingTimerOff() const { extra->floatingTimer().setEnabled(false); }
    /// Lets the floating timer wait for the window to settle.
    void passSettling() const {
        FocusRig::settle();
        rig->focus.clock.advance(300ms);
    }
    static void keepPicture(QQuickWindow* window, const QString& name) {
        const QString folder = qEnvironmentVariable("NORVIN_PICTURES");
        const QImage picture = window->grabWindow();
        QVERIFY(!picture.isNull());
        if (!folder.isEmpty())
            picture.save(folder + u'/' + name + QStringLiteral(".png"));
    }

    std::unique_ptr<UiRig> rig;
    FakeOverlaySupport support;
    std::unique_ptr<FakeStatusItem> item;
    std::unique_ptr<WindowActions> actions;
    std::unique_ptr<MenuBarExtra> extra;
    bool canCheckForUpdates = false;
    int quits = 0;
};

void MenuBarExtraTest::itemTellsTheState() {
    QCOMPARE(symbol(), QStringLiteral("brain"));
    QVERIFY(QFile::exists(item->content().symbolFile));
    QCOMPARE(item->content().title, QStringLiteral("Norvin Focus"));
    QVERIFY(item->content().label.isEmpty());

    rig->deepWork.startBreak();
    QCOMPARE(symbol(), QStringLiteral("cup.and.saucer.fill"));
    QCOMPARE(item->content().label, QStringLiteral("05:00"));
    rig->deepWork.pause();
    QCOMPARE(symbol(), QStringLiteral("pause.circle.fill"));
    QCOMPARE(item->content().label, QStringLiteral("05:00"));
    QCOMPARE(item->content().text, QStringLiteral("Paused with 05:00 left"));
    rig->deepWork.resume();
    rig->focus.pass(301s);
    QCOMPARE(symbol(), QStringLiteral("checkmark.circle.fill"));
    QCOMPARE(item->content().title, QStringLiteral("Break over"));
    QVERIFY(item->content().label.isEmpty());

    rig->localization->setLanguage(QStringLiteral("fr"));
    QCOMPARE(item->content().title, qtTrId("completed_break_title"));
    QVERIFY(item->content().title != QStringLiteral("Break over"));
}

void MenuBarExtraTest::secondsAreTheLabelsAndMinutesTheTips() {
    rig->deepWork.start();
    QVERIFY(item->content().text.startsWith(QStringLiteral("25 minutes left, until ")));
    const QString first = item->content().text;
    rig->focus.pass(59s);
    QCOMPARE(item->content().label, QStringLiteral("24:01"));
    QCOMPARE(item->content().text, first);
    rig->focus.pass(1s);
    QVERIFY(item->content().text.startsWith(QStringLiteral("24 minutes left, until ")));
    // The end stays where it was.
    QCOMPARE(item->content().text.section(QLatin1Char(' '), -1), first.section(QLatin1Char(' '), -1));
    QVERIFY(item->entry(QStringLiteral("state"))->text.endsWith(item->content().text));
}

void MenuBarExtraTest::menuOffersWhatCanBeDone() {
    QVERIFY(!item->entry(QStringLiteral("state"))->isEnabled);
    QVERIFY(!item->entry(QStringLiteral("stop")));
    QVERIFY(!item->entry(QStringLiteral("check_for_updates"))->isEnabled);
    canCheckForUpdates = true;
    actions->notifyChanged();
    QVERIFY(item->entry(QStringLiteral("check_for_updates"))->isEnabled);

    item->choose(QStringLiteral("start_work"));
    QCOMPARE(rig->deepWork.state(), QStringLiteral("running"));
    QVERIFY(!item->entry(QStringLiteral("start_work")));
    item->choose(QStringLiteral("stop"));
    QCOMPARE(rig->deepWork.state(), QStringLiteral("idle"));

    QCOMPARE(item->entry(QStringLiteral("toggle_floating_timer"))->isChecked, std::optional(true));
    item->choose(QStringLiteral("toggle_floating_timer"));
    QCOMPARE(item->entry(QStringLiteral("toggle_floating_timer"))->isChecked, std::optional(false));
    QVERIFY(!rig->focus.preferences.value(QStringLiteral("floating_timer_enabled"))->toBool());

    QSignalSpy window(extra.get(), &MenuBarExtra::windowWanted);
    item->choose(QStringLiteral("show_window"));
    item->choose(QStringLiteral("quit"));
    QCOMPARE(window.size(), 1);
    QCOMPARE(quits, 1);
    item->choose(QStringLiteral("show_panel"));
    QVERIFY(panel());
}

void MenuBarExtraTest::middleClickPausesAndResumes() {
    for (const char* state : {"running", "paused", "running"}) {
        item->clickMiddle();
        QCOMPARE(rig->deepWork.state(), QLatin1String(state));
    }
}

void MenuBarExtraTest::panelOpensAndClosesWithTheClick() {
    openPanel();
    QVERIFY(panel()->flags().testFlag(Qt::FramelessWindowHint));
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    QVERIFY(available.contains(panel()->geometry()));
    item->click(QPoint(700, 10));
    QVERIFY(!panel());

    openPanel();
    QTest::keyClick(panel(), Qt::Key_Escape);
    QVERIFY(!panel());

    // Another window takes the keyboard; a click that did it by the way opens nothing again.
    openPanel();
    rig->userInterface->showWindow();
    QTRY_VERIFY(!panel());
    item->click(QPoint(700, 10));
    QVERIFY(!panel());
    rig->focus.clock.advance(1s);
    openPanel();

    QSignalSpy wanted(extra.get(), &MenuBarExtra::windowWanted);
    click(panel(), "panelToWindow");
    QCOMPARE(wanted.size(), 1);
    QVERIFY(!panel());
}

void MenuBarExtraTest::panelRunsASession() {
    switchFloatingTimerOff();
    rig->deepWork.addTaskTitled(QStringLiteral("First"));
    rig->deepWork.addTaskTitled(QStringLiteral("Second"));
    openPanel();
    const auto text = [this](const char* name) { return in(panel(), name)->property("text").toString(); };
    click(panel(), "panelPrimary");
    QCOMPARE(rig->deepWork.state(), QStringLiteral("running"));
    QCOMPARE(text("panelTask"), QStringLiteral("First"));
    QVERIFY(!in(panel(), "panelBreak")->isVisible());
    rig->focus.pass(1s);
    QCOMPARE(in(panel(), "panelCountdown")->property("timeText").toString(), QStringLiteral("24:59"));
    QCOMPARE(spoken(in(panel(), "panelCountdown")), QStringLiteral("left, 25\u202fmin"));
    click(panel(), "panelPrimary");
    QCOMPARE(rig->deepWork.state(), QStringLiteral("paused"));
    click(panel(), "panelStop");
    QCOMPARE(rig->deepWork.state(), QStringLiteral("idle"));
    click(panel(), "panelBreak");
    QCOMPARE(rig->deepWork.phase(), QStringLiteral("break_time"));
    QCOMPARE(text("panelPhase"), QStringLiteral("Break"));
}

void MenuBarExtraTest::panelIsAPlainWindowWithoutAPlace() {
    support.setAvailability(Availability::unavailable(QStringLiteral("health_wayland_overlay")));
    makeExtra();
    support.setAvailability(Availability::unavailable(QStringLiteral("health_wayland_overlay")));
    item->click(QPoint(700, 10));
    QVERIFY(panel());
    QVERIFY(QTest::qWaitForWindowActive(panel()));
    QVERIFY(!panel()->flags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(!in(panel(), "floatingTimerSwitch")->isEnabled());
    QVERIFY(in(panel(), "floatingTimerProblem")->isVisible());
    rig->userInterface->showWindow();
    QTRY_VERIFY(rig->window()->isActive());
    QVERIFY(panel()); // it stays until it is closed
    panel()->close();
    QTRY_VERIFY(!panel());
    extra->panel().toggle();
    QVERIFY(panel());
}

void MenuBarExtraTest::panelTakesEachKey() {
    rig->deepWork.start();
    passSettling();
    QTRY_VERIFY(floating());
    openPanel();
    const auto press = [this](Qt::Key key) { QTest::keyClick(panel(), key); };
    const auto tabTo = [&](const char* name) {
        for (int presses = 0; presses < 20 && !in(panel(), name)->hasActiveFocus(); ++presses)
            press(Qt::Key_Tab);
        QVERIFY2(in(panel(), name)->hasActiveFocus(), qPrintable(panel()->activeFocusItem()->objectName()));
    };
    QVERIFY(in(panel(), "panelPrimary")->hasActiveFocus());
    tabTo("panelTaskField");
    for (const char letter : {'a', 'b'})
        QTest::keyClick(panel(), letter);
    press(Qt::Key_Return);
    for (const char letter : {'c', 'd'})
        QTest::keyClick(panel(), letter);
    press(Qt::Key_Return);
    QCOMPARE(rig->focus.timer.taskQueue().size(), 2);
    tabTo("panelQueue");
    static_cast<void>(panel()->grabWindow()); // makes the rows
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QCOMPARE(rig->deepWork.activeTaskTitle(), QStringLiteral("cd"));
    press(Qt::Key_Space);
    QVERIFY(rig->focus.timer.taskQueue()[1]->isDone());

    tabTo("panelPrimary");
    press(Qt::Key_Return);
    QCOMPARE(rig->deepWork.state(), QStringLiteral("paused"));
    const QPoint before = floating()->position();
    tabTo("floatingTimerMover");
    press(Qt::Key_Left);
    press(Qt::Key_Up);
    QTRY_COMPARE(floating()->position(), before - QPoint(16, 16));
    tabTo("floatingTimerSwitch");
    press(Qt::Key_Space);
    QTRY_VERIFY(!floating());
    for (const QQuickItem* child : UiRig::visibleItems(panel()->contentItem())) {
        const QAccessibleInterface* accessible =
            QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(child));
        if (child->activeFocusOnTab())
            QVERIFY2(accessible && !accessible->text(QAccessible::Name).isEmpty(),
                     qPrintable(child->objectName()));
    }

    // Quits as in every window of the program, and asks where it can be seen.
    rig->window()->hide();
    QTest::keyPress(panel(), Qt::Key_Q, Qt::ControlModifier); // the panel is gone before the key is let go
    QTRY_VERIFY(rig->window()->isVisible());
    QTRY_VERIFY(rig->saying(qtTrId("quit_title")));
}

void MenuBarExtraTest::panelPlaces_data() {
    QTest::addColumn<QPoint>("click");
    QTest::addColumn<QRect>("available");
    QTest::addColumn<QPoint>("place");
    const QRect belowTopBar(0, 30, 1400, 870);
    const QRect aboveBottomBar(0, 0, 1400, 860);
    QTest::newRow("bar at the top") << QPoint(700, 15) << belowTopBar << QPoint(520, 38);
    QTest::newRow("bar at the bottom") << QPoint(700, 880) << aboveBottomBar << QPoint(520, 352);
    QTest::newRow("near the right edge") << QPoint(1390, 880) << aboveBottomBar << QPoint(1032, 352);
    QTest::newRow("near the left edge") << QPoint(5, 15) << belowTopBar << QPoint(8, 38);
    QTest::newRow("bar that takes nothing away")
        << QPoint(700, 885) << QRect(0, 0, 1400, 900) << QPoint(520, 365);
}

void MenuBarExtraTest::panelPlaces() {
    QFETCH(QPoint, click);
    QFETCH(QRect, available);
    QFETCH(QPoint, place);
    QCOMPARE(panelPlace({360, 500}, click, QRect(0, 0, 1400, 900), available), QRect(place, QSize(360, 500)));
}

void MenuBarExtraTest::floatingTimerStandsInForTheWindow() {
    rig->show();
    rig->deepWork.start();
    passSettling();
    QVERIFY(!floating()); // the window shows the time
    rig->window()->hide();
    passSettling();
    QVERIFY(floating());
    QVERIFY(floating()->flags().testFlag(Qt::WindowDoesNotAcceptFocus));
    QTRY_VERIFY(floating()->isExposed());
    rig->focus.pass(1s);
    QCOMPARE(in(floating(), "floatingTime")->property("text").toString(), QStringLiteral("24:59"));
    QCOMPARE(spoken(in(floating(), "floatingTime")), QStringLiteral("25\u202fmin"));
    click(floating(), "floatingToggle");
    QCOMPARE(rig->deepWork.state(), QStringLiteral("paused"));
    click(floating(), "floatingToggle");
    QCOMPARE(rig->deepWork.state(), QStringLiteral("running"));
    rig->show();
    QTRY_VERIFY(!floating());
    rig->window()->hide();
    passSettling();
    QVERIFY(floating());
    rig->deepWork.stop();
    QTRY_VERIFY(!floating());

    support.setAvailability(Availability::unavailable(QStringLiteral("health_wayland_overlay")));
    rig->deepWork.start();
    passSettling();
    QVERIFY(!floating());
    QCOMPARE(extra->floatingTimer().availability().reason()->reasonKey,
             QStringLiteral("health_wayland_overlay"));
}

void MenuBarExtraTest::floatingTimerIsDraggedAndKeepsItsPlace() {
    rig->deepWork.start();
    passSettling();
    QVERIFY(floating());
    QTRY_VERIFY(floating()->isExposed());
    const QPoint before = floating()->position();
    // The pointer rests on the desktop where the window has gone from under it.
    QTest::mousePress(floating(), Qt::LeftButton, {}, QPoint(4, 4));
    QTest::mouseMove(floating(), QPoint(-36, -46));
    QTRY_COMPARE(floating()->position(), before - QPoint(40, 50));
    QTest::mouseRelease(floating(), Qt::LeftButton, {}, QPoint(4, 4));
    QCOMPARE(rig->focus.timer.floatingOffset(), QSizeF(-40, -50));
    QCOMPARE(rig->focus.preferences.value(QStringLiteral("floating_timer_offset"))->toString(),
             QStringLiteral("-40 -50"));
    extra->floatingTimer().moveBy(-9000, 0);
    QCOMPARE(floating()->x(), QGuiApplication::primaryScreen()->availableGeometry().x());

    // Another run of the program.
    rig->focus.preferences.setValue(QStringLiteral("floating_timer_offset"), QStringLiteral("-40 -50"));
    extra.reset();
    rig->focus.timer.setFloatingOffset({0, 0});
    rig->focus.preferences.setValue(QStringLiteral("floating_timer_offset"), QStringLiteral("-40 -50"));
    makeExtra();
    QCOMPARE(rig->focus.timer.floatingOffset(), QSizeF(-40, -50));
}

void MenuBarExtraTest::floatingTimerIsSwitchedOff() {
    rig->deepWork.start();
    passSettling();
    QVERIFY(floating());
    QTRY_VERIFY(floating()->isExposed());
    click(floating(), "floatingClose");
    QTRY_VERIFY(!floating());
    QCOMPARE(rig->focus.preferences.value(QStringLiteral("floating_timer_enabled")),
             std::optional<QVariant>(false));
    FocusRig::settle();
    passSettling();
    QVERIFY(!floating());
    // From elsewhere, as the preferences do; text as it is read from a file.
    rig->focus.preferences.setValue(QStringLiteral("floating_timer_enabled"), QStringLiteral("true"));
    FocusRig::settle();
    passSettling();
    QVERIFY(floating());
}

void MenuBarExtraTest::floatingPlaces_data() {
    QTest::addColumn<QSizeF>("offset");
    QTest::addColumn<QList<QRect>>("screens");
    QTest::addColumn<QPoint>("place");
    const QRect first(0, 0, 1000, 800);
    const QRect second(1000, 0, 600, 600);
    QTest::newRow("usual") << QSizeF(0, 0) << QList<QRect>{first} << QPoint(784, 624);
    QTest::newRow("beyond the edge") << QSizeF(500, 500) << QList<QRect>{first} << QPoint(800, 752);
    QTest::newRow("on the other screen")
        << QSizeF(500, -500) << QList<QRect>{first, second} << QPoint(1284, 124);
    QTest::newRow("of a screen that went") << QSizeF(500, -500) << QList<QRect>{first} << QPoint(800, 124);
}

void MenuBarExtraTest::floatingPlaces() {
    QFETCH(QSizeF, offset);
    QFETCH(QList<QRect>, screens);
    QFETCH(QPoint, place);
    QCOMPARE(floatingPlace({200, 48}, screens.first(), offset, screens), QRect(place, QSize(200, 48)));
    QCOMPARE(floatingOffsetOf(QRect(QPoint(784, 624) + QPoint(3, 4), QSize(200, 48)), screens.first()),
             QSizeF(3, 4));
}

void MenuBarExtraTest::badOffsetsAreForgotten() {
    for (const char* stored : {"", "nonsense", "1", "1 2 3", "1e300 0", "nan nan"}) {
        rig->focus.preferences.setValue(QStringLiteral("floating_timer_offset"), QLatin1String(stored));
        makeExtra();
        QCOMPARE(rig->focus.timer.floatingOffset(), QSizeF(0, 0));
    }
}

void MenuBarExtraTest::showsItsFaces_data() {
    UiRig::addLanguages();
}

/// Nothing is cut in any language, idle, running and completed.
void MenuBarExtraTest::showsItsFaces() {
    QFETCH(QString, language);
    make(language);
    rig->deepWork.start();
    passSettling();
    keepPicture(floating(), QStringLiteral("floating-%1").arg(language));
    rig->deepWork.pause();
    keepPicture(floating(), QStringLiteral("floating-%1-paused").arg(language));
    rig->deepWork.stop();
    switchFloatingTimerOff();
    rig->deepWork.addTaskTitled(QStringLiteral("Write the report"));
    rig->deepWork.addTaskTitled(QStringLiteral("Answer the question about the budget of next year"));
    openPanel();
    const auto look = [&](const char* name) {
        static_cast<void>(panel()->grabWindow()); // says how high it has to be
        QTRY_COMPARE(panel()->contentItem()->height(), double(panel()->height()));
        keepPicture(panel(), QStringLiteral("panel-%1-%2").arg(language, QLatin1String(name)));
        QCOMPARE(textFaults(*panel(), {QStringLiteral("Answer")}).join(u'\n'), QString());
        for (const QQuickItem* child : UiRig::visibleItems(panel()->contentItem())) {
            const QRectF place = child->mapRectToScene(child->boundingRect());
            if (place.isEmpty())
                continue;
            QVERIFY2(QRectF(QPointF(0, 0), QSizeF(panel()->size())).adjusted(-8, -8, 8, 8).contains(place),
                     qPrintable(QDebug::toString(place) + QLatin1String(child->metaObject()->className()) +
                                child->property("text").toString()));
        }
    };
    look("idle");
    rig->deepWork.start();
    look("running");
    rig->focus.pass(1501s);
    look("completed");
}

QTEST_MAIN(MenuBarExtraTest)
#include "tst_MenuBarExtra.moc"
