#pragma once

#include "model/TaskItem.h"

#include <QAbstractListModel>
#include <QString>
#include <QTimer>

#include <optional>
#include <vector>

namespace norvin {

class ModelContext;

/// What a session can have been spent on: no task, which comes first, and all tasks, the open ones before the
/// finished, the newest first. Searching sees titles and project names, without case and accents. Empty
/// unless open. Main thread only.
class SessionTaskList final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)
public:
    enum Role {
        TitleRole = Qt::UserRole + 1, ///< "title"
        ProjectNameRole,              ///< "projectName": empty without a project
        ProjectColorRole,             ///< "projectColor": colour text, empty without a project
        IsDoneRole,                   ///< "isDone"
        IsChosenRole,                 ///< "isChosen": the session has this one now
    };

    /// @param context must outlive this
    SessionTaskList(ModelContext& context, QObject* parent);

    /// Fills the list. @param chosen what the session has now
    void open(std::optional<TaskId> chosen);
    void close();
    [[nodiscard]] const QString& searchText() const { return m_searchText; }
    void setSearchText(const QString& text);
    /// The task of a row; none for the row of no task. @param row one that there is
    [[nodiscard]] std::optional<TaskId> taskAt(int row) const;
    /// The texts are in another language.
    void retranslate();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void searchTextChanged();
    void countChanged();

private:
    struct Candidate {
        /// None for no task.
        std::optional<TaskId> id;
        /// What a search sees; null until it is first asked for.
        QString key;
    };
    void scheduleLoad();
    void load();
    void find();
    void warmUp();
    [[nodiscard]] const QString& keyOf(Candidate& candidate) const;

    ModelContext& m_context;
    std::optional<TaskId> m_chosen;
    QString m_searchText;
    std::vector<Candidate> m_all;
    /// Places in m_all.
    std::vector<size_t> m_found;
    /// Makes the keys in the background, a few at a time.
    QTimer m_warmUp;
    size_t m_warm = 0;
    bool m_isOpen = false;
    bool m_isLoadScheduled = false;
};

} // namespace norvin
