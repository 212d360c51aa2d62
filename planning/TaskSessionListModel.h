#pragma once

#include "model/Session.h"

#include <QAbstractListModel>
#include <QList>

namespace norvin {

class ModelContext;

/// The sessions recorded for one task, newest first. Main thread only.
class TaskSessionListModel final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY changed)
    /// Minutes of all of them together.
    Q_PROPERTY(int totalMinutes READ totalMinutes NOTIFY changed)
public:
    enum Role {
        StartRole = Qt::UserRole + 1, ///< "startTime": date and time
        MinutesRole,                  ///< "minutes"
        HasScoreRole,                 ///< "hasScore"
        ScoreRole,                    ///< "score": 0 to 10; 0 without one
    };

    explicit TaskSessionListModel(ModelContext& context, QObject* parent = nullptr);
    ~TaskSessionListModel() override;

    /// Whose sessions are shown; none for nobody's.
    void setTask(std::optional<TaskId> task);

    [[nodiscard]] int totalMinutes() const { return m_totalMinutes; }
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();

private:
    void load();

    ModelContext& m_context;
    std::optional<TaskId> m_task;
    QList<Session> m_sessions;
    int m_totalMinutes = 0;
};

} // namespace norvin
