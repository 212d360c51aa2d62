#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>

namespace norvin {

/// A few things to choose one of. Main thread only.
class AgendaChoices final : public QAbstractListModel {
    Q_OBJECT
    /// The row of the chosen one, its label and its colour text; −1 and empty when none is.
    Q_PROPERTY(int currentRow READ currentRow NOTIFY changed)
    Q_PROPERTY(QString currentLabel READ currentLabel NOTIFY changed)
    Q_PROPERTY(QString currentColor READ currentColor NOTIFY changed)
    Q_PROPERTY(int count READ count NOTIFY changed)
public:
    struct Choice {
        /// Empty for "none of them".
        QString id;
        QString label;
        /// Colour text; may be empty.
        QString color = {};
        bool operator==(const Choice&) const = default;
    };
    enum Role {
        IdRole = Qt::UserRole + 1, ///< "choiceId"
        LabelRole,                 ///< "label"
        ColorRole,                 ///< "swatch"
        IsCurrentRole,             ///< "isCurrent"
    };

    explicit AgendaChoices(QObject* parent = nullptr)
        : QAbstractListModel(parent) {}
    ~AgendaChoices() override;

    void set(const QList<Choice>& choices, const QString& currentId);
    [[nodiscard]] int count() const { return static_cast<int>(m_choices.size()); }
    [[nodiscard]] int currentRow() const;
    [[nodiscard]] QString currentLabel() const;
    [[nodiscard]] QString currentColor() const;
    Q_INVOKABLE void choose(int row);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();
    /// The user chose a row.
    void chosen(const QString& id);

private:
    QList<Choice> m_choices;
    QString m_currentId;
};

} // namespace norvin
