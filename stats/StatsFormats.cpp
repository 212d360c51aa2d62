#include "stats/StatsFormats.h"

#include <QtGlobal>

namespace norvin {

QString formatTime(int minutes) {
    if (minutes < 60)
        return qtTrId("time_minutes_short").arg(minutes);
    if (minutes % 60 == 0)
        return qtTrId("time_hours_short").arg(minutes / 60);
    return qtTrId("time_hours_minutes_short").arg(minutes / 60).arg(minutes % 60);
}

QString formatSeconds(qint64 seconds) {
    if (seconds < 60)
        return qtTrId("time_seconds_short").arg(seconds);
    if (seconds < 3600)
        return qtTrId("time_minutes_short").arg(seconds / 60);
    const qint64 minutes = seconds / 60 % 60;
    if (minutes == 0)
        return qtTrId("time_hours_short").arg(seconds / 3600);
    return qtTrId("time_hours_minutes_short").arg(seconds / 3600).arg(minutes);
}

QString formatScore(double score) {
    return QString::number(score, 'f', 1);
}

QString categoryName(const QString& category) {
    const QString text = category.isEmpty() ? QString() : qtTrId(category.toUtf8().constData());
    return text.isEmpty() ? category : text;
}

} // namespace norvin
