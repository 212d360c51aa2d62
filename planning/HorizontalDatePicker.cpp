#include "planning/HorizontalDatePicker.h"

#include "planning/CalendarDays.h"
#include "platform/Clock.h"

#include <QtGlobal>

#include <algorithm>

namespace norvin {

namespace {

QList<QDateTime> datesFrom(const QDateTime& today) {
    QList<QDateTime> dates;
    for (int days = 0; days < HorizontalDatePicker::dayCount; ++days) {
        if (startOfDate(today.date().addDays(days), today).isValid())
            dates.append(today.addDays(days));
    }
    return dates;
}

} // namespace

HorizontalDatePicker::HorizontalDatePicker(const QDateTime& selectedDate, Clock& clock, const QLocale& locale,
                                           QObject* parent)
    : QAbstractListModel(parent)
    , m_clock(clock)
    , m_locale(locale)
    , m_today(clock.now())
    , m_selectedDate(selectedDate)
    , m_dates(datesFrom(m_today)) {}

HorizontalDatePicker::~HorizontalDatePicker() = default;

void HorizontalDatePicker::refresh() {
    const QDateTime now = m_clock.now();
    const QList<QDateTime> dates = datesFrom(now);
    const bool isSameLength = dates.size() == m_dates.size();
    if (isSameLength && now.date() == m_today.date() && now.offsetFromUtc() == m_today.offsetFromUtc())
        return;
    if (!isSameLength)
        beginResetModel();
    m_today = now;
    m_dates = dates;
    if (isSameLength)
        touchRows();
    else
        endResetModel();
    Q_EMIT selectedDateChanged();
}

void HorizontalDatePicker::setLocale(const QLocale& locale) {
    m_locale = locale;
    touchRows();
}

void HorizontalDatePicker::touchRows() {
    if (!m_dates.isEmpty())
        Q_EMIT dataChanged(index(0), index(static_cast<int>(m_dates.size()) - 1));
}

int HorizontalDatePicker::selectedRow() const {
    const QDate day = inZoneOf(m_selectedDate, m_today).date();
    const auto found = std::find_if(m_dates.cbegin(), m_dates.cend(),
                                    [day](const QDateTime& date) { return date.date() == day; });
    return found == m_dates.cend() ? -1 : static_cast<int>(std::distance(m_dates.cbegin(), found));
}

void HorizontalDatePicker::setSelectedDate(const QDateTime& date) {
    if (date == m_selectedDate)
        return;
    const int before = selectedRow();
    m_selectedDate = date;
    for (const int row : {before, selectedRow()}) {
        if (row >= 0)
            Q_EMIT dataChanged(index(row), index(row), {IsSelectedRole});
    }
    Q_EMIT selectedDateChanged();
}

void HorizontalDatePicker::select(int row) {
    if (row >= 0 && row < m_dates.size())
        setSelectedDate(m_dates[row]);
}

int HorizontalDatePicker::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_dates.size());
}

QVariant HorizontalDatePicker::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const QDate day = m_dates[index.row()].date();
    const bool isToday = day == m_today.date();
    switch (role) {
    case WeekdayRole:
        return isToday ? qtTrId("today_short")
                       : m_locale.standaloneDayName(day.dayOfWeek(), QLocale::ShortFormat);
    case DayRole:
        return day.day();
    case MonthRole:
        return m_locale.standaloneMonthName(day.month(), QLocale::ShortFormat);
    case Qt::DisplayRole:
    case NameRole:
        return m_locale.toString(day, QLocale::LongFormat);
    case IsSelectedRole:
        return day == inZoneOf(m_selectedDate, m_today).date();
    case IsTodayRole:
        return isToday;
    default:
        return {};
    }
}

QHash<int, QByteArray> HorizontalDatePicker::roleNames() const {
    return {{WeekdayRole, "weekday"},       {DayRole, "day"},        {MonthRole, "month"}, {NameRole, "name"},
            {IsSelectedRole, "isSelected"}, {IsTodayRole, "isToday"}};
}

} // namespace norvin
