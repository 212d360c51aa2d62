#include "app/StatusReport.h"

#include "distraction/AppBlockerService.h"
#include "distraction/TrackingHealthModel.h"
#include "focus/DeepWorkScreen.h"
#include "model/TaskItem.h"

#include <QJsonDocument>

namespace norvin {

namespace {

QJsonValue textOrNull(const QString& text) {
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QJsonObject taskReport(const TaskItem& task) {
    QJsonArray subtasks;
    for (const TaskItem* subtask : task.subtasks())
        subtasks.append(taskReport(*subtask));
    return {{QStringLiteral("id"), task.id().toString()},
            {QStringLiteral("title"), task.title()},
            {QStringLiteral("done"), task.isDone()},
            {QStringLiteral("subtasks"), subtasks}};
}

QJsonArray sortedTexts(const QSet<QString>& texts) {
    QStringList sorted(texts.cbegin(), texts.cend());
    sorted.sort();
    return QJsonArray::fromStringList(sorted);
}

QJsonObject sitesReport(const AppBlockerService::SiteLists& lists) {
    QJsonObject report;
    for (auto it = lists.cbegin(); it != lists.cend(); ++it)
        report.insert(it.key(), sortedTexts(it.value()));
    return report;
}

QString clockText(int seconds) {
    return QString::asprintf("%02d:%02d", seconds / 60, seconds % 60);
}

void appendTasks(QString& text, const QJsonArray& tasks, int depth) {
    for (const QJsonValue& value : tasks) {
        const QJsonObject task = value.toObject();
        text += QString(depth * 4, u' ') +
                (task[QStringLiteral("done")].toBool() ? QStringLiteral("[x] ") : QStringLiteral("[ ] ")) +
                task[QStringLiteral("title")].toString() + u'\n';
        appendTasks(text, task[QStringLiteral("subtasks")].toArray(), depth + 1);
    }
}

} // namespace

QJsonObject statusReport(DeepWorkScreen& screen) {
    const TaskItem* active = screen.timer().activeTask();
    const QJsonObject activity{{QStringLiteral("kind"), screen.activityKind()},
                               {QStringLiteral("appName"), textOrNull(screen.activityAppName())},
                               {QStringLiteral("domain"), textOrNull(screen.activityDomain())}};
    return {{QStringLiteral("state"), screen.state()},
            {QStringLiteral("phase"), screen.phase()},
            {QStringLiteral("timeRemaining"), screen.timeRemaining()},
            {QStringLiteral("initialDuration"), screen.initialDuration()},
            {QStringLiteral("interruptionCount"), screen.interruptionCount()},
            {QStringLiteral("blockedAttemptsCount"), screen.blockedAttemptsCount()},
            {QStringLiteral("blockedSiteAttemptsCount"), screen.blockedSiteAttemptsCount()},
            {QStringLiteral("completedTasksCount"), screen.completedTasksCount()},
            {QStringLiteral("completedSubtasksCount"), screen.completedSubtasksCount()},
            {QStringLiteral("legitimateSeconds"), screen.legitimateSeconds()},
            {QStringLiteral("distractedSeconds"), screen.distractedSeconds()},
            {QStringLiteral("score"), screen.score()},
            {QStringLiteral("inactivitySeconds"), screen.inactivitySeconds()},
            {QStringLiteral("activity"), activity},
            {QStringLiteral("activeTask"), active ? QJsonValue(taskReport(*active)) : QJsonValue()},
            {QStringLiteral("queue"), tasksReport(screen)}};
}

QJsonArray tasksReport(DeepWorkScreen& screen) {
    QJsonArray tasks;
    for (const TaskItem* task : screen.timer().taskQueue())
        tasks.append(taskReport(*task));
    return tasks;
}

QJsonObject listsReport(const AppBlockerService& blocker) {
    return {{QStringLiteral("blockedApps"), sortedTexts(blocker.blockedAppBundleIDs())},
            {QStringLiteral("whitelistedApps"), sortedTexts(blocker.whitelistedAppBundleIDs())},
            {QStringLiteral("blockedSites"), sitesReport(blocker.browserBlockedSites())},
            {QStringLiteral("whitelistedSites"), sitesReport(blocker.browserWhitelistedSites())}};
}

QJsonArray healthReport(const TrackingHealthModel& health) {
    QJsonArray report;
    for (int row = 0; row < health.rowCount(); ++row) {
        const std::optional<Unavailable>& reason = health.availability(row).reason();
        report.append(QJsonObject{
            {QStringLiteral("capability"), health.capabilityKey(row)},
            {QStringLiteral("subject"), textOrNull(health.subject(row))},
            {QStringLiteral("available"), !reason.has_value()},
            {QStringLiteral("optional"), health.isOptional(row)},
            {QStringLiteral("reason"), reason ? QJsonValue(reason->reasonKey) : QJsonValue()},
            {QStringLiteral("detail"), reason ? textOrNull(reason->detail) : QJsonValue()},
        });
    }
    return report;
}

QString compactText(const QJsonObject& report) {
    return QString::fromUtf8(QJsonDocument(report).toJson(QJsonDocument::Compact));
}

QString compactText(const QJsonArray& report) {
    return QString::fromUtf8(QJsonDocument(report).toJson(QJsonDocument::Compact));
}

QString statusText(const QJsonObject& status) {
    const QString state = status[QStringLiteral("state")].toString();
    const bool isUnderWay = state == QLatin1String("running") || state == QLatin1String("paused");
    QString phase = status[QStringLiteral("phase")].toString();
    phase.replace(QLatin1String("break_time"), QLatin1String("break"));

    QString text = state == QLatin1String("idle") ? state : phase + u' ' + state;
    if (isUnderWay) {
        text += QStringLiteral(", %1 of %2 left")
                    .arg(clockText(status[QStringLiteral("timeRemaining")].toInt()),
                         clockText(status[QStringLiteral("initialDuration")].toInt()));
    }
    text += u'\n';
    if (const QJsonValue task = status[QStringLiteral("activeTask")]; task.isObject())
        text += QStringLiteral("task: %1\n").arg(task[QStringLiteral("title")].toString());
    const QJsonObject activity = status[QStringLiteral("activity")].toObject();
    const QString kind = activity[QStringLiteral("kind")].toString();
    if (kind != QLatin1String("idle")) {
        const QString domain = activity[QStringLiteral("domain")].toString();
        text += QStringLiteral("in front: %1%2, %3\n")
                    .arg(activity[QStringLiteral("appName")].toString(),
                         domain.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(domain), kind);
    }
    if (state != QLatin1String("idle") && phase == QLatin1String("work")) {
        text += QStringLiteral("legitimate %1, distracted %2, score %3\n")
                    .arg(clockText(status[QStringLiteral("legitimateSeconds")].toInt()),
                         clockText(status[QStringLiteral("distractedSeconds")].toInt()),
                         QString::number(status[QStringLiteral("score")].toDouble(), 'f', 1));
        text += QStringLiteral("interruptions %1, blocked applications %2, blocked sites %3\n")
                    .arg(status[QStringLiteral("interruptionCount")].toInt())
                    .arg(status[QStringLiteral("blockedAttemptsCount")].toInt())
                    .arg(status[QStringLiteral("blockedSiteAttemptsCount")].toInt());
    }
    return text;
}

QString tasksText(const QJsonArray& tasks) {
    if (tasks.isEmpty())
        return QStringLiteral("No task is queued.\n");
    QString text;
    appendTasks(text, tasks, 0);
    return text;
}

QString listsText(const QJsonObject& lists) {
    QString text;
    const auto append = [&text](const QString& title, const QJsonArray& entries) {
        text += title + QStringLiteral(":\n");
        if (entries.isEmpty())
            text += QStringLiteral("    none\n");
        for (const QJsonValue& entry : entries)
            text += QStringLiteral("    ") + entry.toString() + u'\n';
    };
    const auto appendSites = [&append](const QString& title, const QJsonObject& sites) {
        for (auto it = sites.constBegin(); it != sites.constEnd(); ++it)
            append(QStringLiteral("%1 in %2").arg(title, it.key()), it.value().toArray());
    };
    append(QStringLiteral("blocked applications"), lists[QStringLiteral("blockedApps")].toArray());
    append(QStringLiteral("allowed applications"), lists[QStringLiteral("whitelistedApps")].toArray());
    appendSites(QStringLiteral("blocked sites"), lists[QStringLiteral("blockedSites")].toObject());
    appendSites(QStringLiteral("allowed sites"), lists[QStringLiteral("whitelistedSites")].toObject());
    return text;
}

QString healthText(const QJsonArray& health, QString (*translated)(const QString& key)) {
    QString text;
    for (const QJsonValue& value : health) {
        const QJsonObject check = value.toObject();
        const QString subject = check[QStringLiteral("subject")].toString();
        const auto sentence = [&subject, translated](const QString& key) {
            return translated(key).replace(QLatin1String("%1"), subject);
        };
        const bool available = check[QStringLiteral("available")].toBool();
        const bool isOptional = check[QStringLiteral("optional")].toBool();
        text += (available    ? QStringLiteral("ok       ")
                 : isOptional ? QStringLiteral("absent   ")
                              : QStringLiteral("missing  ")) +
                sentence(check[QStringLiteral("capability")].toString()) + u'\n';
        if (available)
            continue;
        const QString reason = check[QStringLiteral("reason")].toString();
        for (const QString& key : {reason, reason + QStringLiteral("_remedy")})
            text += QStringLiteral("         ") + sentence(key) + u'\n';
        if (const QString detail = check[QStringLiteral("detail")].toString(); !detail.isEmpty())
            text += QStringLiteral("         (%1)\n").arg(detail);
    }
    return text;
}

} // namespace norvin
