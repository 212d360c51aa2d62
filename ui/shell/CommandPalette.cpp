#include "ui/shell/CommandPalette.h"

#include "model/ModelContext.h"
#include "planning/PlanningScreens.h"
#include "platform/TextSearch.h"
#include "ui/shell/WindowActions.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace norvin {

namespace {

constexpr int noMatch = -1;

bool beginsWord(const QString& key, qsizetype position) {
    return position == 0 || !key.at(position - 1).isLetterOrNumber();
}

int rankOfWord(const QString& word, const QString& key) {
    int best = noMatch;
    for (qsizetype at = key.indexOf(word); at >= 0; at = key.indexOf(word, at + 1)) {
        if (at == 0)
            return 0;
        if (beginsWord(key, at))
            return 1;
        best = 2;
    }
    return best;
}

} // namespace

int paletteRank(const QList<QString>& words, const QString& key) {
    int rank = 0;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const int ofWord = rankOfWord(words.at(i), key);
        if (ofWord == noMatch)
            return noMatch;
        // Only the first word can be what a title begins with.
        rank = std::max(rank, i == 0 ? ofWord : std::min(ofWord, 1));
    }
    return rank;
}

CommandPalette::CommandPalette(WindowActions& actions, PlanningScreens& planning, ModelContext& context,
                               QObject* parent)
    : QAbstractListModel(parent)
    , m_actions(actions)
    , m_planning(planning)
    , m_context(context) {
    connect(&m_context, &ModelContext::taskInserted, this, &CommandPalette::forgetTasks);
    connect(&m_context, &ModelContext::taskChanged, this, &CommandPalette::forgetTasks);
    connect(&m_context, &ModelContext::taskAboutToBeRemoved, this, &CommandPalette::forgetTasks);
}

CommandPalette::~CommandPalette() = default;

int CommandPalette::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant CommandPalette::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return row.title;
    case DetailRole:
        return row.detail;
    case SymbolRole:
        return row.symbol;
    case EmojiRole:
        return row.emoji;
    case KeysRole:
        return row.keys;
    case IsEnabledRole:
        return row.isEnabled;
    default:
        return {};
    }
}

QHash<int, QByteArray> CommandPalette::roleNames() const {
    return {{TitleRole, "title"}, {DetailRole, "detail"}, {SymbolRole, "symbol"},
            {EmojiRole, "emoji"}, {KeysRole, "keys"},     {IsEnabledRole, "isEnabled"}};
}

void CommandPalette::present() {
    if (m_isPresented)
        return;
    m_isPresented = true;
    refresh();
    Q_EMIT presentedChanged();
}

void CommandPalette::close() {
    if (!m_isPresented)
        return;
    m_isPresented = false;
    m_filterText.clear();
    forgetTasks();
    Q_EMIT filterTextChanged();
    Q_EMIT presentedChanged();
}

void CommandPalette::setFilterText(const QString& text) {
    if (text == m_filterText)
        return;
    m_filterText = text;
    refresh();
    Q_EMIT filterTextChanged();
}

void CommandPalette::choose(int row) {
    if (row < 0 || row >= count() || !m_rows.at(row).isEnabled)
        return;
    const Row chosen = m_rows.at(row);
    close();
    switch (chosen.kind) {
    case Kind::action:
        m_actions.run(chosen.id);
        break;
    case Kind::project:
        m_planning.projects()->openProject(chosen.id);
        m_actions.run(QStringLiteral("show_projects"));
        break;
    case Kind::task:
        m_planning.showTask(chosen.id);
        break;
    }
}

// A task may be on its way out: nothing of what was known may be looked at again.
void CommandPalette::forgetTasks() {
    m_searchedTasks.clear();
    m_knowsTasks = false;
    if (!m_isPresented || std::exchange(m_isRefreshScheduled, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isRefreshScheduled = false;
            if (m_isPresented)
                refresh();
        },
        Qt::QueuedConnection);
}

const std::vector<CommandPalette::SearchedTask>& CommandPalette::searchedTasks() {
    if (!m_knowsTasks) {
        for (const TaskItem* task : m_context.tasks())
            m_searchedTasks.push_back({task, searchKey(task->title())});
        m_knowsTasks = true;
    }
    return m_searchedTasks;
}

CommandPalette::Row CommandPalette::rowOf(const TaskItem& task) {
    return {.kind = Kind::task,
            .id = task.id().toString(),
            .title = task.title(),
            .detail = task.project() ? task.project()->name() : qtTrId("palette_kind_task"),
            .symbol = task.isDone() ? QStringLiteral("checkmark.circle.fill") : QStringLiteral("circle")};
}

CommandPalette::Row CommandPalette::rowOf(const Project& project) {
    const QString& emoji = project.emoji();
    return {.kind = Kind::project,
            .id = project.id().toString(),
            .title = project.name(),
            .detail = qtTrId("palette_kind_project"),
            .symbol = emoji.isEmpty() ? QStringLiteral("folder") : QString(),
            .emoji = emoji};
}

void CommandPalette::refresh() {
    const QList<QString> words = searchKey(m_filterText).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    struct Found {
        int rank;
        Row row;
    };
    std::vector<Found> found;
    for (const WindowActions::Action& action : m_actions.actions()) {
        if (!WindowActions::isOffered(action))
            continue;
        const QString title = qtTrId(action.titleKey.toUtf8().constData());
        const int rank = paletteRank(words, searchKey(title));
        if (rank == noMatch)
            continue;
        found.push_back({rank,
                         {.kind = Kind::action,
                          .id = action.id,
                          .title = title,
                          .detail = {},
                          .symbol = action.symbol,
                          .keys = action.keys,
                          .isEnabled = WindowActions::isEnabled(action)}});
    }
    if (!words.isEmpty()) {
        for (const Project* project : m_context.projects()) {
            if (const int rank = paletteRank(words, searchKey(project->name())); rank != noMatch)
                found.push_back({rank, rowOf(*project)});
        }
        // What is done may be looked for, but what is open comes first. Rows are made only for the few that
        // can be shown.
        constexpr int ranks = 3;
        std::vector<const TaskItem*> tasks[2 * ranks];
        for (const SearchedTask& searched : searchedTasks()) {
            const int rank = paletteRank(words, searched.key);
            if (rank == noMatch)
                continue;
            auto& ofRank = tasks[rank + (searched.task->isDone() ? ranks : 0)];
            if (std::ssize(ofRank) < maximumRows)
                ofRank.push_back(searched.task);
        }
        for (int rank = 0; rank < 2 * ranks; ++rank) {
            for (const TaskItem* task : tasks[rank])
                found.push_back({rank, rowOf(*task)});
        }
        std::stable_sort(found.begin(), found.end(),
                         [](const Found& a, const Found& b) { return a.rank < b.rank; });
        if (std::ssize(found) > maximumRows)
            found.resize(maximumRows);
    }
    beginResetModel();
    m_rows.clear();
    for (Found& each : found)
        m_rows.append(std::move(each.row));
    endResetModel();
    Q_EMIT countChanged();
}

} // namespace norvin
