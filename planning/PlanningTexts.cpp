#include "planning/PlanningTexts.h"

#include <QtGlobal>

namespace norvin {

QString textOfDay(const std::optional<QString>& formatted) {
    if (formatted == QLatin1String("today"))
        return qtTrId("today");
    if (formatted == QLatin1String("tomorrow"))
        return qtTrId("tomorrow");
    return formatted.value_or(QString());
}

} // namespace norvin
