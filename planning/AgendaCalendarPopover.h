#pragma once

#include <QAbstractListModel>
#include <QDate>
#include <QLocale>
#include <QString>
#include <QStringList>

#include <array>

namespace norvin {

class Clock;
class ModelContext;

/// A month to choose a day from, as six weeks of days beginning with the first weekday of the user's country,
/// each with the number of tasks that stand on it. One day has the cursor, and the month shown is that of the
/// cursor. Main thread only.
///
/// Tasks are counted from open() to close(), and kept up with what happens meanwhile, at the end of the
/// event-loop turn.
class AgendaCalendarPopover final : public QAbstractListModel {
    Q_OBJECT
    /// "November 2026".
    Q_PROPERTY(QString monthTitle READ monthTitle NOTIFY shown)
    /// The names of the seven columns: short, and in full for a screen reader.
    Q_PROPERTY(QStringList weekdayNames READ weekdayNames NOTIFY shown)
    Q_PROPERTY(QStringList longWeekdayNames READ longWeekdayNames NOTIFY shown)
    /// The row of the day that has the cursor.
    Q_PROPERTY(int cursorRow READ cursorRow NOTIFY shown)
public:
    static constexpr int dayCount = 42;

    enum Role {
        DayRole = Qt::UserRole + 1, ///< "day": number of the day in its month
        IsInMonthRole,              ///< "isInMonth": whether the day is of the month shown
        IsTodayRole,                ///< "isToday"
        IsSelectedRole,             ///< "isSelected"
        TaskCountRole,              ///< "taskCount": unfinished tasks of the day
        NameRole,                   ///< "name": the date in words, and how many tasks
    };

    /// Everything must outlive this.
    AgendaCalendarPopover(ModelContext& context, Clock& clock, const QLocale& locale,
                          QObject* parent = nullptr);
    ~AgendaCalendarPopover() override;

    [[nodiscard]] QDate selectedDay() const { return m_selectedDay; }
    [[nodiscard]] QDate cursor() const { return m_cursor; }
    /// Tasks that stand on a day of the weeks shown; 0 for other days and while closed.
    [[nodiscard]] int taskCount(QDate day) const;

    /// Shows the month of a day and begins to count.
    void open(QDate selectedDay);
    Q_INVOKABLE void close();
    /// The same with the cursor kept within the month; the day is the last one where a month is too short.
    Q_INVOKABLE void moveMonths(int months);
    Q_INVOKABLE void moveDays(int days);
    /// To the first or the last day of the cursor's week.
    Q_INVOKABLE void moveToWeekStart();
    Q_INVOKABLE void moveToWeekEnd();
    /// Chooses the day of a row, of the cursor, or today.
    Q_INVOKABLE void choose(int row);
    Q_INVOKABLE void chooseCursor() { chooseDay(m_cursor); }
    Q_INVOKABLE void chooseToday();

    /// Today is another day.
    void refresh();
    void setLocale(const QLocale& locale);

    [[nodiscard]] QString monthTitle() const;
    [[nodiscard]] QStringList weekdayNames() const;
    [[nodiscard]] QStringList longWeekdayNames() const;
    [[nodiscard]] int cursorRow() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    /// The month, the cursor or the language is another one.
    void shown();
    /// The user has chosen a day.
    void chosen(QDate day);

private:
    void moveTo(QDate day);
    void chooseDay(QDate day);
    [[nodiscard]] QDate dayOfRow(int row) const { return m_firstDay.addDays(row); }
    [[nodiscard]] QStringList names(QLocale::FormatType format) const;
    void layOut();
    void countTasks();
    void scheduleCount();
    void touchRows();

    ModelContext& m_context;
    Clock& m_clock;
    QLocale m_locale;
    QDate m_selectedDay;
    QDate m_cursor;
    /// The day of the first row.
    QDate m_firstDay;
    std::array<int, dayCount> m_counts{};
    bool m_isOpen = false;
    bool m_isCountScheduled = false;
};

} // namespace norvin
