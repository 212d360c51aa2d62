#pragma once

#include "model/TaskStatus.h"

#include <QString>

#include <array>

/// What stands in an iCalendar file for what.
namespace norvin::calendar {

inline const QString calendarComponent = QStringLiteral("VCALENDAR");
inline const QString todoComponent = QStringLiteral("VTODO");
inline const QString timeZoneComponent = QStringLiteral("VTIMEZONE");
inline const QString uidName = QStringLiteral("UID");
inline const QString summaryName = QStringLiteral("SUMMARY");
inline const QString descriptionName = QStringLiteral("DESCRIPTION");
inline const QString statusName = QStringLiteral("STATUS");
inline const QString completedName = QStringLiteral("COMPLETED");
inline const QString priorityName = QStringLiteral("PRIORITY");
inline const QString dueName = QStringLiteral("DUE");
inline const QString startName = QStringLiteral("DTSTART");
inline const QString createdName = QStringLiteral("CREATED");
inline const QString categoriesName = QStringLiteral("CATEGORIES");
inline const QString relatedName = QStringLiteral("RELATED-TO");
inline const QString recurrenceName = QStringLiteral("RECURRENCE-ID");
inline const QString ownPhaseName = QStringLiteral("X-NORVIN-PHASE");
inline const QString ownPlannedName = QStringLiteral("X-NORVIN-PLANNED");
inline const QString ownStatusName = QStringLiteral("X-NORVIN-STATUS");
inline const QString ownPriorityName = QStringLiteral("X-NORVIN-PRIORITY");

struct StatusText {
    TaskStatus status;
    QLatin1String text;
};
/// The first of a status is the one to write.
inline constexpr std::array statusTexts{StatusText{TaskStatus::todo, QLatin1String("NEEDS-ACTION")},
                                        StatusText{TaskStatus::inProgress, QLatin1String("IN-PROCESS")},
                                        StatusText{TaskStatus::done, QLatin1String("COMPLETED")},
                                        StatusText{TaskStatus::done, QLatin1String("CANCELLED")}};

} // namespace norvin::calendar
