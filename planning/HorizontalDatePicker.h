#pragma once

#include <QAbstractListModel>
#include <QDateTime>
#include <QList>
#include <QLocale>

namespace norvin {

class Clock;

/// The strip of days to choose from: today and the 29 that follow. Days that the time zone leaves out are
/// left out. Main thread only.
class HorizontalDatePicker final : public QAbstractListModel {
    Q_OBJECT
    /// The row of the chosen day; −1 when it is not on the strip.
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY selectedDateChanged)
public:
    static constexpr int dayCount = 30;

    enum Role {
        WeekdayRole = Qt::UserRole + 1, ///< "weekday": abbreviated; for today the word for it
        DayRole,                        ///< "day": number of the day in its month
        MonthRole,                      ///< "month": abbreviated
        NameRole,                       ///< "name": the whole date in words
        IsSelectedRole,                 ///< "isSelected"
        IsTodayRole,                    ///< "isToday"
    };

    /// @param clock must outlive this
    HorizontalDatePicker(const QDateTime& selectedDate, Clock& clock, const QLocale& locale,
                         QObject* parent = nullptr);
    ~HorizontalDatePicker() override;

    /// The instant whose day is the first of the strip.
    [[nodiscard]] const QDateTime& today() const { return m_today; }
    [[nodiscard]] const QDateTime& selectedDate() const { return m_selectedDate; }
    void setSelectedDate(const QDateTime& date);
    [[nodiscard]] int selectedRow() const;
    /// Chooses the day of a row; one that is not there changes nothing.
    Q_INVOKABLE void select(int row);

    /// Lets the strip begin with the day that it is now.
    void refresh();
    void setLocale(const QLocale& locale);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void selectedDateChanged();

private:
    void touchRows();

    Clock& m_clock;
    QLocale m_locale;
    QDateTime m_today;
    QDateTime m_selectedDate;
    QList<QDateTime> m_dates;
};

} // namespace norvin
