#pragma once

#include "stats/FigureRecords.h"

#include <QAbstractListModel>
#include <QLocale>

#include <vector>

namespace norvin {

class ModelContext;

/// The records behind a figure, as rows of a list. Main thread only.
class ExplanationRows final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)
public:
    enum Role {
        KindRole = Qt::UserRole + 1, ///< "kind": "live", "session", "day" or "application"
        TitleRole,                   ///< "title": that of the task, the date, or the name
        DetailRole,                  ///< "detail": when it was, or the category
        ValueRole,                   ///< "value": what it adds, as text
        ScoreRole,                   ///< "score": as text; empty without one
        BundleIDRole,                ///< "bundleID": empty but for applications
        CanOpenRole,                 ///< "canOpen": whether there is more behind it
    };

    /// @param context must outlive this
    ExplanationRows(const ModelContext& context, QObject* parent);

    /// Begins with other records. @param days says in which zone times are written
    void setRecords(std::vector<FigureRecord> records, const StatsDays& days);
    /// The same as they are now: only what came, went or changed is told.
    void updateRecords(std::vector<FigureRecord> records, const StatsDays& days);
    [[nodiscard]] const std::vector<FigureRecord>& records() const { return m_records; }
    /// The work phase that runs has gone on; does nothing where it is not the first row.
    void setLive(const LiveWork& live);
    /// How dates and times are written; the texts may be in another language.
    void setLocale(const QLocale& locale);
    /// The titles may have changed.
    void refreshTitles();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    void tellAllChanged(const QList<int>& roles = {});

    const ModelContext& m_context;
    QLocale m_locale;
    StatsDays m_days;
    std::vector<FigureRecord> m_records;
};

} // namespace norvin
