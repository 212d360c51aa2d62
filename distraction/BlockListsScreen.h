#pragma once

#include "distraction/ApplicationListModel.h"
#include "distraction/BlockListFile.h"
#include "distraction/BlockListNotice.h"
#include "distraction/BlockListSuggestions.h"
#include "distraction/BlockLists.h"
#include "distraction/BrowserHealth.h"
#include "distraction/BrowserListModel.h"
#include "distraction/SiteListModel.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>

#include <optional>

namespace norvin {

class AppBlockerService;
class Preferences;

/// What the block-list screen shows and does. Everything that it does to the lists, except for what the
/// applications' model does, can be taken back. Main thread only.
///
/// Lists are named "whitelisted" and "blocked"; other names are ignored.
class BlockListsScreen final : public QObject {
    Q_OBJECT
    Q_PROPERTY(norvin::ApplicationListModel* applications READ applications CONSTANT)
    Q_PROPERTY(norvin::BrowserListModel* browsers READ browsers CONSTANT)
    /// Sites of the chosen browser.
    Q_PROPERTY(norvin::SiteListModel* whitelistedSites READ whitelistedSites CONSTANT)
    Q_PROPERTY(norvin::SiteListModel* blockedSites READ blockedSites CONSTANT)
    Q_PROPERTY(norvin::BlockListSuggestions* suggestions READ suggestions CONSTANT)
    /// What keeps pages from being told apart; null where nothing is to be said about it.
    Q_PROPERTY(norvin::BrowserHealth* browserHealth READ browserHealth CONSTANT)
    /// While all four lists are empty and suggestions were not refused for good.
    Q_PROPERTY(bool offersSuggestions READ offersSuggestions NOTIFY offersSuggestionsChanged)
    /// Sites on the lists of all browsers.
    Q_PROPERTY(int siteCount READ siteCount NOTIFY listsChanged)

    /// Bundle identifier of the browser whose sites are shown; empty before the first refresh().
    Q_PROPERTY(QString browser READ browser WRITE setBrowser NOTIFY browserChanged)
    Q_PROPERTY(QString browserName READ browserName NOTIFY browserChanged)
    /// The application list that the browser itself is on: "none", "whitelisted" or "blocked". Only the pages
    /// of a whitelisted browser are looked at.
    Q_PROPERTY(QString browserList READ browserList NOTIFY browserListChanged)
    /// Whether there is another browser that the sites could be copied to.
    Q_PROPERTY(bool canCopySites READ canCopySites NOTIFY browserListChanged)

    /// What became of the text last given to each list, in the user's language; empty when all is well.
    Q_PROPERTY(QString whitelistReport READ whitelistReport NOTIFY reportsChanged)
    Q_PROPERTY(QString blockedReport READ blockedReport NOTIFY reportsChanged)

    /// An address or domain to judge in the chosen browser.
    Q_PROPERTY(QString testText READ testText WRITE setTestText NOTIFY testTextChanged)
    /// "legitimate", "distracted", "blocked", "unreadable" for no address, or empty while there is no text.
    Q_PROPERTY(QString testOutcome READ testOutcome NOTIFY testChanged)
    /// The rule that decides, in the user's language.
    Q_PROPERTY(QString testReason READ testReason NOTIFY testChanged)

    /// What was done last, in the user's language; empty when there is nothing to say.
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)
    Q_PROPERTY(bool isNoticeProblem READ isNoticeProblem NOTIFY noticeChanged)
    /// Whether undo() takes back what the notice is about.
    Q_PROPERTY(bool isNoticeUndoable READ isNoticeUndoable NOTIFY noticeChanged)

    /// Folder to offer first when a file is asked for: that of the last one, or the user's documents.
    Q_PROPERTY(QUrl fileFolder READ fileFolder NOTIFY fileFolderChanged)
    /// "none", "ready" (waits for applyImport()) or "refused".
    Q_PROPERTY(QString importState READ importState NOTIFY importChanged)
    Q_PROPERTY(QString importFileName READ importFileName NOTIFY importChanged)
    /// Why the file is refused, in the user's language.
    Q_PROPERTY(QString importProblem READ importProblem NOTIFY importChanged)
    /// Entries of the file.
    Q_PROPERTY(int importApplicationCount READ importApplicationCount NOTIFY importChanged)
    Q_PROPERTY(int importSiteCount READ importSiteCount NOTIFY importChanged)
    /// Entries that merging or replacing would add, and those that replacing would take away.
    Q_PROPERTY(int importAddedCount READ importAddedCount NOTIFY importChanged)
    Q_PROPERTY(int importRemovedCount READ importRemovedCount NOTIFY importChanged)
public:
    static constexpr auto suggestionsDismissedKey = "block_list_suggestions_dismissed";

    /// Everything must outlive this.
    BlockListsScreen(const ApplicationCatalog& catalog, Workspace& workspace, AppBlockerService& blocker,
                     Preferences& preferences, QObject* parent = nullptr);
    ~BlockListsScreen() override;

    [[nodiscard]] ApplicationListModel* applications() { return &m_applications; }
    [[nodiscard]] BrowserListModel* browsers() { return &m_browsers; }
    [[nodiscard]] SiteListModel* whitelistedSites() { return &m_whitelistedSites; }
    [[nodiscard]] SiteListModel* blockedSites() { return &m_blockedSites; }
    [[nodiscard]] BlockListSuggestions* suggestions() { return &m_suggestions; }
    [[nodiscard]] BrowserHealth* browserHealth() const { return m_browserHealth; }
    /// To be called before the screen is shown. @param health must outlive this
    void setBrowserHealth(BrowserHealth* health) { m_browserHealth = health; }
    [[nodiscard]] bool offersSuggestions() const { return m_offersSuggestions; }
    [[nodiscard]] int siteCount() const;

    [[nodiscard]] const QString& browser() const { return m_browser; }
    void setBrowser(const QString& bundleID);
    [[nodiscard]] QString browserName() const { return m_browsers.nameOf(m_browser); }
    [[nodiscard]] QString browserList() const;
    [[nodiscard]] bool canCopySites() const;
    [[nodiscard]] QString whitelistReport() const { return m_whitelistEntry.text(); }
    [[nodiscard]] QString blockedReport() const { return m_blockedEntry.text(); }

    [[nodiscard]] const QString& testText() const { return m_testText; }
    void setTestText(const QString& text);
    [[nodiscard]] QString testOutcome() const;
    [[nodiscard]] QString testReason() const;

    [[nodiscard]] QString notice() const { return m_notice.text(); }
    [[nodiscard]] bool isNoticeProblem() const { return m_notice.isProblem(); }
    [[nodiscard]] bool isNoticeUndoable() const { return m_notice.isUndoable; }

    [[nodiscard]] QUrl fileFolder() const;
    [[nodiscard]] QString importState() const;
    [[nodiscard]] const QString& importFileName() const { return m_importFileName; }
    [[nodiscard]] QString importProblem() const;
    [[nodiscard]] int importApplicationCount() const;
    [[nodiscard]] int importSiteCount() const;
    [[nodiscard]] int importAddedCount() const;
    [[nodiscard]] int importRemovedCount() const;

    /// Asks again what is installed and running; to be called when the screen opens.
    Q_INVOKABLE void refresh();
    /// Puts the sites of a text, pasted perhaps, on a list of the chosen browser.
    /// @return what of the text was not understood, to be left in the field
    Q_INVOKABLE QString addSites(const QString& list, const QString& text);
    Q_INVOKABLE void removeSite(const QString& list, const QString& pattern);
    /// From the named list to the other one.
    Q_INVOKABLE void moveSite(const QString& list, const QString& pattern);
    /// Gives the sites of the chosen browser to the other browsers that are installed or have lists.
    Q_INVOKABLE void copySites();
    /// Puts the chosen browser on the whitelist of applications, and off the blocked ones.
    Q_INVOKABLE void whitelistBrowser();
    Q_INVOKABLE void clearReport(const QString& list);

    Q_INVOKABLE void addChosenSuggestions();
    /// For good.
    Q_INVOKABLE void dismissSuggestions();

    Q_INVOKABLE void undo();
    Q_INVOKABLE void clearNotice();

    /// @param file a local file
    Q_INVOKABLE void exportLists(const QUrl& file);
    /// Reads a file and shows what would come of it; nothing is changed yet.
    Q_INVOKABLE void examineImport(const QUrl& file);
    /// @param replacing whether the lists become those of the file; otherwise its entries are added
    Q_INVOKABLE void applyImport(bool replacing);
    Q_INVOKABLE void dropImport();

    /// The texts in the language of now.
    void retranslate();

Q_SIGNALS:
    void offersSuggestionsChanged();
    void listsChanged();
    void browserChanged();
    void browserListChanged();
    void reportsChanged();
    void testTextChanged();
    void testChanged();
    void noticeChanged();
    void fileFolderChanged();
    void importChanged();

private:
    /// What of a text was not put on a list.
    struct EntryReport {
        QStringList refused;
        QStringList listedAlready;

        [[nodiscard]] QString text() const;
    };

    [[nodiscard]] static SiteLists BlockLists::*siteListsOf(const QString& list);
    [[nodiscard]] EntryReport& reportOf(const QString& list);
    bool change(const BlockLists& lists, const BlockListNotice& notice);
    void say(const BlockListNotice& notice);
    void setReport(const QString& list, const EntryReport& report);
    void rememberFolder(const QString& path);
    void handleListsChanged();
    void updateOffer();

    AppBlockerService& m_blocker;
    Preferences& m_preferences;
    ApplicationListModel m_applications;
    BrowserListModel m_browsers;
    SiteListModel m_whitelistedSites;
    SiteListModel m_blockedSites;
    BlockListSuggestions m_suggestions;
    BrowserHealth* m_browserHealth = nullptr;
    bool m_offersSuggestions = false;
    QString m_browser;
    EntryReport m_whitelistEntry;
    EntryReport m_blockedEntry;
    QString m_testText;
    BlockListNotice m_notice;
    QList<BlockListChange> m_changes; // the last one is the one to take back first
    QString m_fileFolder;
    QString m_importFileName;
    std::optional<BlockLists> m_import;
    std::optional<BlockListFileError> m_importError;
};

} // namespace norvin
