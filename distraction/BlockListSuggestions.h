#pragma once

#include "distraction/BlockLists.h"
#include "platform/ApplicationCatalog.h"

#include <QAbstractListModel>
#include <QList>
#include <QString>

#include <vector>

namespace norvin {

/// Something that could be put on a list.
struct BlockListSuggestion {
    enum class Kind { browser, application, site };

    Kind kind = Kind::application;
    bool isBlocked = false; ///< for the blocked list; otherwise for the whitelist
    /// Key of what it is ("category_social").
    QString category;
    /// Bundle identifier, or of a site its pattern.
    QString entry;
    QString name;
    /// Icon theme name or absolute path; empty for sites and where there is none.
    QString iconName;

    bool operator==(const BlockListSuggestion&) const = default;
};

/// What may be worth listing: applications for work as legitimate, those for pastime as blocked, the known
/// browsers as legitimate (their pages count one by one then), and, where there is a browser, some widely
/// known sites as blocked. Grouped by kind, list and category.
[[nodiscard]] QList<BlockListSuggestion> suggestedEntries(const std::vector<InstalledApplication>& installed);

/// The suggestions with a heading over each group, and which of them are chosen. Nothing is chosen at first.
/// Main thread only.
class BlockListSuggestions final : public QAbstractListModel {
    Q_OBJECT
    /// Suggestions, the headings not counted.
    Q_PROPERTY(int suggestionCount READ suggestionCount NOTIFY suggestionsChanged)
    Q_PROPERTY(int chosenCount READ chosenCount NOTIFY chosenChanged)
public:
    enum Role {
        IsHeadingRole = Qt::UserRole + 1, ///< boolean
        NameRole,                         ///< text, in the user's language for a heading
        IconNameRole,                     ///< icon theme name or absolute path, may be empty
        IsSiteRole,                       ///< boolean
        IsBlockedRole,                    ///< boolean: for the blocked list, otherwise for the whitelist
        IsChosenRole,                     ///< boolean; of a heading: whether all below it are chosen
    };

    explicit BlockListSuggestions(const ApplicationCatalog& catalog, QObject* parent = nullptr);
    ~BlockListSuggestions() override;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] int suggestionCount() const;
    [[nodiscard]] int chosenCount() const;
    /// The chosen entries; a site in every browser of this machine.
    [[nodiscard]] BlockLists chosenLists() const;

    /// Asks again what is installed; what was chosen and is still there stays chosen.
    void refresh();
    /// Chooses a row or no longer; of a heading, all below it. A row that is not there is left alone.
    Q_INVOKABLE void toggle(int row);
    /// The headings in the language of now.
    void retranslate();

Q_SIGNALS:
    void suggestionsChanged();
    void chosenChanged();

private:
    struct Row {
        bool isHeading = false;
        bool isChosen = false;
        BlockListSuggestion suggestion;
    };
    [[nodiscard]] qsizetype endOfGroup(qsizetype heading) const;
    [[nodiscard]] bool isWholeGroupChosen(qsizetype heading) const;

    const ApplicationCatalog& m_catalog;
    QList<Row> m_rows;
};

} // namespace norvin
