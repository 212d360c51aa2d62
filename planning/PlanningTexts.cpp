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

QString enumerated(QStringList parts) {
    if (parts.size() < 2)
        return parts.join(QString());
    const QString last = parts.takeLast();
    return qtTrId("enumeration_and").arg(parts.join(QStringLiteral(", ")), last);
}

QVariant choice(const QString& id, const QString& name, const QString& color) {
    return QVariantMap{
        {QStringLiteral("id"), id}, {QStringLiteral("name"), name}, {QStringLiteral("color"), color}};
}

} // namespace norvin
