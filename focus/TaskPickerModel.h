#pragma once

#include "model/TaskItem.h"

#include <QAbstractListModel>
#include <QList>
#include <QString>

namespace norvin {

class ModelContext;
class PomodoroTimerService;

/// Tasks that could be put on the queue: not done, no subtasks, not queued, their title containing what was
/// typed (case and accents aside), the first few only. Main thread only.
class TaskPickerModel final : public QAbstractListModel {
    Q_OBJECT
    /// What the user typed; empty offers the tasks planned for or due by today first.
    Q_PROPERTY(QString filterText READ filterText WRITE setFilterText NOTIFY filterTextChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum Role { TaskIdRole = Qt::UserRole + 1, TitleRole, ProjectNameRole };
    static constexpr int maximumRows = 6;

    TaskPickerModel(ModelContext& context, PomodoroTimerService& timer, QObject* parent = nullptr);
    ~TaskPickerModel() override;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] const QString& filterText() const { return m_filterText; }
    void setFilterText(const QString& text);
    [[nodiscard]] int count() const { return static_cast<int>(m_tasks.size()); }

Q_SIGNALS:
    void filterTextChanged();
    void countChanged();

private:
    void refresh();
    void scheduleRefresh();

    ModelContext& m_context;
    PomodoroTimerService& m_timer;
    QString m_filterText;
    QList<TaskItem*> m_tasks;
    bool m_refreshScheduled = false;
};

} // namespace norvin
