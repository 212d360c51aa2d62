#pragma once

#include "stats/StatsAggregates.h"

#include <QAbstractListModel>
#include <QList>

namespace norvin {

/// Applications with what they were used, as rows of a list: the largest first. Main thread only.
class AppTotalRows final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY changed)
public:
    enum Role {
        RankRole = Qt::UserRole + 1, ///< "rank": from 1
        BundleIDRole,                ///< "bundleID"
        NameRole,                    ///< "name"
        CategoryRole,                ///< "category": its name in the language of the window
        SecondsRole,                 ///< "seconds"
        DurationRole,                ///< "duration": the seconds as text
        ShareRole,                   ///< "share": 0 to 1, of all that was used
    };

    explicit AppTotalRows(QObject* parent);

    /// @param totalSeconds what the shares are shares of
    void setRows(QList<AppTotal> rows, qint64 totalSeconds);
    [[nodiscard]] const QList<AppTotal>& rows() const { return m_rows; }
    /// The texts are in another language.
    void retranslate();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();

private:
    QList<AppTotal> m_rows;
    qint64 m_totalSeconds = 0;
};

} // namespace norvin
