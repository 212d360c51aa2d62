#include "app/PlanningBusService.h"

#include "app/FocusBusService.h"
#include "app/PlanningReport.h"
#include "app/StatusReport.h"

namespace norvin {

PlanningBusService::PlanningBusService(QDBusConnection bus, PlanningCommands& commands, QObject* object)
    : QDBusAbstractAdaptor(object)
    , m_bus(std::move(bus))
    , m_commands(commands) {}

PlanningBusService::~PlanningBusService() = default;

void PlanningBusService::AddTask(const QString& title, const QString& project, const QString& date,
                                 const QString& priority, const QDBusMessage& message) {
    const auto error =
        m_commands.add({.title = title, .project = project, .date = date, .priority = priority});
    if (error)
        refuse(*error, message);
}

QString PlanningBusService::FinishTask(const QString& id, const QDBusMessage& message) {
    return answer(m_commands.finish(id), message, [](const QString& title) { return title; });
}

QString PlanningBusService::Agenda(const QString& date, const QDBusMessage& message) {
    return answer(m_commands.agenda(date), message,
                  [](const QJsonObject& agenda) { return compactText(agenda); });
}

QString PlanningBusService::Projects() {
    return compactText(m_commands.projects());
}

QString PlanningBusService::Export(const QString& path, bool overwrite, const QDBusMessage& message) {
    using Overwrite = PlanningExchange::Overwrite;
    return answer(m_commands.exportTo(path, overwrite ? Overwrite::yes : Overwrite::no), message,
                  [](const SnapshotCounts& counts) { return compactText(countsReport(counts)); });
}

QString PlanningBusService::Import(const QString& path, const QDBusMessage& message) {
    return answer(m_commands.importFrom(path), message, [](const PlanningExchange::Imported& imported) {
        return compactText(importReport(imported));
    });
}

template <class T, class Reply>
QString PlanningBusService::answer(const std::variant<T, PlanningError>& outcome, const QDBusMessage& message,
                                   const Reply& reply) {
    if (const auto* error = std::get_if<PlanningError>(&outcome)) {
        refuse(*error, message);
        return {};
    }
    return reply(std::get<T>(outcome));
}

void PlanningBusService::refuse(const PlanningError& error, const QDBusMessage& message) {
    message.setDelayedReply(true);
    QDBusMessage refusal = message.createErrorReply(QLatin1String(focusBusRefused), error.key);
    refusal << error.arguments << error.line;
    m_bus.send(refusal);
}

} // namespace norvin
