#include "tests/ui/UiRig.h"

using namespace norvin;

/// The sheet that explains figures and corrects sessions.
class StatsExplanationSheetTest final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void aFigureIsFollowedDownByKeyboard_data();
    void aFigureIsFollowedDownByKeyboard();
    void aSessionIsCorrectedByKeyboard();
    void intervalsAreGoneThrough();
};

namespace {

struct Rig {
    explicit Rig(const QString& language)
        : ui(language) {
        const QDateTime now = ui.focus.clock.now();
        Project* const project = ui.focus.context().insert(
            std::make_unique<Project>(Project::Init{.name = QStringLiteral("Thesis")}));
        for (const char* title : {"Read the sources", "Write the second chapter"}) {
            tasks.append(ui.focus.context().insert(std::make_unique<TaskItem>(
                TaskItem::Init{.title = QString::fromLatin1(title), .project = project})));
        }
        for (int i = 0; i < 4; ++i) {
            Session session;
            session.startTime = now.addSecs(-3000 * (4 - i));
            session.durationMinutes = 20 + 5 * i;
            session.completed = true;
            if (i != 1)
                session.task = tasks.at(i % 2)->id();
            if (i != 2)
                session.score = 8.25 + i / 4.0;
            session.legitimateTimeSeconds = 1200;
            session.distractedTimeSeconds = 60 * (i + 1);
            session.interruptionCount = 1;
            session.blockedSiteAttemptsCount = 1;
            ui.focus.context().insert(session);
            sessions.append(session);
        }
        for (int i = 0; i < 1200; ++i) {
            AppUsageSession usage;
            const QString name = i % 3 == 0 ? QStringLiteral("Terminal") : QStringLiteral("Editor");
            usage.bundleID = QStringLiteral("org.example.") + name;
            usage.appName = name;
            usage.category =
                i % 3 == 0 ? QStringLiteral("category_system") : QStringLiteral("category_development");
            usage.startTime = now.addSecs(-12000 + 10 * i);
            usage.endTime = usage.startTime.addSecs(9);
            usage.durationSeconds = 1 + i % 9;
            ui.focus.context().insert(usage);
        }
    }

    void show() {
        ui.show();
        ui.showPage(UiRig::Page::statistics);
        ui.stats.setTab(QStringLiteral("today"));
        QTRY_VERIFY(ui.stats.records().isComplete());
    }
    /// Asks as the page does, and waits until the sheet has the keyboard.
    void ask(const char* what, const QString& key = {}) {
        ui.stats.explain(QLatin1String(what), key);
        QTRY_VERIFY(ui.visible("explanationTitle"));
        QTRY_VERIFY(!ui.focusName().isEmpty());
    }
    [[nodiscard]] StatsExplanation& explanation() { return *ui.stats.explanation(); }
    [[nodiscard]] QString text(const char* name) const {
        const QQuickItem* item = ui.visible(name);
        return item != nullptr ? item->property("text").toString() : QString();
    }

    UiRig ui;
    QList<TaskItem*> tasks;
    QList<Session> sessions;
};

} // namespace

void StatsExplanationSheetTest::aFigureIsFollowedDownByKeyboard_data() {
    UiRig::addLanguages();
}

void StatsExplanationSheetTest::aFigureIsFollowedDownByKeyboard() {
    QFETCH(QString, language);
    Rig rig(language);
    rig.show();
    rig.ui.focus.timer.startSession(nullptr, PomodoroPhase::work);
    rig.ui.focus.pass(std::chrono::seconds(61));
    rig.ask("focus");
    QTRY_VERIFY(rig.ui.hasKeyboard("explanationList"));
    QCOMPARE(rig.text("explanationFigure"), rig.ui.stats.today()->focusText());
    rig.ui.checkTexts(QStringLiteral("explain-focus"));
    rig.ui.focus.pass(std::chrono::seconds(60));
    QTRY_COMPARE(rig.text("explanationFigure"), rig.ui.stats.today()->focusText());

    // The work phase that runs is not recorded yet; Enter goes into the sessions.
    rig.ui.press(Qt::Key_Return);
    QCOMPARE(rig.explanation().level(), StatsExplanation::Records);
    rig.ui.press(Qt::Key_Down);
    rig.ui.press(Qt::Key_Down);
    rig.ui.press(Qt::Key_Return);
    QTRY_VERIFY(rig.ui.hasKeyboard("sessionTaskButton"));
    QCOMPARE(rig.explanation().session()->session()->id, rig.sessions.at(1).id);
    QVERIFY(rig.ui.visible("sessionTaskButton")->property("visualFocus").toBool());
    rig.ui.checkTexts(QStringLiteral("explain-session"));
    rig.ui.press(Qt::Key_Escape);
    QTRY_VERIFY(rig.ui.hasKeyboard("explanationList"));
    QCOMPARE(rig.ui.visible("explanationList")->property("currentIndex").toInt(), 2);
    rig.ui.press(Qt::Key_Down);
    rig.ui.press(Qt::Key_Return);
    QTRY_VERIFY(rig.ui.visible("sessionScoreNote"));
    rig.ui.tabTo("explanationBack");
    rig.ui.press(Qt::Key_Space);
    QTRY_VERIFY(rig.ui.hasKeyboard("explanationList"));
    rig.ui.press(Qt::Key_Escape);
    QTRY_VERIFY(!rig.ui.visible("explanationTitle"));
    QVERIFY(!rig.explanation().isPresented());

    rig.ask("streak");
    rig.ui.checkTexts(QStringLiteral("explain-streak"));
    rig.ask("best_day"); // of the history
    rig.ui.tabTo("explanationClose");
    rig.ui.press(Qt::Key_Return);
    QTRY_VERIFY(!rig.ui.visible("explanationTitle"));
}

void StatsExplanationSheetTest::aSessionIsCorrectedByKeyboard() {
    for (const char* language : {"en", "fr", "pseudo"}) {
        Rig rig(QString::fromLatin1(language));
        rig.show();
        rig.ask("session", rig.sessions.first().id.toString());
        QTRY_VERIFY(rig.ui.hasKeyboard("sessionTaskButton"));
        rig.ui.press(Qt::Key_Return);
        QTRY_VERIFY(rig.ui.hasKeyboard("sessionTaskSearch"));
        rig.ui.checkTexts(QStringLiteral("explain-tasks"));
        rig.ui.type(QStringLiteral("second"));
        rig.ui.press(Qt::Key_Down);
        QTRY_VERIFY(rig.ui.hasKeyboard("sessionTaskList"));
        rig.ui.press(Qt::Key_Return);
        QTRY_COMPARE(rig.text("sessionTask"), rig.tasks.at(1)->title());
        QCOMPARE(rig.ui.focus.context().session(rig.sessions.first().id)->task, rig.tasks.at(1)->id());
        rig.ui.checkTexts(QStringLiteral("explain-corrected"));
        rig.ui.press(Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(rig.text("sessionTask"), rig.tasks.at(0)->title());

        // A search is left with the first Escape, the choice with the second.
        rig.ui.press(Qt::Key_Return);
        QTRY_VERIFY(rig.ui.hasKeyboard("sessionTaskSearch"));
        rig.ui.type(QStringLiteral("xyz"));
        rig.ui.press(Qt::Key_Escape);
        QVERIFY(rig.text("sessionTaskSearch").isEmpty());
        rig.ui.press(Qt::Key_Escape);
        QTRY_VERIFY(rig.ui.hasKeyboard("sessionTaskButton"));

        rig.ui.tabTo("sessionDeleteButton");
        rig.ui.press(Qt::Key_Space);
        QTRY_VERIFY(!rig.ui.visible("explanationTitle"));
        QTRY_COMPARE(rig.ui.stats.today()->sessionCount(), 3);
        rig.ui.press(Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(rig.ui.stats.today()->sessionCount(), 4);
    }
}

void StatsExplanationSheetTest::intervalsAreGoneThrough() {
    for (const char* language : {"en", "fr", "pseudo"}) {
        Rig rig(QString::fromLatin1(language));
        rig.show();
        rig.ask("apps");
        rig.ui.checkTexts(QStringLiteral("explain-apps"));
        rig.ui.press(Qt::Key_Return);
        QTRY_VERIFY(rig.ui.hasKeyboard("explanationIntervals"));
        QTRY_COMPARE(rig.ui.visible("explanationIntervals")->property("count").toInt(), 800);
        rig.ui.checkTexts(QStringLiteral("explain-intervals"));
        rig.ui.press(Qt::Key_End);
        QTRY_COMPARE(rig.ui.visible("explanationIntervals")->property("currentIndex").toInt(), 799);
        rig.ui.press(Qt::Key_Escape);
        QTRY_VERIFY(rig.ui.hasKeyboard("explanationList"));
        rig.ui.press(Qt::Key_Escape);
        QTRY_VERIFY(!rig.ui.visible("explanationTitle"));
    }
}

QTEST_MAIN(StatsExplanationSheetTest)
#include "tst_StatsExplanationSheet.moc"
