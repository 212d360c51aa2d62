#include "app/NorvinFocusApp.h"
#include "app/StatusReport.h"
#include "focus/PhaseSymbol.h"
#include "tests/support/FocusRig.h"

#include <QTest>

using namespace norvin;
using namespace std::chrono_literals;

class tst_StatusReport final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void hasEveryMemberInEveryState();
    void reportsARunningSession();
    void readsWellInATerminal();
    void menuBarIcons();
};

namespace {

struct ReportRig : FocusRig {
    DeepWorkScreen screen{timer, usage, motion, context()};
    [[nodiscard]] QJsonObject report() { return statusReport(screen); }
};

} // namespace

void tst_StatusReport::hasEveryMemberInEveryState() {
    ReportRig rig;
    const QStringList members{"state",
                              "phase",
                              "timeRemaining",
                              "initialDuration",
                              "interruptionCount",
                              "blockedAttemptsCount",
                              "blockedSiteAttemptsCount",
                              "completedTasksCount",
                              "completedSubtasksCount",
                              "legitimateSeconds",
                              "distractedSeconds",
                              "score",
                              "activity",
                              "activeTask",
                              "queue"};
    const auto check = [&](const char* state) {
        const QJsonObject report = rig.report();
        for (const QString& member : members)
            QVERIFY2(report.contains(member), qPrintable(member));
        QCOMPARE(report["state"].toString(), QLatin1String(state));
    };
    check("idle");
    rig.screen.start();
    check("running");
    rig.screen.pause();
    check("paused");
    rig.screen.resume();
    rig.pass(1501s);
    check("completed");
}

void tst_StatusReport::reportsARunningSession() {
    ReportRig rig;
    rig.screen.addTask(QStringLiteral("Write"));
    rig.screen.addSubtask(0, QStringLiteral("Outline"));
    rig.workspace.setFrontmost(rig.game);
    rig.screen.start();
    rig.pass(30s);
    const QJsonObject report = rig.report();
    QCOMPARE(report["phase"].toString(), QStringLiteral("work"));
    QCOMPARE(report["timeRemaining"].toInt(), 1470);
    QCOMPARE(report["distractedSeconds"].toInt(), 30);
    QCOMPARE(report["activity"]["kind"].toString(), QStringLiteral("distracted"));
    QCOMPARE(report["activity"]["appName"].toString(), QStringLiteral("Game"));
    QVERIFY(report["activity"]["domain"].isNull());
    QCOMPARE(report["activeTask"]["title"].toString(), QStringLiteral("Write"));
    QCOMPARE(report["queue"][0]["subtasks"][0]["title"].toString(), QStringLiteral("Outline"));
    QCOMPARE(report["queue"][0]["done"].toBool(true), false);
}

void tst_StatusReport::readsWellInATerminal() {
    ReportRig rig;
    QCOMPARE(statusText(rig.report()), QStringLiteral("idle\n"));
    rig.screen.addTask(QStringLiteral("Write"));
    rig.workspace.setFrontmost(rig.game);
    rig.screen.start();
    rig.pass(90s);
    QCOMPARE(statusText(rig.report()),
             QStringLiteral("work running, 23:30 of 25:00 left\ntask: Write\nin front: Game, distracted\n"
                            "legitimate 00:00, distracted 01:30, score 0.0\n"
                            "interruptions 0, blocked applications 0, blocked sites 0\n"));
    QCOMPARE(tasksText(tasksReport(rig.screen)), QStringLiteral("[ ] Write\n"));
    rig.blocker.addSiteToBlocklist(QStringLiteral("org.mozilla.firefox"), QStringLiteral("example.org"));
    QCOMPARE(listsText(listsReport(rig.blocker)),
             QStringLiteral("blocked applications:\n    none\nallowed applications:\n    none\n"
                            "blocked sites in org.mozilla.firefox:\n    example.org\n"));
}

void tst_StatusReport::menuBarIcons() {
    using State = TimerState;
    using Phase = PomodoroPhase;
    QCOMPARE(phaseSymbol(State::idle, Phase::rearming), QStringLiteral("brain"));
    QCOMPARE(phaseSymbol(State::running, Phase::work), QStringLiteral("brain.head.profile"));
    QCOMPARE(phaseSymbol(State::running, Phase::breakTime), QStringLiteral("cup.and.saucer.fill"));
    QCOMPARE(phaseSymbol(State::running, Phase::rearming), QStringLiteral("arrow.clockwise"));
    QCOMPARE(phaseSymbol(State::paused, Phase::work), QStringLiteral("pause.circle.fill"));
    QCOMPARE(phaseSymbol(State::completed, Phase::work), QStringLiteral("checkmark.circle.fill"));
}

QTEST_GUILESS_MAIN(tst_StatusReport)
#include "tst_StatusReport.moc"
