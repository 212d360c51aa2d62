#pragma once

#include "planning/exchange/PlanningExchange.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <vector>

namespace norvin {

/// What the command line and the session bus report of planning; docs/command-line.md lists the members.
/// @param now tells the time zone of the dates, and what is late
[[nodiscard]] QJsonObject agendaReport(const std::vector<TaskItem*>& tasks, QDate day, const QDateTime& now);
[[nodiscard]] QJsonArray projectsReport(const std::vector<Project*>& projects);
[[nodiscard]] QJsonObject countsReport(const SnapshotCounts& counts);
[[nodiscard]] SnapshotCounts countsOfReport(const QJsonObject& report);
[[nodiscard]] QJsonObject importReport(const PlanningExchange::Imported& imported);
[[nodiscard]] PlanningExchange::Imported importOfReport(const QJsonObject& report);

/// The same for people to read, in English, ending in a line break.
[[nodiscard]] QString agendaText(const QJsonObject& agenda);
[[nodiscard]] QString projectsText(const QJsonArray& projects);

/// As much of an id as people are shown.
[[nodiscard]] QString shortId(const QString& id);
/// What a title holds, as nothing but letters on one line: for a terminal.
[[nodiscard]] QString printable(const QString& text);
/// "1 task", "2 tasks".
[[nodiscard]] QString counted(int count, const char* one, const char* more);

} // namespace norvin
