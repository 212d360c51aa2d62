#include "platform/TextSearch.h"
#include "tests/ui/UiRig.h"
#include "ui/shell/WindowGeometry.h"

#include <QScreen>

using namespace norvin;

class WindowShellTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aTypedWordIsRankedByWhereItStands_data();
    void aTypedWordIsRankedByWhereItStands();
    void thePaletteLeadsToEverythingByKeyboardAlone();
    void thePaletteOffersWhatCanBeDoneNow();
    void thePaletteFollowsTasksThatComeAndGo();
    void theMenuGreysOutWhatCannotBeDone();
    void theSidebarCounts();
    void theWindowComesBackWhereItWas();
    void aPlaceThatIsOnNoScreenIsNotTaken();
    void paletteAndMenuCanBeRead_data();
    void paletteAndMenuCanBeRead();

private:
    void present(UiRig& rig) const {
        rig.press(Qt::Key_K, Qt::ControlModifier);
        QTRY_VERIFY(rig.hasKeyboard("paletteField"));
    }
};

void WindowShellTest::aTypedWordIsRankedByWhereItStands_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("rank");

    QTest::newRow("at the beginning") << "ré"
                                      << "Résumé of the week" << 0;
    QTest::newRow("a later word") << "week"
                                  << "Résumé of the week" << 1;
    QTest::newRow("within a word") << "sume"
                                   << "Résumé of the week" << 2;
    QTest::newRow("a word after another that only contains it") << "pen"
                                                                << "Open the pen" << 1;
    QTest::newRow("every word, in any order") << "week resume"
                                              << "Résumé of the week" << 1;
    QTest::newRow("one word is missing") << "resume month"
                                         << "Résumé of the week" << -1;
    QTest::newRow("nothing typed") << ""
                                   << "Anything" << 0;
}

void WindowShellTest::aTypedWordIsRankedByWhereItStands() {
    QFETCH(const QString, typed);
    QFETCH(const QString, title);
    const QStringList words = searchKey(typed).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QTEST(paletteRank(words, searchKey(title)), "rank");
}

void WindowShellTest::thePaletteLeadsToEverythingByKeyboardAlone() {
    UiRig rig;
    auto* project = new Project({.name = QStringLiteral("Garden"), .createdAt = rig.focus.clock.now()});
    rig.focus.context().insert(std::unique_ptr<Project>(project));
    rig.deepWork.addTask(QStringLiteral("Water the plants"));
    rig.show();

    present(rig);
    rig.type(QStringLiteral("stati"));
    rig.press(Qt::Key_Return);
    QCOMPARE(rig.window()->property("page").toInt(), 3);
    QVERIFY(!rig.palette.isPresented());

    present(rig);
    QCOMPARE(rig.palette.filterText(), QString()); // nothing is left of the last time
    rig.type(QStringLiteral("garden"));
    rig.press(Qt::Key_Return);
    QCOMPARE(rig.window()->property("page").toInt(), 2);
    QVERIFY(rig.planning.board()->project() == project);

    present(rig);
    rig.type(QStringLiteral("plants"));
    rig.press(Qt::Key_Return);
    QTRY_VERIFY(rig.planning.taskSheet()->isPresented());
    rig.press(Qt::Key_Escape);
    QTRY_VERIFY(!rig.planning.taskSheet()->isPresented());

    present(rig);
    rig.type(QStringLiteral("no such thing"));
    QVERIFY(rig.visible("paletteEmpty"));
    rig.press(Qt::Key_Escape);
    QTRY_VERIFY(!rig.palette.isPresented());
}

void WindowShellTest::thePaletteOffersWhatCanBeDoneNow() {
    UiRig rig;
    rig.show();
    const auto titles = [&rig] {
        QStringList all;
        for (int row = 0; row < rig.palette.count(); ++row)
            all.append(rig.palette.data(rig.palette.index(row), CommandPalette::TitleRole).toString());
        return all;
    };
    rig.palette.present();
    QVERIFY(titles().contains(qtTrId("action_start_work")));
    QVERIFY(!titles().contains(qtTrId("action_pause")));
    rig.palette.choose(static_cast<int>(titles().indexOf(qtTrId("action_start_work"))));
    QCOMPARE(rig.deepWork.state(), QStringLiteral("running"));

    rig.palette.present();
    QVERIFY(!titles().contains(qtTrId("action_start_work")));
    rig.palette.choose(static_cast<int>(titles().indexOf(qtTrId("action_pause"))));
    QCOMPARE(rig.deepWork.state(), QStringLiteral("paused"));
}

void WindowShellTest::thePaletteFollowsTasksThatComeAndGo() {
    UiRig rig;
    rig.show();
    rig.palette.present();
    rig.palette.setFilterText(QStringLiteral("weed"));
    QCOMPARE(rig.palette.count(), 0);
    rig.deepWork.addTask(QStringLiteral("Weed"));
    QTRY_COMPARE(rig.palette.count(), 1);
    rig.focus.context().remove(*rig.focus.context().tasks().front());
    QTRY_COMPARE(rig.palette.count(), 0);

    // Of many, those whose title begins with it come first, the open ones before the others.
    for (int i = 0; i < 30; ++i)
        rig.deepWork.addTask(QStringLiteral("Seaweed %1").arg(i));
    rig.deepWork.addTask(QStringLiteral("Weed the path"));
    rig.focus.context().tasks().back()->setStatus(TaskStatus::done);
    rig.deepWork.addTask(QStringLiteral("Weed again"));
    QTRY_COMPARE(rig.palette.count(), CommandPalette::maximumRows);
    QTRY_COMPARE(rig.palette.data(rig.palette.index(0), CommandPalette::TitleRole).toString(),
                 QStringLiteral("Weed again"));
}

void WindowShellTest::theMenuGreysOutWhatCannotBeDone() {
    UiRig rig;
    bool isPossible = false;
    int runs = 0;
    rig.actions.add({.id = QStringLiteral("check_for_updates"),
                     .titleKey = QStringLiteral("check_for_updates"),
                     .symbol = QStringLiteral("arrow.down.circle"),
                     .isEnabled = [&isPossible] { return isPossible; },
                     .run = [&runs] { ++runs; }});
    rig.show();
    rig.click(rig.visible("windowMenuButton"));
    QTRY_VERIFY(rig.saying(qtTrId("check_for_updates")));
    QVERIFY(!rig.saying(qtTrId("action_send_feedback"))); // nobody offers it
    QVERIFY(!rig.saying(qtTrId("check_for_updates"))->isEnabled());
    isPossible = true;
    rig.actions.notifyChanged();
    QVERIFY(rig.saying(qtTrId("check_for_updates"))->isEnabled());
    rig.clickEntry("windowMenu", 4, qtTrId("check_for_updates"));
    QTRY_COMPARE(runs, 1);
}

void WindowShellTest::theSidebarCounts() {
    UiRig rig;
    rig.show();
    const auto says = [&rig](const char* page, const char* amount) {
        const QQuickItem* entry = rig.saying(QLatin1String(page));
        return entry != nullptr && entry->property("words").toString() == QLatin1String(amount);
    };
    rig.deepWork.addTask(QStringLiteral("One"));
    rig.deepWork.addTask(QStringLiteral("Two"));
    auto* project = new Project({.name = QStringLiteral("Garden"), .createdAt = rig.focus.clock.now()});
    rig.focus.context().insert(std::unique_ptr<Project>(project));
    QTRY_VERIFY(says("Deep Work", "2 tasks in the queue"));
    QTRY_VERIFY(says("Agenda", "2 tasks today"));
    QVERIFY(says("Projects", "1 project"));
    rig.focus.context().remove(*project);
    QTRY_VERIFY(says("Projects", ""));
}

void WindowShellTest::theWindowComesBackWhereItWas() {
    FakePreferences preferences;
    FakeClock clock;
    {
        QWindow window;
        window.setMinimumSize({300, 200});
        const WindowGeometry geometry(window, preferences, clock);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.setGeometry(40, 50, 640, 480);
        QTRY_COMPARE(window.size(), QSize(640, 480));
        clock.advance(std::chrono::seconds(1));
        QVERIFY(preferences.value(QLatin1String(WindowGeometry::geometryKey)));
        window.setWindowStates(Qt::WindowMaximized);
        clock.advance(std::chrono::seconds(1));
    }
    QWindow window;
    const WindowGeometry geometry(window, preferences, clock);
    QCOMPARE(window.size(), QSize(640, 480));
    QVERIFY(window.windowStates().testFlag(Qt::WindowMaximized));
}

void WindowShellTest::aPlaceThatIsOnNoScreenIsNotTaken() {
    FakeClock clock;
    for (const char* stored : {"9000 9000 640 480", "-20 -400 640 480", "nonsense", "1 2 3", "10 10 -5 20"}) {
        FakePreferences preferences;
        preferences.setValue(QLatin1String(WindowGeometry::geometryKey), QLatin1String(stored));
        QWindow window;
        const QPoint before = window.position();
        const WindowGeometry geometry(window, preferences, clock);
        QCOMPARE(window.position(), before);
    }
    // Kept on a screen that is gone, or written by hand.
    for (const char* stored : {"0 0 90000 90000", "0 0 2147483647 2147483647"}) {
        FakePreferences preferences;
        preferences.setValue(QLatin1String(WindowGeometry::geometryKey), QLatin1String(stored));
        QWindow window;
        const WindowGeometry geometry(window, preferences, clock);
        QCOMPARE(window.size(), window.size().boundedTo(window.screen()->size()));
    }
    QCOMPARE(geometryFromText(geometryText({-5, 7, 800, 600})), QRect(-5, 7, 800, 600));
}

void WindowShellTest::paletteAndMenuCanBeRead_data() {
    UiRig::addLanguages();
}

void WindowShellTest::paletteAndMenuCanBeRead() {
    QFETCH(const QString, language);
    UiRig rig(language);
    for (const char* action : {"show_panel", "check_for_updates", "send_feedback"}) {
        const QString key = QLatin1String(action);
        rig.actions.add(
            {.id = key,
             .titleKey = key == QLatin1String("check_for_updates") ? key : QStringLiteral("action_") + key,
             .symbol = QStringLiteral("timer"),
             .run = [] {}});
    }
    rig.deepWork.addTask(QStringLiteral("Pause the newsletter"));
    rig.show();
    present(rig);
    rig.checkTexts(QStringLiteral("palette"));
    rig.type(QStringLiteral("p"));
    QVERIFY(rig.palette.count() > 1);
    rig.checkTexts(QStringLiteral("palette-typed"));
    rig.press(Qt::Key_Escape);
    QTRY_VERIFY(!rig.palette.isPresented());
    rig.click(rig.visible("windowMenuButton"));
    QTRY_VERIFY(rig.saying(qtTrId("quit_button")));
    rig.checkTexts(QStringLiteral("menu"));
}

QTEST_MAIN(WindowShellTest)
#include "tst_WindowShell.moc"
