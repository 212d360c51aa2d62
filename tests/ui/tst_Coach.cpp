#include "platform/fake/FakeOverlaySupport.h"
#include "tests/ui/UiRig.h"
#include "ui/alert/OverlayWindow.h"
#include "ui/coach/CoachBubble.h"

using namespace norvin;
using namespace std::chrono_literals;

/// Where the coach's messages are shown.
class CoachTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { make(QStringLiteral("en")); }
    void cleanup();

    void messageLiesOverTheDeepWorkScreen();
    void messageIsTakenAwayByKeyAndButton();
    void bubbleStandsInForAWindowThatIsNotInFront();
    void bubbleWaitsForTheWindow();
    void notificationWhereThereAreNoOverlays();
    void everyMessageHasRoom_data() { UiRig::addLanguages(); }
    void everyMessageHasRoom();

private:
    void make(const QString& language);
    void say(const QString& text = QStringLiteral("Take a breath.")) const {
        rig->coach.addMessage({.text = text, .timestamp = rig->focus.clock.now()});
    }
    [[nodiscard]] QQuickItem* message() const { return rig->item("coachMessage"); }
    /// Lets the bubble's patience pass, once it has begun to wait.
    void passPatience() const {
        FocusRig::settle();
        rig->focus.clock.advance(500ms);
    }

    std::unique_ptr<UiRig> rig;
    FakeOverlaySupport support;
    std::unique_ptr<CoachBubble> bubble;
};

void CoachTest::make(const QString& language) {
    cleanup();
    rig = std::make_unique<UiRig>(language);
    QVERIFY(rig->loaded);
    support.setAvailability(Availability::available());
    bubble =
        std::make_unique<CoachBubble>(CoachBubble::Collaborators{.coach = rig->coach,
                                                                 .support = support,
                                                                 .notifications = rig->focus.notifications,
                                                                 .clock = rig->focus.clock,
                                                                 .engine = rig->userInterface->engine(),
                                                                 .mainWindow = *rig->window()});
}

void CoachTest::cleanup() {
    bubble.reset();
    rig.reset();
}

void CoachTest::messageLiesOverTheDeepWorkScreen() {
    rig->show();
    QVERIFY(!message());
    const QPointF before = rig->item("countdown")->mapToScene({});
    say();
    QTRY_VERIFY(message() && message()->isVisible());
    QQuickItem* const overlay = message()->parentItem()->parentItem();
    QTRY_COMPARE(overlay->opacity(), 1.0);
    QCOMPARE(rig->item("countdown")->mapToScene({}), before);
    QVERIFY(QRectF(QPointF(0, 0), QSizeF(rig->window()->size()))
                .contains(overlay->mapRectToScene(overlay->boundingRect())));

    const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(overlay);
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::AlertMessage);
    say(QStringLiteral("Carry on."));
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Carry on."));
    QCOMPARE(message()->property("text").toString(), QStringLiteral("Carry on."));

    rig->focus.pass(8s);
    QTRY_VERIFY(!message()->isVisible());
}

void CoachTest::messageIsTakenAwayByKeyAndButton() {
    rig->show();
    say();
    QTRY_VERIFY(message() && message()->isVisible());
    rig->press(Qt::Key_Escape);
    QVERIFY(!rig->coach.isVisible());
    QTRY_VERIFY(!message()->isVisible());

    say();
    QQuickItem* const button = rig->item("coachDismiss");
    QTRY_COMPARE(message()->parentItem()->parentItem()->opacity(), 1.0);
    QTest::mouseClick(rig->window(), Qt::LeftButton, {},
                      button->mapToScene(button->boundingRect().center()).toPoint());
    QVERIFY(!rig->coach.isVisible());
}

void CoachTest::bubbleStandsInForAWindowThatIsNotInFront() {
    say(QStringLiteral("A message that is long enough to need a second line in so small a window."));
    passPatience();
    QVERIFY(bubble->window());
    QTRY_VERIFY(bubble->window()->isExposed());
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    QTRY_COMPARE(bubble->window()->geometry().bottomRight(), available.bottomRight() - QPoint(16, 16));
    QVERIFY(bubble->window()->height() > 40);
    QCOMPARE(textFaults(*bubble->window(), {}).join(u'\n'), QString());
    QVERIFY(!bubble->window()->isClickThrough());
    QVERIFY(bubble->window()->flags().testFlag(Qt::WindowDoesNotAcceptFocus));

    QTest::mouseClick(bubble->window(), Qt::LeftButton, {}, QPoint(40, 20));
    QVERIFY(!rig->coach.isVisible());
    QTRY_VERIFY(!bubble->window());

    say();
    passPatience();
    QVERIFY(bubble->window());
    rig->focus.pass(8s);
    QTRY_VERIFY(!bubble->window());
}

void CoachTest::bubbleWaitsForTheWindow() {
    say();
    FocusRig::settle();
    rig->show();
    passPatience();
    QVERIFY(!bubble->window());

    // Another page does not show the message.
    rig->showPage(UiRig::Page::blockLists);
    passPatience();
    QTRY_VERIFY(bubble->window());
    // Without a window manager, the latest window has the keyboard.
    rig->window()->requestActivate();
    QTRY_VERIFY(rig->window()->isActive());
    rig->showPage(UiRig::Page::deepWork);
    QTRY_VERIFY(!bubble->window());
}

void CoachTest::notificationWhereThereAreNoOverlays() {
    support.setAvailability(Availability::unavailable(QStringLiteral("health_wayland_overlay")));
    say(QStringLiteral("First"));
    passPatience();
    passPatience();
    QCOMPARE(rig->focus.notifications.posted().size(), 1u);
    say(QStringLiteral("Second"));
    passPatience();
    QCOMPARE(rig->focus.notifications.posted().size(), 2u);
    QCOMPARE(rig->focus.notifications.posted().back().body, QStringLiteral("Second"));
    QVERIFY(!bubble->window());
}

void CoachTest::everyMessageHasRoom() {
    QFETCH(QString, language);
    for (const char* const key :
         {"coach_distraction_1", "coach_distraction_2", "coach_distraction_3", "coach_interrupt_pause",
          "coach_interrupt_inactivity", "coach_interrupt_abandoned"}) {
        make(language);
        say(qtTrId(key).replace(QLatin1String("%1"), QLatin1String("LibreOffice Impress")));
        passPatience();
        QVERIFY(bubble->window());
        QTRY_VERIFY(bubble->window()->isExposed());
        static_cast<void>(bubble->window()->grabWindow());
        QCOMPARE(textFaults(*bubble->window(), {}).join(u'\n'), QString());
        rig->show();
        QTRY_VERIFY(message() && message()->isVisible());
        rig->checkTexts(QStringLiteral("coach-") + QLatin1String(key));
    }
}

QTEST_MAIN(CoachTest)
#include "tst_Coach.moc"
