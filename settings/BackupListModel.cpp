#include "settings/BackupListModel.h"

#include <QStringList>

#include <algorithm>
#include <limits>
#include <utility>

namespace norvin {

namespace {

int countForText(qint64 count) {
    return static_cast<int>(std::min<qint64>(count, std::numeric_limits<int>::max()));
}

QString kindText(BackupKind kind) {
    switch (kind) {
    case BackupKind::daily:
        return qtTrId("backup_kind_daily");
    case BackupKind::manual:
        return qtTrId("backup_kind_manual");
    case BackupKind::beforeRestore:
        return qtTrId("backup_kind_before_restore");
    }
    return {};
}

} // namespace

QString contentsText(const StoreFacts& facts) {
    if (facts.isEmpty())
        return qtTrId("backup_contents_empty");
    return QStringList{qtTrId("count_projects", countForText(facts.projects)),
                       qtTrId("count_tasks", countForText(facts.tasks)),
                       qtTrId("count_sessions", countForText(facts.sessions))}
        .join(QStringLiteral(", "));
}

BackupListModel::BackupListModel(QObject* parent)
    : QAbstractListModel(parent) {}

BackupListModel::~BackupListModel() = default;

void BackupListModel::setRows(std::vector<Row> rows) {
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
    Q_EMIT countChanged();
}

void BackupListModel::retranslate(const QLocale& locale) {
    m_locale = locale;
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0), index(count() - 1));
}

QString BackupListModel::whenText(const BackupFile& file) const {
    return qtTrId("backup_when")
        .arg(m_locale.toString(file.made.date(), qtTrId("backup_date_pattern")),
             m_locale.toString(file.made.time(), QLocale::ShortFormat));
}

int BackupListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant BackupListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= count())
        return {};
    const Row& row = m_rows[static_cast<size_t>(index.row())];
    const auto* const facts = std::get_if<StoreFacts>(&row.facts);
    switch (role) {
    case FileRole:
        return row.file.path;
    case WhenRole:
        return whenText(row.file);
    case KindRole:
        return kindText(row.file.kind);
    case ContentsRole:
        return facts != nullptr ? contentsText(*facts) : qtTrId("backup_unreadable");
    case SizeRole:
        return m_locale.formattedDataSize(row.file.bytes, 1, QLocale::DataSizeTraditionalFormat);
    case UsableRole:
        return facts != nullptr;
    default:
        return {};
    }
}

QHash<int, QByteArray> BackupListModel::roleNames() const {
    return {{FileRole, "file"},         {WhenRole, "when"}, {KindRole, "kind"},
            {ContentsRole, "contents"}, {SizeRole, "size"}, {UsableRole, "isUsable"}};
}

} // namespace norvin
