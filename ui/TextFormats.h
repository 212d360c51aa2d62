#pragma once

#include <QDateTime>
#include <QLocale>
#include <QObject>
#include <QString>

namespace norvin {

/// Numbers and lengths as the user's language writes them. Main thread only.
class TextFormats final : public QObject {
    Q_OBJECT
public:
    explicit TextFormats(const QLocale& locale, QObject* parent = nullptr)
        : QObject(parent)
        , m_locale(locale) {}

    void setLocale(const QLocale& locale) { m_locale = locale; }

    /// A length in seconds, in at most two units ("42 s", "3 min 05 s", "2 h 10 min"); negative ones read as
    /// 0.
    Q_INVOKABLE [[nodiscard]] QString duration(int seconds) const;
    /// A length in whole minutes ("25 min", "2 h 10 min"); negative ones read as 0.
    Q_INVOKABLE [[nodiscard]] QString minutes(int minutes) const;
    /// A day and time, short.
    Q_INVOKABLE [[nodiscard]] QString dateTime(const QDateTime& instant) const;
    /// A number with one decimal.
    Q_INVOKABLE [[nodiscard]] QString decimal(double value) const;
    /// A number with one decimal and its sign, with a true minus; zero has no sign.
    Q_INVOKABLE [[nodiscard]] QString signedDecimal(double value) const;

private:
    QLocale m_locale;
};

} // namespace norvin
