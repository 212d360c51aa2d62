#pragma once

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>

namespace norvin {

enum class BackupKind {
    daily,         ///< made by the program, once a day
    manual,        ///< made because the user wanted one
    beforeRestore, ///< what there was before another backup took its place
};

/// A backup as its name tells of it.
struct BackupFile {
    QString path;
    BackupKind kind = BackupKind::daily;
    QDateTime made; ///< local time
    qint64 bytes = 0;
};

/// Where the backups of a store lie: "norvin-focus/backups" beside it. They are named by when they were made
/// and why ("2025-03-10-091500-daily.sqlite"); files with other names are nobody's business. A value, for any
/// thread.
class BackupFolder final {
public:
    /// How many days a backup that the program made by itself is kept.
    static constexpr int daysKept = 14;
    /// As many are kept whatever their age.
    static constexpr int leastKept = 3;

    explicit BackupFolder(const QString& storeFile);

    [[nodiscard]] const QString& path() const { return m_path; }
    [[nodiscard]] QString fileFor(BackupKind kind, const QDateTime& made) const;
    /// The newest first.
    [[nodiscard]] QList<BackupFile> files() const;
    [[nodiscard]] bool hasDaily(const QDate& day) const;
    /// Removes what the program made by itself and is older than daysKept, and what unfinished copies left.
    /// The newest leastKept that can be opened and hold anything stay.
    void prune(const QDate& today) const;
    /// Removes all backups.
    void clear() const;

private:
    void removeUnfinished() const;

    QString m_path;
};

} // namespace norvin
