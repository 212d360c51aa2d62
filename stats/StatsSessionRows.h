#pragma once

#include "stats/StatsTables.h"

#include <QAbstractListModel>
#include <QLocale>

#include <vector>

namespace norvin {

class ModelContext;

/// Sessions as rows of a list, in the order in which they are handed over. The title of a task is looked up
/// when it is shown. Main thread only.
class StatsSessionRows final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY changed)
public:
    enum Role {
        SessionIdRole = Qt::UserRole + 1, ///< "sessionId": text
        TimeRole,                         ///< "time": the time of day it started at
        DateRole,                         ///< "date": the day it started on, short
        MinutesRole,                      ///< "minutes"
        DurationRole,                     ///< "duration": the minutes as text
        HasScoreRole,                     ///< "hasScore"
        ScoreRole,                        ///< "score": 0 to 10; 0 without one
        ScoreTextRole,                    ///< "scoreText": empty without one
        TitleRole,                        ///< "title": that of its task, or that it has none
        HasTaskRole,                      ///< "hasTask"
    };

    /// @param context must outlive this
    StatsSessionRows(const ModelContext& context, QObject* parent);

    /// @param days says in which zone times are written
    void setRows(std::vector<SessionRow> rows, const StatsDays& days);
    [[nodiscard]] const std::vector<SessionRow>& rows() const { return m_rows; }
    /// Null when there is none with this id.
    [[nodiscard]] const SessionRow* row(const SessionId& id) const;
    /// How dates and times are written.
    void setLocale(const QLocale& locale);
    /// The titles may have changed.
    void refreshTitles();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();

private:
    const ModelContext& m_context;
    QLocale m_locale;
    StatsDays m_days;
    std::vector<SessionRow> m_rows;
};

} // namespace norvin
