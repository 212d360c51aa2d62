#pragma once

#include "model/BackupFolder.h"
#include "model/StoreFile.h"

#include <QAbstractListModel>
#include <QLocale>

#include <variant>
#include <vector>

namespace norvin {

/// The backups that there are, the newest first, as texts. Main thread only.
class BackupListModel final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum Role {
        FileRole = Qt::UserRole + 1, ///< its path, by which it is known
        WhenRole,                    ///< day and time
        KindRole,                    ///< why it was made
        ContentsRole,                ///< what is in it, or why that cannot be said
        SizeRole,
        UsableRole, ///< whether it can be restored
    };
    /// A backup with what was found in it.
    struct Row {
        BackupFile file;
        std::variant<StoreFacts, StoreError> facts;
    };

    explicit BackupListModel(QObject* parent);
    ~BackupListModel() override;

    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] const std::vector<Row>& rows() const { return m_rows; }
    void setRows(std::vector<Row> rows);
    void retranslate(const QLocale& locale);
    /// Day and time of a backup in the user's language.
    [[nodiscard]] QString whenText(const BackupFile& file) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    std::vector<Row> m_rows;
    QLocale m_locale;
};

/// What a store holds, as a phrase ("3 projects, 120 tasks, 412 sessions").
[[nodiscard]] QString contentsText(const StoreFacts& facts);

} // namespace norvin
