#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>

namespace norvin {

class AppBlockerService;
class ApplicationCatalog;

/// The browsers whose sites can be listed: those of this machine and those that have lists, and on demand all
/// that are known. Main thread only.
class BrowserListModel final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    /// Whether the known browsers that are not here are shown as well.
    Q_PROPERTY(bool showsAll READ showsAll WRITE setShowsAll NOTIFY showsAllChanged)
public:
    enum Role {
        BundleIdRole = Qt::UserRole + 1, ///< text
        NameRole,                        ///< text
        IconNameRole,                    ///< icon theme name or absolute path, may be empty
        IsInstalledRole,                 ///< boolean
        SiteCountRole,                   ///< whole number, both lists together
    };

    BrowserListModel(const ApplicationCatalog& catalog, const AppBlockerService& blocker,
                     QObject* parent = nullptr);
    ~BrowserListModel() override;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] bool showsAll() const { return m_showsAll; }
    void setShowsAll(bool showsAll);

    /// Asks again what is installed and listed.
    void refresh();
    /// Row of a browser; -1 when it is not shown.
    Q_INVOKABLE [[nodiscard]] int rowOf(const QString& bundleID) const;
    Q_INVOKABLE [[nodiscard]] QString bundleIdAt(int row) const { return m_rows.value(row).bundleID; }
    /// The browser's own name, whether it is shown or not; the identifier where no name is known.
    [[nodiscard]] QString nameOf(const QString& bundleID) const;
    /// Identifiers of the browsers of this machine and of those that have lists.
    [[nodiscard]] QStringList usualBrowsers() const;
    /// Identifiers of the known browsers that are installed, in the order of the rows.
    [[nodiscard]] QStringList installedBrowsers() const;

Q_SIGNALS:
    void countChanged();
    void showsAllChanged();

private:
    struct Row {
        QString bundleID;
        QString name;
        QString iconName;
        bool isInstalled = false;

        bool operator==(const Row&) const = default;
    };
    [[nodiscard]] int siteCount(const QString& bundleID) const;
    [[nodiscard]] QList<Row> wantedRows() const;

    const ApplicationCatalog& m_catalog;
    const AppBlockerService& m_blocker;
    QList<Row> m_rows;
    bool m_showsAll = false;
};

} // namespace norvin
