#include "tests/ui/UiRig.h"

#include <QSignalSpy>

using namespace norvin;

class MainWindowTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        rig = std::make_unique<UiRig>();
        QVERIFY2(rig->loaded, qPrintable(rig->focus.lines.join(QLatin1Char('\n'))));
        rig->show();
    }
    void cleanup() { rig.reset(); }

    void aTaskIsTypedAndWorkedOnByKeyboardAlone();
    void suggestionsAreTakenWithTheArrowKeys();
    void theQueueIsArrangedByKeyboard();
    void aTaskIsDraggedToAnotherPlace();
    void subtasksAreTypedUnderTheirTask();
    void anOwnLengthIsTyped();
    void spaceInATextFieldIsText();
    void aFinishedPhaseOffersWhatComesNext();
    void theScoreIsExplainedOnDemand();
    void anApplicationIsPutOnAListByKeyboard();
    void closingDuringASessionOnlyHides();
    void closingWhileIdleAsksToQuit();
    void quittingDuringASessionIsConfirmed();
    void theApplicationCanQuitDuringASession();
    void aHiddenWindowTakesNoNotice();
    void aNumberThatGrowsStaysInItsPlace();
    void theLanguageChangesEverything();
    void aProblemOfTheStoreIsShown();

private:
    [[nodiscard]] QQuickItem* focusItem() const { return rig->window()->activeFocusItem(); }
    [[nodiscard]] QString focusName() const { return focusItem() ? focusItem()->objectName() : QString(); }
    [[nodiscard]] QStringList queuedTitles() const {
        QStringList titles;
        for (const TaskItem* task : rig->focus.timer.taskQueue())
            titles.append(task->title());
        return titles;
    }
    void queueTasks(const QStringList& titles) {
        for (const QString& title : titles)
            rig->deepWork.addTask(title);
        FocusRig::settle();
    }
    [[nodiscard]] bool shows(const QString& text) const {
        const QList<QQuickItem*> items = rig->visibleItems();
        return std::any_of(items.cbegin(), items.cend(), [&text](const QQuickItem* item) {
            return item->property("text").toString() == text;
        });
    }

    std::unique_ptr<UiRig> rig;
};

void MainWindowTest::aTaskIsTypedAndWorkedOnByKeyboardAlone() {
    QTRY_COMPARE(focusName(), QStringLiteral("taskField"));
    rig->type(QStringLiteral("Write report"));
    rig->press(Qt::Key_Return);
    QCOMPARE(queuedTitles(), QStringList{QStringLiteral("Write report")});

    for (int presses = 0; presses < 20 && focusName() != QLatin1String("primaryButton"); ++presses)
        rig->press(Qt::Key_Tab);
    QCOMPARE(focusName(), QStringLiteral("primaryButton"));
    rig->press(Qt::Key_Return);
    QCOMPARE(rig->deepWork.state(), QStringLiteral("running"));
    QCOMPARE(rig->deepWork.activeTaskTitle(), QStringLiteral("Write report"));

    rig->press(Qt::Key_Space);
    QCOMPARE(rig->deepWork.state(), QStringLiteral("paused"));
    rig->press(Qt::Key_Space);
    QCOMPARE(rig->deepWork.state(), QStringLiteral("running"));

    rig->item("queue")->forceActiveFocus(Qt::TabFocusReason);
    rig->press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(rig->deepWork.state(), QStringLiteral("completed"));
}

void MainWindowTest::suggestionsAreTakenWithTheArrowKeys() {
    rig->focus.addTask(QStringLiteral("Read the contract"));
    rig->focus.addTask(QStringLiteral("Ring the client"));
    FocusRig::settle();
    rig->type(QStringLiteral("r"));
    QObject* popup = rig->window()->findChild<QObject*>(QStringLiteral("suggestions"));
    QTRY_VERIFY(popup->property("visible").toBool());

    rig->press(Qt::Key_Escape);
    QVERIFY(!popup->property("visible").toBool());
    QCOMPARE(rig->item("taskField")->property("text").toString(), QStringLiteral("r"));

    rig->press(Qt::Key_Down);
    const QModelIndex first = rig->deepWork.picker()->index(0);
    const QString title = first.data(TaskPickerModel::TitleRole).toString();
    rig->press(Qt::Key_Return);
    QCOMPARE(queuedTitles(), QStringList{title});
    QVERIFY(!popup->property("visible").toBool());
    QVERIFY(rig->item("taskField")->property("text").toString().isEmpty());
}

void MainWindowTest::theQueueIsArrangedByKeyboard() {
    queueTasks({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    rig->item("queue")->forceActiveFocus(Qt::TabFocusReason);
    rig->press(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(queuedTitles(), QStringList({QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("c")}));
    // The keyboard stays with the task that moved.
    rig->press(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(queuedTitles(), QStringList({QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("a")}));
    rig->press(Qt::Key_Return);
    QCOMPARE(rig->deepWork.activeTaskTitle(), QStringLiteral("a"));
    rig->press(Qt::Key_Up);
    rig->press(Qt::Key_Delete);
    QCOMPARE(queuedTitles(), QStringList({QStringLiteral("b"), QStringLiteral("a")}));
}

void MainWindowTest::aTaskIsDraggedToAnotherPlace() {
    queueTasks({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    QQuickItem* queue = rig->item("queue");
    QTRY_VERIFY(queue->property("contentHeight").toReal() > 3 * 40);
    const auto visibleHandle = [this]() -> QQuickItem* {
        for (QQuickItem* item : rig->visibleItems()) {
            if (item->objectName() == QLatin1String("dragHandle"))
                return item;
        }
        return nullptr;
    };
    QTest::mouseClick(rig->window(), Qt::LeftButton, {}, queue->mapToScene(QPointF(60, 20)).toPoint());
    QTRY_VERIFY(visibleHandle());
    QQuickItem* item = visibleHandle();
    const QPoint handle = item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    QTest::mousePress(rig->window(), Qt::LeftButton, {}, handle);
    const qreal lastRow = queue->property("contentHeight").toReal() - 10;
    const QPoint target(handle.x(), qRound(queue->mapToScene(QPointF(0, lastRow)).y()));
    QTest::mouseMove(rig->window(), (handle + target) / 2);
    QTest::mouseMove(rig->window(), target);
    QTest::mouseRelease(rig->window(), Qt::LeftButton, {}, target);
    QTRY_COMPARE(queuedTitles(),
                 QStringList({QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("a")}));
}

void MainWindowTest::subtasksAreTypedUnderTheirTask() {
    queueTasks({QStringLiteral("a")});
    rig->item("queue")->forceActiveFocus(Qt::TabFocusReason);
    rig->press(Qt::Key_Plus);
    QTRY_COMPARE(focusName(), QStringLiteral("subtaskField"));
    rig->type(QStringLiteral("first"));
    rig->press(Qt::Key_Return);
    QTRY_COMPARE(rig->deepWork.queue()->rowCount(), 2);
    QCOMPARE(rig->deepWork.queue()->index(1).data(TaskQueueModel::TitleRole).toString(),
             QStringLiteral("first"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(rig->item("queue")->hasActiveFocus());
}

void MainWindowTest::anOwnLengthIsTyped() {
    QQuickItem* choice = rig->item("durationChoice");
    choice->forceActiveFocus(Qt::TabFocusReason);
    rig->press(Qt::Key_Right);
    QCOMPARE(rig->deepWork.selectedDuration(), 45);
    rig->press(Qt::Key_Right);
    rig->press(Qt::Key_Right);
    QTRY_COMPARE(focusName(), QStringLiteral("ownMinutes"));
    rig->type(QStringLiteral("90"));
    QCOMPARE(rig->deepWork.selectedDuration(), 90);
    // What is out of range is never taken.
    rig->press(Qt::Key_A, Qt::ControlModifier);
    rig->type(QStringLiteral("0"));
    rig->press(Qt::Key_Tab);
    QCOMPARE(rig->deepWork.selectedDuration(), 90);
    QCOMPARE(rig->item("ownMinutes")->property("text").toString(), QStringLiteral("90"));
}

void MainWindowTest::spaceInATextFieldIsText() {
    rig->type(QStringLiteral("a b"));
    QCOMPARE(rig->item("taskField")->property("text").toString(), QStringLiteral("a b"));
    QCOMPARE(rig->deepWork.state(), QStringLiteral("idle"));

    // A press beside everything leaves the field; then Space is the session's.
    QTest::mouseClick(rig->window(), Qt::LeftButton, {}, QPoint(300, 400));
    rig->press(Qt::Key_Space);
    QCOMPARE(rig->deepWork.state(), QStringLiteral("running"));
}

void MainWindowTest::aFinishedPhaseOffersWhatComesNext() {
    rig->deepWork.start();
    rig->focus.pass(std::chrono::seconds(1501));
    QCOMPARE(rig->deepWork.state(), QStringLiteral("completed"));
    QVERIFY(shows(qtTrId("completed_minutes", 25)));
    rig->focus.pass(std::chrono::hours(1));
    QCOMPARE(rig->deepWork.state(), QStringLiteral("completed"));

    rig->showPage(UiRig::Page::deepWork);
    QTRY_COMPARE(focusName(), QStringLiteral("completedPrimary"));
    rig->press(Qt::Key_Return);
    QCOMPARE(rig->deepWork.phase(), QStringLiteral("break_time"));
    rig->focus.pass(std::chrono::seconds(301));
    QVERIFY(shows(qtTrId("completed_break_title")));
    QMetaObject::invokeMethod(rig->item("doneButton"), "clicked");
    QCOMPARE(rig->deepWork.state(), QStringLiteral("idle"));
}

void MainWindowTest::theScoreIsExplainedOnDemand() {
    rig->focus.blocker.addAppToWhitelist(rig->focus.editor.bundleIdentifier);
    rig->focus.workspace.setFrontmost(rig->focus.editor);
    rig->deepWork.start();
    rig->focus.pass(std::chrono::seconds(9));
    QVERIFY(shows(qtTrId("score_not_enough_data")));
    rig->focus.pass(std::chrono::seconds(30));
    QVERIFY(!shows(qtTrId("score_not_enough_data")));
    QVERIFY(!shows(qtTrId("score_term_ratio").arg(100)));
    QMetaObject::invokeMethod(rig->item("explainScore"), "clicked");
    QVERIFY(shows(qtTrId("score_term_ratio").arg(100)));
}

void MainWindowTest::anApplicationIsPutOnAListByKeyboard() {
    rig->blockLists.dismissSuggestions();
    rig->showPage(UiRig::Page::blockLists);
    QTRY_COMPARE(focusName(), QStringLiteral("applicationSearch"));
    rig->type(QStringLiteral("gam"));
    rig->press(Qt::Key_Down);
    QTRY_VERIFY(rig->item("applicationList")->hasActiveFocus());
    rig->press(Qt::Key_Right);
    QVERIFY(rig->focus.blocker.blockedAppBundleIDs().contains(QStringLiteral("org.example.Game")));
    rig->press(Qt::Key_Right);
    QVERIFY(rig->focus.blocker.blockedAppBundleIDs().isEmpty());
    QVERIFY(rig->focus.blocker.whitelistedAppBundleIDs().contains(QStringLiteral("org.example.Game")));
}

void MainWindowTest::closingDuringASessionOnlyHides() {
    QSignalSpy closed(rig->userInterface.get(), &UserInterface::windowClosedWhileRunning);
    QSignalSpy quit(rig->userInterface.get(), &UserInterface::quitRequested);
    rig->deepWork.start();
    rig->window()->close();
    QCOMPARE(closed.count(), 1);
    QCOMPARE(quit.count(), 0);
    QVERIFY(!rig->window()->isVisible());
    rig->show();
    QVERIFY(rig->window()->isVisible());
    QCOMPARE(rig->deepWork.state(), QStringLiteral("running"));
}

void MainWindowTest::closingWhileIdleAsksToQuit() {
    QSignalSpy quit(rig->userInterface.get(), &UserInterface::quitRequested);
    rig->window()->close();
    QCOMPARE(quit.count(), 1);
}

void MainWindowTest::quittingDuringASessionIsConfirmed() {
    QSignalSpy quit(rig->userInterface.get(), &UserInterface::quitRequested);
    rig->deepWork.start();
    rig->press(Qt::Key_Q, Qt::ControlModifier);
    QTRY_VERIFY(shows(qtTrId("quit_title")));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(!shows(qtTrId("quit_title")));
    QCOMPARE(quit.count(), 0);

    rig->press(Qt::Key_Q, Qt::ControlModifier);
    QTRY_VERIFY(shows(qtTrId("quit_title")));
    rig->press(Qt::Key_Tab);
    rig->press(Qt::Key_Return);
    QCOMPARE(quit.count(), 1);
}

void MainWindowTest::theApplicationCanQuitDuringASession() {
    rig->deepWork.start();
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &quit);
    QVERIFY(!rig->window()->isVisible());
    QVERIFY(quit.isAccepted());
}

void MainWindowTest::aHiddenWindowTakesNoNotice() {
    rig->deepWork.start();
    rig->focus.pass(std::chrono::seconds(3));
    QCOMPARE(rig->item("countdown")->property("timeText").toString(), QStringLiteral("24:57"));
    rig->window()->hide();
    QTRY_VERIFY(!rig->window()->property("live").toBool());
    QSignalSpy redrawn(rig->window(), &QQuickWindow::frameSwapped);
    QQuickItem* countdown = rig->item("countdown");
    QSignalSpy changed(countdown, SIGNAL(timeTextChanged()));
    rig->focus.pass(std::chrono::seconds(5));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(redrawn.count(), 0);
    rig->show();
    QTRY_COMPARE(countdown->property("timeText").toString(), QStringLiteral("24:52"));
}

void MainWindowTest::aNumberThatGrowsStaysInItsPlace() {
    rig->deepWork.setSelectedDuration(100); // "100:00", then "99:57"
    rig->deepWork.start();
    const auto corner = [this] { return rig->window()->grabWindow().copy(0, 0, 60, 24); };
    const QImage before = corner();
    rig->focus.pass(std::chrono::seconds(3));
    QCOMPARE(corner(), before);
    rig->deepWork.stop();
    QCOMPARE(corner(), before);
}

void MainWindowTest::theLanguageChangesEverything() {
    QVERIFY(shows(QStringLiteral("Start")));
    rig->showPage(UiRig::Page::preferences);
    QTRY_VERIFY(rig->visible("preferencesLanguage"));
    QMetaObject::invokeMethod(rig->visible("preferencesLanguage"), "chosen",
                              Q_ARG(QString, QStringLiteral("fr")));
    rig->showPage(UiRig::Page::deepWork);
    QVERIFY(shows(QStringLiteral("Démarrer")));
    QCOMPARE(rig->focus.preferences.value(QStringLiteral("app_language")).value().toString(),
             QStringLiteral("fr"));
    QCOMPARE(rig->health.index(0).data(TrackingHealthModel::CapabilityRole).toString(),
             QStringLiteral("Reconnaître l’application au premier plan"));
    QCOMPARE(rig->localization->formats()->decimal(8.25), QStringLiteral("8,3"));
}

void MainWindowTest::aProblemOfTheStoreIsShown() {
    QQuickItem* banner = rig->item("storeBanner");
    QVERIFY(!banner->isVisible());
    rig->userInterface->setStoreProblem(QStringLiteral("disk is full"));
    QVERIFY(banner->isVisible());
    QVERIFY(banner->property("text").toString().contains(QStringLiteral("disk is full")));
    rig->userInterface->setStoreProblem({});
    QVERIFY(!banner->isVisible());
}

QTEST_MAIN(MainWindowTest)
#include "tst_MainWindow.moc"
