#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>

#include <vector>

namespace norvin {

class ModelContext;
class PlanningScreens;
class Project;
class TaskItem;
class WindowActions;

/// Everything that a few typed letters lead to: actions, screens, projects and tasks. What is typed is looked
/// for word by word, case and accents aside; where titles begin with it they stand first. Main thread only.
class CommandPalette final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(bool isPresented READ isPresented NOTIFY presentedChanged)
    /// What is typed; empty offers the actions alone.
    Q_PROPERTY(QString filterText READ filterText WRITE setFilterText NOTIFY filterTextChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum Role {
        TitleRole = Qt::UserRole + 1, ///< "title"; also the display role
        DetailRole,                   ///< "detail": what it is, or the project that a task is of
        SymbolRole,                   ///< "symbol"; empty for a project with an emoji
        EmojiRole,                    ///< "emoji"; empty for none
        KeysRole,                     ///< "keys": keys that do the same; empty for none
        IsEnabledRole,                ///< "isEnabled"
    };
    /// Most rows shown for something typed.
    static constexpr int maximumRows = 12;

    /// All must outlive this.
    CommandPalette(WindowActions& actions, PlanningScreens& planning, ModelContext& context,
                   QObject* parent = nullptr);
    ~CommandPalette() override;

    [[nodiscard]] bool isPresented() const { return m_isPresented; }
    [[nodiscard]] const QString& filterText() const { return m_filterText; }
    void setFilterText(const QString& text);
    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE void present();
    Q_INVOKABLE void close();
    /// Closes and does what the row says. A row that cannot be done, or is not there, does nothing.
    Q_INVOKABLE void choose(int row);

Q_SIGNALS:
    void presentedChanged();
    void filterTextChanged();
    void countChanged();

private:
    enum class Kind { action, project, task };
    struct Row {
        Kind kind = Kind::action;
        QString id; // of the action, or text of the entity's
        QString title;
        QString detail;
        QString symbol;
        QString emoji = {};
        QString keys = {};
        bool isEnabled = true;
    };
    /// A task as it is searched: making this for each of many thousand takes longer than searching them.
    struct SearchedTask {
        const TaskItem* task;
        QString key;
    };

    void refresh();
    void forgetTasks();
    [[nodiscard]] const std::vector<SearchedTask>& searchedTasks();
    [[nodiscard]] static Row rowOf(const TaskItem& task);
    [[nodiscard]] static Row rowOf(const Project& project);

    WindowActions& m_actions;
    PlanningScreens& m_planning;
    ModelContext& m_context;
    bool m_isPresented = false;
    QString m_filterText;
    QList<Row> m_rows;
    std::vector<SearchedTask> m_searchedTasks;
    bool m_knowsTasks = false;
    bool m_isRefreshScheduled = false;
};

/// How well a text answers to what is typed: 0 where it begins with it, 1 where one of its words does, 2
/// where it contains it, −1 where one of the typed words is nowhere in it.
/// @param words what is typed, as searchKey() gives it, by word; @param key the text as searchKey() gives it
[[nodiscard]] int paletteRank(const QList<QString>& words, const QString& key);

} // namespace norvin
