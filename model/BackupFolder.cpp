#include "model/BackupFolder.h"

#include "model/StoreFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace norvin {

namespace {

const QString stampFormat = QStringLiteral("yyyy-MM-dd-hhmmss");

constexpr std::array kindNames{std::pair{BackupKind::daily, "daily"}, std::pair{BackupKind::manual, "manual"},
                               std::pair{BackupKind::beforeRestore, "before-restore"}};

std::optional<BackupFile> backupOf(const QFileInfo& file) {
    static const QRegularExpression pattern(
        QStringLiteral(R"(^(\d{4}-\d{2}-\d{2}-\d{6})-([a-z-]+)\.sqlite$)"));
    const auto match = pattern.match(file.fileName());
    const QDateTime made = QDateTime::fromString(match.captured(1), stampFormat);
    if (!made.isValid())
        return {};
    for (const auto& [kind, name] : kindNames) {
        if (match.captured(2) == QLatin1String(name))
            return BackupFile{.path = file.filePath(), .kind = kind, .made = made, .bytes = file.size()};
    }
    return {};
}

bool isWorthKeeping(const BackupFile& backup) {
    const auto facts = readStoreFacts(backup.path, CountIntervals::no);
    const auto* held = std::get_if<StoreFacts>(&facts);
    return held != nullptr && !held->isEmpty();
}

} // namespace

BackupFolder::BackupFolder(const QString& storeFile)
    : m_path(QFileInfo(storeFile).dir().filePath(QStringLiteral("norvin-focus/backups"))) {}

QString BackupFolder::fileFor(BackupKind kind, const QDateTime& made) const {
    const auto* const name = std::find_if(kindNames.begin(), kindNames.end(),
                                          [kind](const auto& known) { return known.first == kind; });
    return QStringLiteral("%1/%2-%3.sqlite")
        .arg(m_path, made.toString(stampFormat), QLatin1String(name->second));
}

QList<BackupFile> BackupFolder::files() const {
    QList<BackupFile> found;
    const QFileInfoList entries = QDir(m_path).entryInfoList(QDir::Files | QDir::NoSymLinks);
    for (const QFileInfo& entry : entries) {
        if (const auto backup = backupOf(entry))
            found.append(*backup);
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const BackupFile& a, const BackupFile& b) { return a.made > b.made; });
    return found;
}

bool BackupFolder::hasDaily(const QDate& day) const {
    const QList<BackupFile> all = files();
    return std::any_of(all.cbegin(), all.cend(), [&day](const BackupFile& backup) {
        return backup.kind == BackupKind::daily && backup.made.date() == day;
    });
}

void BackupFolder::prune(const QDate& today) const {
    removeUnfinished();
    const auto isExpired = [&today](const BackupFile& backup) {
        return backup.kind != BackupKind::manual && backup.made.date().daysTo(today) >= daysKept;
    };
    const QList<BackupFile> all = files();
    if (std::none_of(all.cbegin(), all.cend(), isExpired))
        return;
    int good = 0;
    for (const BackupFile& backup : all) {
        const bool isNeeded = good < leastKept && isWorthKeeping(backup);
        good += isNeeded ? 1 : 0;
        if (isExpired(backup) && !isNeeded)
            QFile::remove(backup.path);
    }
}

void BackupFolder::clear() const {
    removeUnfinished();
    for (const BackupFile& backup : files())
        QFile::remove(backup.path);
}

void BackupFolder::removeUnfinished() const {
    const QDir folder(m_path);
    const QStringList names =
        folder.entryList({QStringLiteral(".*.sqlite.part*")}, QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
        if (backupOf(QFileInfo(name.mid(1).section(QStringLiteral(".part"), 0, 0))))
            QFile::remove(folder.filePath(name));
    }
}

} // namespace norvin
