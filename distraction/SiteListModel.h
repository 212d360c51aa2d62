#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QSet>
#include <QString>

namespace norvin {

class AppBlockerService;

/// The sites on one list of one browser, sorted by name. Main thread only.
class SiteListModel final : public QAbstractListModel {
    Q_OBJECT
    /// Shows only sites that contain this, case and accents aside.
    Q_PROPERTY(QString filterText READ filterText WRITE setFilterText NOTIFY filterTextChanged)
    /// Rows that are shown.
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    /// Sites on the list, shown or not.
    Q_PROPERTY(int total READ total NOTIFY countChanged)
public:
    enum class List { whitelisted, blocked };
    enum Role {
        PatternRole = Qt::UserRole + 1, ///< text: the entry itself
        NameRole,                       ///< text: the entry as people read it
        IsOnOtherListRole,              ///< boolean: the browser's other list has the same entry
        CoveredByRole,                  ///< text: an entry of this list that covers this one; empty for none
    };

    SiteListModel(const AppBlockerService& blocker, List list, QObject* parent = nullptr);
    ~SiteListModel() override;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] const QString& browser() const { return m_browser; }
    void setBrowser(const QString& browserBundleID);
    [[nodiscard]] const QString& filterText() const { return m_filterText; }
    void setFilterText(const QString& text);
    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] int total() const { return static_cast<int>(m_known.size()); }
    /// Entry of a row; empty for a row that is not there.
    Q_INVOKABLE [[nodiscard]] QString patternAt(int row) const { return m_rows.value(row).pattern; }
    /// Row of an entry; -1 when it is not shown.
    Q_INVOKABLE [[nodiscard]] int rowOf(const QString& pattern) const;

Q_SIGNALS:
    void filterTextChanged();
    void countChanged();

private:
    struct Row {
        QString pattern;
        QString name;

        bool operator==(const Row&) const = default;
    };
    [[nodiscard]] QSet<QString> patterns() const;
    [[nodiscard]] QSet<QString> otherPatterns() const;
    [[nodiscard]] QString coveringPattern(const QString& pattern) const;
    [[nodiscard]] QList<Row> wantedRows() const;
    void reset();
    void update();

    const AppBlockerService& m_blocker;
    List m_list;
    QString m_browser;
    QString m_filterText;
    QSet<QString> m_known; // as of the last look at the lists
    QSet<QString> m_knownOthers;
    QList<Row> m_rows;
};

} // namespace norvin
