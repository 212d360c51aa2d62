#include "app/PlanningReport.h"
#include "app/StatsReport.h"
#include "stats/StatsFormats.h"
#include "stats/StatsPeriod.h"
#include "stats/export/RecordWriter.h"

#include <QJsonArray>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace norvin {

namespace {

// The terminal speaks English.
QLocale english() {
    return {QLocale::English, QLocale::UnitedKingdom};
}

QString hourName(int hour) {
    return QStringLiteral("%1:00").arg(hour, 2, 10, QLatin1Char('0'));
}

QString weekdayName(int day) {
    return english().standaloneDayName(day + 1, QLocale::LongFormat);
}

// A stamp is "2025-03-10T09:00:00.000+01:00", by the user's clock: what is read off it is what is cut out.
QString bucketName(const QString& start, const QString& unit) {
    if (unit == QLatin1String("hour"))
        return start.mid(11, 5);
    return unit == QLatin1String("month") ? start.left(7) : start.left(10);
}

bool isToday(const QJsonObject& report) {
    return report[QStringLiteral("page")] == QLatin1String("today");
}

// Columns

using Line = QStringList;

/// Lines of columns, each as wide as its widest entry.
QString aligned(const QList<Line>& lines) {
    QList<qsizetype> widths;
    for (const Line& line : lines) {
        widths.resize(std::max(widths.size(), line.size()));
        for (qsizetype i = 0; i < line.size(); ++i)
            widths[i] = std::max(widths[i], line.at(i).size());
    }
    QString text;
    for (const Line& line : lines) {
        QString written = QStringLiteral(" ");
        for (qsizetype i = 0; i < line.size(); ++i)
            written += u' ' + line.at(i).leftJustified(widths.at(i)) + u' ';
        while (written.endsWith(u' '))
            written.chop(1);
        text += written + u'\n';
    }
    return text;
}

QString section(const QString& title, const QList<Line>& lines) {
    return lines.isEmpty() ? QString() : u'\n' + title + u'\n' + aligned(lines);
}

QList<Line> minuteLines(const QJsonArray& minutes, QString (*name)(int)) {
    QList<Line> lines;
    for (int i = 0; i < minutes.size(); ++i) {
        if (const int value = minutes.at(i).toInt(); value > 0)
            lines.append({name(i), formatTime(value)});
    }
    return lines;
}

QList<Line> bucketLines(const QJsonObject& chart) {
    QList<Line> lines;
    for (const QJsonValue& value : chart[QStringLiteral("buckets")].toArray()) {
        const int minutes = value[QStringLiteral("minutes")].toInt();
        if (minutes > 0) {
            lines.append({bucketName(value[QStringLiteral("start")].toString(),
                                     chart[QStringLiteral("unit")].toString()),
                          formatTime(minutes)});
        }
    }
    return lines;
}

QString applicationsText(const QJsonObject& report) {
    QList<Line> categories;
    for (const QJsonValue& value : report[QStringLiteral("categories")].toArray()) {
        categories.append({printable(categoryName(value[QStringLiteral("category")].toString())),
                           formatSeconds(value[QStringLiteral("seconds")].toInteger())});
    }
    QList<Line> apps;
    for (const QJsonValue& value : report[QStringLiteral("topApplications")].toArray()) {
        apps.append({QString::number(apps.size() + 1), printable(value[QStringLiteral("name")].toString()),
                     formatSeconds(value[QStringLiteral("seconds")].toInteger()),
                     QStringLiteral("%1 %").arg(std::lround(100 * value[QStringLiteral("share")].toDouble())),
                     printable(categoryName(value[QStringLiteral("category")].toString()))});
    }
    return section(QStringLiteral("By category"), categories) +
           section(QStringLiteral("Most used applications"), apps);
}

QString sessionsText(const QJsonObject& report) {
    const bool today = isToday(report);
    QList<Line> lines;
    for (const QJsonValue& value : report[QStringLiteral("sessionList")].toArray()) {
        const QString start = value[QStringLiteral("start")].toString();
        const QJsonValue score = value[QStringLiteral("score")];
        const QString task = value[QStringLiteral("task")].toString();
        lines.append({today ? start.mid(11, 5) : start.left(10) + u' ' + start.mid(11, 5),
                      formatTime(value[QStringLiteral("minutes")].toInt()),
                      score.isDouble() ? formatScore(score.toDouble()) : QStringLiteral("-"),
                      task.isEmpty() ? QStringLiteral("no task") : printable(task)});
    }
    return section(today ? QStringLiteral("Sessions of today") : QStringLiteral("Last sessions"), lines);
}

// CSV

class Table final {
public:
    Table() {
        add("section", QStringLiteral("key"), QStringLiteral("name"), QStringLiteral("value"), "unit");
    }
    void add(const char* section, const QString& key, const QString& name, const QString& value,
             const char* unit) {
        m_bytes += section;
        for (const QString& field : {key, name, value})
            m_bytes += ',' + csvField(field.toUtf8());
        m_bytes += QByteArray(",") + unit + "\r\n";
    }
    void add(const char* section, const QString& key, const QString& name, double value, const char* unit) {
        add(section, key, name, QString::number(value, 'g', QLocale::FloatingPointShortest), unit);
    }
    [[nodiscard]] const QByteArray& bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

void addFigures(Table& table, const QJsonObject& report) {
    const auto figure = [&](const char* key, const char* name, const char* unit) {
        table.add("figures", QLatin1String(key), QLatin1String(name), report[QLatin1String(key)].toDouble(),
                  unit);
    };
    figure("sessions", "Sessions", "count");
    figure("focusMinutes", "Focus time", "min");
    figure("averageScore", "Average score", "score");
    if (isToday(report)) {
        figure("streakDays", "Streak", "days");
        figure("applicationMinutes", "Time in applications", "min");
        return;
    }
    figure("usageSeconds", "Time in applications", "s");
    const QJsonValue best = report[QStringLiteral("bestDay")];
    table.add("figures", QStringLiteral("bestDay"), best[QStringLiteral("date")].toString(),
              best[QStringLiteral("minutes")].toDouble(), "min");
}

void addMinutes(Table& table, const char* section, const QJsonArray& minutes, QString (*name)(int)) {
    for (int i = 0; i < minutes.size(); ++i)
        table.add(section, QString::number(i), name(i), minutes.at(i).toDouble(), "min");
}

} // namespace

QString statsText(const QJsonObject& report) {
    const QDate date = QDate::fromString(report[QStringLiteral("date")].toString(), Qt::ISODate);
    const QString day = english().toString(date, QStringLiteral("dddd, d MMMM yyyy"));
    QList<Line> figures{
        {QStringLiteral("Sessions"), report[QStringLiteral("sessions")].toVariant().toString()},
        {QStringLiteral("Focus"), formatTime(report[QStringLiteral("focusMinutes")].toInt())},
        {QStringLiteral("Score"), formatScore(report[QStringLiteral("averageScore")].toDouble())}};
    if (isToday(report)) {
        const int streak = report[QStringLiteral("streakDays")].toInt();
        figures.append({QStringLiteral("Streak"), counted(streak, "day", "days")});
        figures.append({QStringLiteral("Applications"),
                        formatTime(report[QStringLiteral("applicationMinutes")].toInt())});
        return day + u'\n' + aligned(figures) +
               section(QStringLiteral("By hour"),
                       minuteLines(report[QStringLiteral("hours")].toArray(), &hourName)) +
               applicationsText(report) + sessionsText(report);
    }
    const QJsonValue best = report[QStringLiteral("bestDay")];
    figures.append({QStringLiteral("Best day"), formatTime(best[QStringLiteral("minutes")].toInt()),
                    best[QStringLiteral("date")].toString()});
    figures.append(
        {QStringLiteral("Applications"), formatSeconds(report[QStringLiteral("usageSeconds")].toInteger())});
    const auto period = statsPeriodFromRawValue(report[QStringLiteral("period")].toString());
    const QJsonObject chart = report[QStringLiteral("chart")].toObject();
    return QStringLiteral("%1, on %2\n").arg(periodDescription(period.value_or(StatsPeriod::all)), day) +
           aligned(figures) +
           section(QStringLiteral("By ") + chart[QStringLiteral("unit")].toString(), bucketLines(chart)) +
           section(QStringLiteral("By day of the week"),
                   minuteLines(report[QStringLiteral("weekdays")].toArray(), &weekdayName)) +
           applicationsText(report) + sessionsText(report);
}

QByteArray statsCsv(const QJsonObject& report) {
    Table table;
    addFigures(table, report);
    if (isToday(report)) {
        addMinutes(table, "hours", report[QStringLiteral("hours")].toArray(), &hourName);
    } else {
        const QJsonObject chart = report[QStringLiteral("chart")].toObject();
        for (const QJsonValue& bucket : chart[QStringLiteral("buckets")].toArray()) {
            const QString start = bucket[QStringLiteral("start")].toString();
            table.add("chart", start, bucketName(start, chart[QStringLiteral("unit")].toString()),
                      bucket[QStringLiteral("minutes")].toDouble(), "min");
        }
        addMinutes(table, "weekdays", report[QStringLiteral("weekdays")].toArray(), &weekdayName);
    }
    for (const QJsonValue& total : report[QStringLiteral("categories")].toArray()) {
        const QString category = total[QStringLiteral("category")].toString();
        table.add("categories", category, categoryName(category), total[QStringLiteral("seconds")].toDouble(),
                  "s");
    }
    for (const QJsonValue& app : report[QStringLiteral("topApplications")].toArray()) {
        table.add("applications", app[QStringLiteral("bundleId")].toString(),
                  app[QStringLiteral("name")].toString(), app[QStringLiteral("seconds")].toDouble(), "s");
    }
    const QJsonArray sessions = report[QStringLiteral("sessionList")].toArray();
    for (const QJsonValue& session : sessions) {
        table.add("sessions", session[QStringLiteral("start")].toString(),
                  session[QStringLiteral("task")].toString(), session[QStringLiteral("minutes")].toDouble(),
                  "min");
    }
    for (const QJsonValue& session : sessions) {
        if (const QJsonValue score = session[QStringLiteral("score")]; score.isDouble()) {
            table.add("scores", session[QStringLiteral("start")].toString(),
                      session[QStringLiteral("task")].toString(), score.toDouble(), "score");
        }
    }
    return table.bytes();
}

} // namespace norvin
