#include "platform/Clock.h"

#include <QTimeZone>

namespace norvin {

QDateTime startOfDay(const QDateTime& instant) {
    if (instant.timeSpec() == Qt::TimeZone)
        return instant.date().startOfDay(instant.timeZone());
    return instant.date().startOfDay(instant.timeSpec(), instant.offsetFromUtc());
}

} // namespace norvin
