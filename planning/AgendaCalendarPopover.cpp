#include "planning/AgendaCalendarPopover.h"

#include "model/ModelContext.h"
#include "planning/CalendarDays.h"
#include "platform/Clock.h"

#include <QtGlobal>

#include <algorithm>
#include <utility>

namespace norvin {

namespace {

constexpr int daysInWeek = 7;
// A month more than can be asked for on both sides, so that six weeks always have dates.
const QDate firstDate(1, 2, 1);
const QDate lastDate(9999, 10, 31);

} // namespace

AgendaCalendarPopover::AgendaCalendarPopover(ModelContext& context, Clock& clock, const QLocale& locale,
                                             QObject* parent)
    : QAbstractListModel(parent)
    , m_context(context)
    , m_clock(clock)
    , m_locale(locale)
    , m_selectedDay(clock.now().date())
    , m_cursor(m_selectedDay) {
    connect(&m_context, &ModelContext::taskInserted, this, &AgendaCalendarPopover::scheduleCount);
    connect(&m_context, &ModelContext::taskChanged, this, &AgendaCalendarPopover::scheduleCount);
    connect(&m_context, &ModelContext::taskAboutToBeRemoved, this, &AgendaCalendarPopover::scheduleCount);
    layOut();
}

AgendaCalendarPopover::~AgendaCalendarPopover() = default;

void AgendaCalendarPopover::open(QDate selectedDay) {
    m_selectedDay = std::clamp(selectedDay, firstDate, lastDate);
    m_cursor = m_selectedDay;
    m_isOpen = true;
    layOut();
    countTasks();
    Q_EMIT shown();
}

void AgendaCalendarPopover::close() {
    m_isOpen = false;
    m_counts.fill(0);
}

void AgendaCalendarPopover::layOut() {
    const QDate first(m_cursor.year(), m_cursor.month(), 1);
    const int leading = (first.dayOfWeek() - m_locale.firstDayOfWeek() + daysInWeek) % daysInWeek;
    m_firstDay = first.addDays(-leading);
}

void AgendaCalendarPopover::moveTo(QDate day) {
    const QDate before = m_firstDay;
    m_cursor = std::clamp(day, firstDate, lastDate);
    layOut();
    if (m_firstDay != before)
        countTasks();
    else
        touchRows();
    Q_EMIT shown();
}

void AgendaCalendarPopover::moveMonths(int months) {
    moveTo(m_cursor.addMonths(months));
}

void AgendaCalendarPopover::moveDays(int days) {
    moveTo(m_cursor.addDays(days));
}

void AgendaCalendarPopover::moveToWeekStart() {
    moveTo(dayOfRow(cursorRow() / daysInWeek * daysInWeek));
}

void AgendaCalendarPopover::moveToWeekEnd() {
    moveTo(dayOfRow(cursorRow() / daysInWeek * daysInWeek + daysInWeek - 1));
}

void AgendaCalendarPopover::choose(int row) {
    if (row >= 0 && row < dayCount)
        chooseDay(dayOfRow(row));
}

void AgendaCalendarPopover::chooseToday() {
    chooseDay(m_clock.now().date());
}

void AgendaCalendarPopover::chooseDay(QDate day) {
    m_selectedDay = std::clamp(day, firstDate, lastDate);
    moveTo(m_selectedDay);
    Q_EMIT chosen(m_selectedDay);
}

void AgendaCalendarPopover::refresh() {
    if (m_isOpen)
        countTasks();
}

void AgendaCalendarPopover::setLocale(const QLocale& locale) {
    m_locale = locale;
    layOut();
    refresh();
    Q_EMIT shown();
}

void AgendaCalendarPopover::scheduleCount() {
    if (!m_isOpen || std::exchange(m_isCountScheduled, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isCountScheduled = false;
            refresh();
        },
        Qt::QueuedConnection);
}

void AgendaCalendarPopover::countTasks() {
    m_counts.fill(0);
    if (!m_isOpen) {
        touchRows();
        return;
    }
    const QDateTime now = m_clock.now();
    // Where each day begins, and where the last one ends.
    std::array<Instant, dayCount + 1> limits;
    for (int row = 0; row < dayCount; ++row)
        limits[static_cast<size_t>(row)] = agendaDayOf(dayOfRow(row), now).start;
    limits.back() = agendaDayOf(dayOfRow(dayCount - 1), now).end;
    for (const TaskItem* task : m_context.tasks()) {
        if (!isOnAgendaDay(*task, limits.front(), limits.back()))
            continue;
        const auto next = std::upper_bound(limits.cbegin(), limits.cend(), task->agendaInstant());
        ++m_counts[static_cast<size_t>(std::distance(limits.cbegin(), next)) - 1];
    }
    touchRows();
}

void AgendaCalendarPopover::touchRows() {
    Q_EMIT dataChanged(index(0), index(dayCount - 1));
}

int AgendaCalendarPopover::taskCount(QDate day) const {
    const qint64 row = m_firstDay.daysTo(day);
    return row >= 0 && row < dayCount ? m_counts[static_cast<size_t>(row)] : 0;
}

QString AgendaCalendarPopover::monthTitle() const {
    return qtTrId("calendar_month_format")
        .arg(m_locale.standaloneMonthName(m_cursor.month()), QString::number(m_cursor.year()));
}

QStringList AgendaCalendarPopover::names(QLocale::FormatType format) const {
    QStringList names;
    for (int column = 0; column < daysInWeek; ++column)
        names.append(m_locale.standaloneDayName(dayOfRow(column).dayOfWeek(), format));
    return names;
}

QStringList AgendaCalendarPopover::weekdayNames() const {
    return names(QLocale::ShortFormat);
}

QStringList AgendaCalendarPopover::longWeekdayNames() const {
    return names(QLocale::LongFormat);
}

int AgendaCalendarPopover::cursorRow() const {
    return static_cast<int>(m_firstDay.daysTo(m_cursor));
}

int AgendaCalendarPopover::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : dayCount;
}

QVariant AgendaCalendarPopover::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const QDate day = dayOfRow(index.row());
    switch (role) {
    case DayRole:
        return day.day();
    case IsInMonthRole:
        return day.month() == m_cursor.month();
    case IsTodayRole:
        return day == m_clock.now().date();
    case IsSelectedRole:
        return day == m_selectedDay;
    case TaskCountRole:
        return taskCount(day);
    case Qt::DisplayRole:
    case NameRole:
        return taskCount(day) == 0 ? m_locale.toString(day, QLocale::LongFormat)
                                   : qtTrId("calendar_day_name", taskCount(day))
                                         .arg(m_locale.toString(day, QLocale::LongFormat));
    default:
        return {};
    }
}

QHash<int, QByteArray> AgendaCalendarPopover::roleNames() const {
    return {{DayRole, "day"},
            {IsInMonthRole, "isInMonth"},
            {IsTodayRole, "isToday"},
            {IsSelectedRole, "isSelected"},
            {TaskCountRole, "taskCount"},
            {NameRole, "name"}};
}

} // namespace norvin
