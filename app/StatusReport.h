#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace norvin {

class AppBlockerService;
class DeepWorkScreen;
class TrackingHealthModel;

/// What the command line and the session bus report, as JSON; docs/command-line.md lists the members.
[[nodiscard]] QJsonObject statusReport(DeepWorkScreen& screen);
[[nodiscard]] QJsonArray tasksReport(DeepWorkScreen& screen);
[[nodiscard]] QJsonObject listsReport(const AppBlockerService& blocker);
[[nodiscard]] QJsonArray healthReport(const TrackingHealthModel& health);

/// A report as it goes over the bus and into scripts: one line of JSON.
[[nodiscard]] QString compactText(const QJsonObject& report);
[[nodiscard]] QString compactText(const QJsonArray& report);

/// The same for people to read, in English, ending in a line break.
[[nodiscard]] QString statusText(const QJsonObject& status);
[[nodiscard]] QString tasksText(const QJsonArray& tasks);
[[nodiscard]] QString listsText(const QJsonObject& lists);
/// @param translated gives the text of a localisation key
[[nodiscard]] QString healthText(const QJsonArray& health, QString (*translated)(const QString& key));

} // namespace norvin
