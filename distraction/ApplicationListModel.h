#pragma once

#include "platform/ApplicationCatalog.h"

#include <QAbstractListModel>
#include <QList>
#include <QSet>
#include <QString>

namespace norvin {

// The lists that an application may stand on, as the screen names them.
inline constexpr auto whitelistedList = QLatin1String("whitelisted");
inline constexpr auto blockedList = QLatin1String("blocked");
inline constexpr auto noList = QLatin1String("none");

class AppBlockerService;
class Workspace;

/// The applications of this machine (installed, with a window open, or on one of the lists) with the list
/// that each is on. Main thread only.
class ApplicationListModel final : public QAbstractListModel {
    Q_OBJECT
    /// Shows only applications whose name or identifier contains this, case and accents aside.
    Q_PROPERTY(QString filterText READ filterText WRITE setFilterText NOTIFY filterTextChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int blockedCount READ blockedCount NOTIFY listsChanged)
    Q_PROPERTY(int whitelistedCount READ whitelistedCount NOTIFY listsChanged)
public:
    enum Role {
        BundleIdRole = Qt::UserRole + 1, ///< text
        NameRole,                        ///< text
        IconNameRole,                    ///< icon theme name or absolute path, may be empty
        IsRunningRole,                   ///< boolean: it has a window open
        ListRole,                        ///< "none", "blocked" or "whitelisted"
    };

    ApplicationListModel(const ApplicationCatalog& catalog, Workspace& workspace, AppBlockerService& blocker,
                         QObject* parent = nullptr);
    ~ApplicationListModel() override;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] const QString& filterText() const { return m_filterText; }
    void setFilterText(const QString& text);
    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] int blockedCount() const;
    [[nodiscard]] int whitelistedCount() const;

    /// Asks again what is installed and running; to be called when the screen opens.
    Q_INVOKABLE void refresh();
    /// Puts an application on "blocked" or "whitelisted" and off the other, or with "none" off both.
    Q_INVOKABLE void setList(const QString& bundleID, const QString& list);

Q_SIGNALS:
    void filterTextChanged();
    void countChanged();
    void listsChanged();

private:
    struct Entry {
        InstalledApplication application;
        bool isRunning = false;
    };
    [[nodiscard]] QString listOf(const QString& bundleID) const;
    void applyFilter();
    void handleListsChanged();

    const ApplicationCatalog& m_catalog;
    Workspace& m_workspace;
    AppBlockerService& m_blocker;
    QList<Entry> m_all;
    QSet<QString> m_known;   // identifiers of m_all, and the own one, which is not shown
    QList<qsizetype> m_rows; // indices into m_all
    QString m_filterText;
};

} // namespace norvin
