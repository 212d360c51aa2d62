#include "app/StatsBusService.h"

#include "app/FocusBusService.h"
#include "app/StatsReporter.h"
#include "app/StatusReport.h"

namespace norvin {

namespace {

QDBusMessage refusal(const QDBusMessage& message, const char* key, const QString& argument) {
    QDBusMessage answer = message.createErrorReply(QLatin1String(focusBusRefused), QLatin1String(key));
    answer << QStringList{argument} << 0;
    return answer;
}

} // namespace

StatsBusService::StatsBusService(QDBusConnection bus, StatsReporter& reporter, QObject* object)
    : QDBusAbstractAdaptor(object)
    , m_bus(std::move(bus))
    , m_reporter(reporter) {}

StatsBusService::~StatsBusService() = default;

QString StatsBusService::Report(const QString& period, const QDBusMessage& message) {
    message.setDelayedReply(true);
    const std::optional<StatsPeriod> wanted = statsPeriodFromRawValue(period);
    if (!wanted && !period.isEmpty()) {
        m_bus.send(refusal(message, "refused_period_unknown", period));
        return {};
    }
    m_reporter.report(wanted, [bus = m_bus, message](const std::variant<QJsonObject, QString>& outcome) {
        if (const auto* problem = std::get_if<QString>(&outcome)) {
            bus.send(refusal(message, "refused_records_unreadable", *problem));
            return;
        }
        bus.send(message.createReply(compactText(std::get<QJsonObject>(outcome))));
    });
    return {};
}

} // namespace norvin
