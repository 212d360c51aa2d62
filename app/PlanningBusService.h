#pragma once

#include "app/PlanningCommands.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>

namespace norvin {

inline constexpr auto planningBusInterface = "com.norvin.Focus.Planning";

/// The interface for projects and tasks of the object on the session bus. A refused call answers with the
/// error of refusals (focusBusRefused): the localisation key of the reason, what belongs into its places, and
/// the line of the file or 0. Main thread only.
class PlanningBusService final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.norvin.Focus.Planning")
public:
    /// @param object on the bus, which owns this; to be made before that is published
    PlanningBusService(QDBusConnection bus, PlanningCommands& commands, QObject* object);
    ~PlanningBusService() override;

public Q_SLOTS:
    /// Empty texts for what is not said; see PlanningCommands::NewTask.
    void AddTask(const QString& title, const QString& project, const QString& date, const QString& priority,
                 const QDBusMessage& message);
    /// @return title of the task
    QString FinishTask(const QString& id, const QDBusMessage& message);
    /// JSON texts; see PlanningReport. @param date empty for today
    QString Agenda(const QString& date, const QDBusMessage& message);
    QString Projects();
    /// Absolute paths; the extension says the format. @return JSON texts: what was written, or taken in
    QString Export(const QString& path, bool overwrite, const QDBusMessage& message);
    QString Import(const QString& path, const QDBusMessage& message);

private:
    void refuse(const PlanningError& error, const QDBusMessage& message);
    template <class T, class Reply>
    QString answer(const std::variant<T, PlanningError>& outcome, const QDBusMessage& message,
                   const Reply& reply);

    QDBusConnection m_bus;
    PlanningCommands& m_commands;
};

} // namespace norvin
