#include "stats/ChartModel.h"
#include "stats/StatsExplanation.h"
#include "tests/ui/UiRig.h"

using namespace norvin;

/// Both pages of the statistics in the real window, with the keyboard and the pointer.
class StatsViewTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { open(QStringLiteral("en")); }
    void cleanup() { rig.reset(); }

    void emptyPagesSaySo();
    void figuresMoveWithTheSession();
    void thePeriodIsChangedByKeyboard();
    void pointsOfAChartAreReadByKeyboard();
    void figuresAndBarsAreExplainedByClick();
    void nothingIsCutAndEverythingHasAName_data();
    void nothingIsCutAndEverythingHasAName();

private:
    void open(const QString& language) {
        rig.reset();
        rig = std::make_unique<UiRig>(language);
        QVERIFY2(rig->loaded, qPrintable(rig->focus.lines.join(QLatin1Char('\n'))));
        // A store in memory is read in the zone of the clock.
        rig->focus.clock.setNow(QDateTime(QDate(2025, 3, 10), QTime(17, 40), QTimeZone::utc()));
        rig->show();
    }
    void showStatistics(const QString& tab = QStringLiteral("today")) {
        rig->stats.setTab(tab);
        rig->showPage(UiRig::Page::statistics);
        QTRY_VERIFY(content());
        FocusRig::settle();
    }
    [[nodiscard]] QQuickItem* content() const {
        return rig->visible(rig->stats.tab() == QLatin1String("today") ? "todayContent" : "historyContent");
    }
    [[nodiscard]] QString text(const char* name) const {
        const QQuickItem* item = rig->visible(name);
        return item != nullptr ? item->property("text").toString() : QString();
    }
    void addSession(const QDateTime& start, int minutes, std::optional<double> score,
                    const TaskItem* task = nullptr) {
        Session session;
        session.startTime = start;
        session.durationMinutes = minutes;
        session.completed = true;
        session.score = score;
        if (task != nullptr)
            session.task = task->id();
        rig->focus.context().insert(session);
    }
    void addUsage(const RunningApplication& application, const QString& category, const QDateTime& start,
                  int seconds) {
        AppUsageSession usage;
        usage.bundleID = application.bundleIdentifier;
        usage.appName = application.localizedName;
        usage.category = category;
        usage.startTime = start;
        usage.endTime = start.addSecs(seconds);
        usage.durationSeconds = seconds;
        rig->focus.context().insert(usage);
    }
    void fillTenYears();
    /// Until everything that came up is there.
    void waitForMotion() const {
        QTRY_VERIFY(rig->visible("kpiSessions"));
        QTRY_COMPARE(rig->visible("kpiSessions")->opacity(), 1.0);
        for (const char* chart : {"hourlyChart", "scoreChart", "focusChart", "categoryChart"}) {
            if (rig->visible(chart))
                QTRY_COMPARE(rig->visible(chart)->property("grown").toDouble(), 1.0);
        }
    }
    /// Whether all of an item can be seen on its page.
    [[nodiscard]] bool isInView(const QQuickItem* item) const {
        const QQuickItem* page = content()->parentItem()->parentItem();
        return page->boundingRect().contains(item->mapRectToItem(page, item->boundingRect()));
    }
    /// What was asked for is being explained; that is enough.
    void closeExplanation() const {
        QVERIFY(rig->stats.explanation()->isPresented());
        rig->stats.explanation()->close();
        FocusRig::settle();
        QTRY_VERIFY(!rig->visible("explanationTitle"));
    }

    std::unique_ptr<UiRig> rig;
};

/// Sessions and applications of ten years, made up but the same each time.
void StatsViewTest::fillTenYears() {
    const TaskItem* report = rig->focus.addTask(QStringLiteral("Write the report for the annual meeting"));
    const TaskItem* mail = rig->focus.addTask(QStringLiteral("Answer mail"));
    const QDateTime today(QDate(2025, 3, 10), QTime(0, 0), QTimeZone::utc());
    int number = 7;
    const auto next = [&number](int below) { return (number = (number * 1103 + 12345) % 65536) % below; };
    for (int day = 3650; day >= 0; --day) {
        const QDateTime start = today.addDays(-day);
        const int sessions = day == 0 ? 5 : start.date().dayOfWeek() > 5 ? next(2) : 2 + next(4);
        for (int session = 0; session < sessions; ++session) {
            const QDateTime at = start.addSecs(3600 * (8 + 2 * session) + 60 * next(50));
            addSession(at, 25 + 5 * next(8), next(6) == 0 ? std::nullopt : std::optional(4 + next(60) / 10.0),
                       next(3) == 0   ? nullptr
                       : next(2) == 0 ? report
                                      : mail);
            addUsage(rig->focus.editor, QStringLiteral("category_development"), at, 600 + next(900));
            addUsage(rig->focus.terminal, QStringLiteral("category_development"), at.addSecs(600), next(400));
            addUsage(rig->focus.browser, QStringLiteral("category_navigation"), at.addSecs(900), next(700));
            if (next(2) == 0) {
                addUsage(FakeWorkspace::makeApplication(QStringLiteral("org.example.Mail"),
                                                        QStringLiteral("Mail")),
                         QStringLiteral("category_communication"), at.addSecs(1000), next(400));
                addUsage(FakeWorkspace::makeApplication(QStringLiteral("org.example.Chat"),
                                                        QStringLiteral("Chat of the whole company")),
                         QStringLiteral("category_social"), at.addSecs(1100), next(300));
            }
            if (next(4) == 0)
                addUsage(rig->focus.game, QStringLiteral("category_entertainment"), at.addSecs(1200),
                         next(300));
            if (next(9) == 0)
                addUsage(rig->focus.scriptedBrowser, QStringLiteral("category_other"), at, next(60));
        }
    }
    FocusRig::settle();
}

void StatsViewTest::emptyPagesSaySo() {
    showStatistics();
    for (const char* key :
         {"no_sessions_today", "no_scores_today", "no_app_data_today", "ready_to_start_subtitle"})
        QVERIFY2(rig->saying(qtTrId(key)), key);
    QCOMPARE(text("kpiScoreValue"), QStringLiteral("0.0"));
    QCOMPARE(text("kpiStreakValue"), QStringLiteral("0 days"));
    QVERIFY(!rig->visible("hourlyChart"));
    waitForMotion();
    rig->keepPicture(QStringLiteral("stats-today-empty"));
    QVERIFY(rig->hasKeyboard("statsTabs"));
    rig->press(Qt::Key_Right);
    QCOMPARE(rig->stats.tab(), QStringLiteral("history"));
    for (const char* key :
         {"history_no_sessions_period", "history_no_distribution_data", "history_no_app_data_period"})
        QTRY_VERIFY2(rig->saying(qtTrId(key)), key);
    QVERIFY(!rig->visible("focusChart") && !rig->visible("todayContent"));
    waitForMotion();
    rig->keepPicture(QStringLiteral("stats-history-empty"));
}

void StatsViewTest::figuresMoveWithTheSession() {
    showStatistics();
    rig->deepWork.start();
    rig->focus.pass(std::chrono::seconds(61));
    QCOMPARE(text("kpiFocusValue"), QStringLiteral("2 min"));
    QCOMPARE(text("kpiScoreValue"), QString::number(rig->focus.timer.calculateCurrentScore(), 'f', 1));
    QCOMPARE(text("kpiSessionsValue"), QStringLiteral("0"));
    rig->deepWork.pause();
    QCOMPARE(text("kpiFocusValue"), QStringLiteral("0 min"));
    rig->deepWork.resume();

    // Somebody who reads further down is left alone by what moves, and by what is recorded.
    QQuickItem* flickable = content()->parentItem()->parentItem();
    const double place = 60;
    QVERIFY(flickable->setProperty("contentY", place));
    rig->focus.pass(std::chrono::seconds(60));
    QCOMPARE(text("kpiFocusValue"), QStringLiteral("3 min"));
    QVERIFY(!rig->visible("hourlyChart"));
    rig->focus.pass(std::chrono::minutes(24));
    QCOMPARE(rig->focus.timer.state(), TimerState::completed);
    QTRY_COMPARE(text("kpiSessionsValue"), QStringLiteral("1"));
    QCOMPARE(text("kpiFocusValue"), QStringLiteral("25 min"));
    QVERIFY(rig->visible("hourlyChart") && rig->visible("timelineRow"));
    QCOMPARE(flickable->property("contentY").toDouble(), place);
    waitForMotion();
    rig->keepPicture(QStringLiteral("stats-today-one"));

    rig->stats.setTab(QStringLiteral("history"));
    QTRY_COMPARE(text("kpiBestDayValue"), QStringLiteral("25 min"));
    rig->deepWork.start();
    rig->focus.pass(std::chrono::seconds(59));
    QCOMPARE(text("kpiFocusValue"), QStringLiteral("26 min"));
    QCOMPARE(text("kpiBestDayValue"), QStringLiteral("25 min"));
    QCOMPARE(rig->stats.history()->focus()->total(), 26.0);
    // What is not seen costs nothing, and catches up.
    rig->showPage(UiRig::Page::deepWork);
    rig->focus.pass(std::chrono::minutes(10));
    rig->showPage(UiRig::Page::statistics);
    QTRY_COMPARE(text("kpiFocusValue"), QStringLiteral("36 min"));
}

void StatsViewTest::thePeriodIsChangedByKeyboard() {
    const QDateTime now = rig->focus.clock.now();
    for (const int day : {3, 20, 200, 900})
        addSession(now.addDays(-day), 30, 6.0);
    showStatistics(QStringLiteral("history"));
    QCOMPARE(text("kpiSessionsValue"), QStringLiteral("1"));
    rig->tabTo("periodChoice");
    rig->press(Qt::Key_Left);
    QCOMPARE(text("kpiSessionsValue"), QStringLiteral("0"));
    QVERIFY(rig->saying(qtTrId("history_no_sessions_period")));
    const QStringList counts{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                             QStringLiteral("4")};
    const QStringList periods = rig->stats.history()->periods();
    for (int step = 0; step < counts.size(); ++step) {
        rig->press(Qt::Key_Right);
        QCOMPARE(rig->stats.history()->period(), periods.at(step + 1));
        QCOMPARE(text("kpiSessionsValue"), counts.at(step));
        QCOMPARE(text("periodText"), rig->stats.history()->periodText());
        QVERIFY(rig->hasKeyboard("periodChoice"));
    }
    rig->press(Qt::Key_Right); // there is no further one
    QCOMPARE(rig->stats.history()->period(), QStringLiteral("all"));
}

void StatsViewTest::pointsOfAChartAreReadByKeyboard() {
    const QDateTime today(QDate(2025, 3, 10), QTime(9, 50), QTimeZone::utc());
    addSession(today, 25, 7.5, rig->focus.addTask(QStringLiteral("Write")));
    addSession(today.addSecs(3600 * 4), 50, 3.0);
    addUsage(rig->focus.editor, QStringLiteral("category_development"), today, 1200);
    addUsage(rig->focus.game, QStringLiteral("category_entertainment"), today, 300);
    showStatistics();
    const auto bubble = [this] { return rig->visible("chartBubble") ? text("chartBubbleValue") : QString(); };
    const auto spoken = [this] {
        return QAccessible::queryAccessibleInterface(rig->window()->activeFocusItem())
            ->text(QAccessible::Name);
    };

    rig->tabTo("hourlyChart");
    QVERIFY(isInView(rig->visible("hourlyChart")));
    QCOMPARE(bubble(), QStringLiteral("25 min"));
    QVERIFY2(spoken().startsWith(qtTrId("timeline_focus_title")) && spoken().endsWith(bubble()),
             qPrintable(spoken()));
    waitForMotion();
    rig->keepPicture(QStringLiteral("stats-today-point"));
    rig->press(Qt::Key_Right);
    QCOMPARE(bubble(), QStringLiteral("0 min"));
    rig->press(Qt::Key_End);
    rig->press(Qt::Key_Right); // there is no further one
    rig->press(Qt::Key_Home);
    for (int hour = 0; hour < 13; ++hour)
        rig->press(Qt::Key_Right);
    QCOMPARE(bubble(), QStringLiteral("50 min"));
    rig->press(Qt::Key_Return);
    closeExplanation();
    QVERIFY(rig->hasKeyboard("hourlyChart"));

    rig->tabTo("scoreChart");
    QVERIFY(isInView(rig->visible("scoreChart")));
    QCOMPARE(bubble(), QStringLiteral("7.5"));
    rig->press(Qt::Key_Space);
    closeExplanation();
    rig->tabTo("categoryChart");
    QVERIFY2(spoken().contains(QStringLiteral("20 min")), qPrintable(spoken()));
    rig->press(Qt::Key_Down);
    QVERIFY2(spoken().contains(QStringLiteral("5 min")), qPrintable(spoken()));
    rig->press(Qt::Key_Return);
    closeExplanation();
    rig->tabTo("appRow");
    rig->press(Qt::Key_Return);
    closeExplanation();
    rig->tabTo("timelineRow");
    QVERIFY(isInView(rig->visible("timelineRow")));
    rig->press(Qt::Key_Space);
    closeExplanation();
}

void StatsViewTest::figuresAndBarsAreExplainedByClick() {
    const QDateTime today(QDate(2025, 3, 10), QTime(9, 50), QTimeZone::utc());
    addSession(today, 25, 7.5);
    addUsage(rig->focus.editor, QStringLiteral("category_development"), today, 1200);
    rig->window()->resize(1200, 1800);
    showStatistics();
    for (const char* name : {"kpiSessions", "kpiFocus", "kpiScore", "kpiStreak", "kpiApps", "scoreChart",
                             "appRow", "timelineRow"}) {
        QVERIFY2(rig->visible(name), name);
        rig->click(rig->visible(name));
        closeExplanation();
    }
    // In a chart the point under the pointer is meant, and said while the pointer is there.
    const QQuickItem* chart = rig->visible("hourlyChart");
    const QPoint bar = chart->mapToScene(QPointF(chart->width() * 9.5 / 24, chart->height() / 2)).toPoint();
    QTest::mouseMove(rig->window(), bar - QPoint(0, 3));
    QTest::mouseMove(rig->window(), bar);
    QTRY_VERIFY(rig->visible("chartBubble"));
    QCOMPARE(text("chartBubbleValue"), QStringLiteral("25 min"));
    QTest::mouseClick(rig->window(), Qt::LeftButton, {}, bar);
    closeExplanation();
    rig->stats.setTab(QStringLiteral("history"));
    for (const char* name : {"kpiSessions", "kpiFocus", "kpiScore", "kpiBestDay", "focusChart",
                             "weekdayChart", "appRow", "historyRow"}) {
        QTRY_VERIFY2(rig->visible(name), name);
        rig->click(rig->visible(name));
        closeExplanation();
    }
}

void StatsViewTest::nothingIsCutAndEverythingHasAName_data() {
    UiRig::addLanguages();
}

void StatsViewTest::nothingIsCutAndEverythingHasAName() {
    const QStringList names{QStringLiteral("whole company")};
    const auto nameless = [this]() -> QString {
        for (QQuickItem* item : rig->visibleItems()) {
            if (!item->activeFocusOnTab() && !item->inherits("QQuickAbstractButton"))
                continue;
            QAccessibleInterface* face = QAccessible::queryAccessibleInterface(item);
            if (face == nullptr || face->text(QAccessible::Name).isEmpty() ||
                face->role() == QAccessible::NoRole)
                return QLatin1String(item->metaObject()->className()) + item->objectName();
        }
        return {};
    };
    QFETCH(QString, language);
    open(language);
    fillTenYears();
    showStatistics();
    waitForMotion();
    rig->checkTexts(QStringLiteral("stats-today"), names);
    rig->window()->resize(1200, 1900);
    rig->checkTexts(QStringLiteral("stats-today-long"), names);
    QCOMPARE(nameless(), QString());
    rig->stats.setTab(QStringLiteral("history"));
    for (const QString& period : rig->stats.history()->periods()) {
        rig->stats.history()->setPeriod(period);
        QTRY_VERIFY(rig->visible("focusChart"));
        waitForMotion();
        rig->checkTexts(QStringLiteral("stats-history-") + period, names);
        QCOMPARE(nameless(), QString());
    }
}

QTEST_MAIN(StatsViewTest)
#include "tst_StatsView.moc"
