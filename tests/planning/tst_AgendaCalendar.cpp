#include "tests/planning/AgendaRig.h"

#include <QtTest>

using namespace norvin;
using test::AgendaRig;

class AgendaCalendarTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void weeksBeginAsTheCountryHasThem();
    void theCursorGoesEverywhere();
    void tasksAreCountedByDayWhileItIsOpen();
    void daysWithoutMidnightHaveTheirTasks();
};

void AgendaCalendarTest::weeksBeginAsTheCountryHasThem() {
    AgendaRig rig;
    AgendaCalendarPopover calendar(rig.context(), rig.focus.clock, QLocale(QStringLiteral("en_US")));
    calendar.open(QDate(2025, 6, 15));
    QCOMPARE(calendar.weekdayNames().first(), QStringLiteral("Sun"));
    QCOMPARE(calendar.index(0).data(AgendaCalendarPopover::DayRole).toInt(), 1); // a Sunday
    calendar.setLocale(QLocale(QStringLiteral("fr")));
    QCOMPARE(calendar.longWeekdayNames().first(), QStringLiteral("lundi"));
    QCOMPARE(calendar.index(0).data(AgendaCalendarPopover::DayRole).toInt(), 26);
    QVERIFY(!calendar.index(0).data(AgendaCalendarPopover::IsInMonthRole).toBool());
    QVERIFY(calendar.index(6).data(AgendaCalendarPopover::IsInMonthRole).toBool());
    QCOMPARE(calendar.rowCount(), 42);
}

void AgendaCalendarTest::theCursorGoesEverywhere() {
    AgendaRig rig;
    AgendaCalendarPopover calendar(rig.context(), rig.focus.clock, QLocale(QStringLiteral("fr")));
    QSignalSpy chosen(&calendar, &AgendaCalendarPopover::chosen);
    calendar.open(QDate(2024, 1, 31));
    calendar.moveMonths(1);
    QCOMPARE(calendar.cursor(), QDate(2024, 2, 29));
    calendar.moveMonths(12);
    QCOMPARE(calendar.cursor(), QDate(2025, 2, 28));
    calendar.moveToWeekStart();
    QCOMPARE(calendar.cursor(), QDate(2025, 2, 24));
    calendar.moveToWeekEnd();
    QCOMPARE(calendar.cursor(), QDate(2025, 3, 2));
    calendar.moveDays(-7);
    QCOMPARE(calendar.cursor(), QDate(2025, 2, 23));
    QCOMPARE(calendar.index(calendar.cursorRow()).data(AgendaCalendarPopover::DayRole).toInt(), 23);
    QCOMPARE(chosen.count(), 0);
    calendar.choose(0);
    QCOMPARE(chosen.takeFirst().first().toDate(), QDate(2025, 1, 27));
    calendar.choose(42);
    QCOMPARE(chosen.count(), 0);
    calendar.chooseToday();
    QCOMPARE(calendar.selectedDay(), rig.today());
    calendar.moveMonths(-12 * 9000);
    calendar.moveMonths(12 * 99999);
    calendar.moveMonths(12);
    QCOMPARE(calendar.cursor().year(), 9999);
}

void AgendaCalendarTest::tasksAreCountedByDayWhileItIsOpen() {
    AgendaRig rig;
    const QDate day = rig.today();
    rig.add(QStringLiteral("first instant"), rig.at(day, QTime(0, 0)));
    rig.add(QStringLiteral("last instant"), rig.at(day, QTime(23, 59, 59, 999)));
    rig.add(QStringLiteral("due"), {}, rig.at(day));
    rig.add(QStringLiteral("done"), rig.at(day))->setStatus(TaskStatus::done);
    TaskItem* next = rig.add(QStringLiteral("next"), rig.at(day.addDays(1), QTime(0, 0)));
    AgendaCalendarPopover calendar(rig.context(), rig.focus.clock, QLocale(QStringLiteral("fr")));
    QCOMPARE(calendar.taskCount(day), 0);
    calendar.open(day);
    QCOMPARE(calendar.taskCount(day), 3);
    QCOMPARE(calendar.taskCount(day.addDays(1)), 1);
    QCOMPARE(calendar.taskCount(day.addDays(2)), 0);
    // What the days say is what their lists hold.
    rig.agenda->setSelectedDate(rig.at(day));
    QCOMPARE(calendar.taskCount(day), rig.agenda->list()->count());

    next->setPlannedDate(rig.at(day.addDays(40)));
    rig.settle();
    QCOMPARE(calendar.taskCount(day.addDays(1)), 0);
    calendar.moveMonths(1);
    QCOMPARE(calendar.taskCount(day.addDays(40)), 1);
    QCOMPARE(calendar.taskCount(day), 0); // not among the weeks shown
    calendar.close();
    QCOMPARE(calendar.taskCount(day.addDays(40)), 0);
}

void AgendaCalendarTest::daysWithoutMidnightHaveTheirTasks() {
    const QTimeZone place("America/Sao_Paulo");
    const QDate day(2018, 11, 4);
    AgendaRig rig("America/Sao_Paulo", QDateTime(QDate(2018, 11, 1), QTime(12, 0), place));
    rig.add(QStringLiteral("before"), day.startOfDay(place).addMSecs(-1));
    rig.add(QStringLiteral("first"), day.startOfDay(place));
    AgendaCalendarPopover calendar(rig.context(), rig.focus.clock, QLocale(QStringLiteral("pt")));
    calendar.open(day);
    QCOMPARE(calendar.taskCount(day.addDays(-1)), 1);
    QCOMPARE(calendar.taskCount(day), 1);
}

QTEST_GUILESS_MAIN(AgendaCalendarTest)
#include "tst_AgendaCalendar.moc"
