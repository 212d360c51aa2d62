#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>

namespace norvin {

/// What was understood of a line about a task, piece by piece. Main thread only.
class TaskEntryChips final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum class Kind { priority, project, phase, plannedDay, dueDay, unknown };
    struct Chip {
        Kind kind;
        QString label;
        /// Colour text; may be empty.
        QString color = {};
        bool operator==(const Chip&) const = default;
    };
    enum Role {
        KindRole =
            Qt::UserRole + 1, ///< "kind": "priority", "project", "phase", "plannedDay", "dueDay", "unknown"
        LabelRole,            ///< "label"
        ColorRole,            ///< "swatch"
        IsUnknownRole,        ///< "isUnknown": names what is not there, and stays in the title
    };

    explicit TaskEntryChips(QObject* parent)
        : QAbstractListModel(parent) {}
    ~TaskEntryChips() override;

    void set(const QList<Chip>& chips);
    [[nodiscard]] const QList<Chip>& chips() const { return m_chips; }
    [[nodiscard]] int count() const { return static_cast<int>(m_chips.size()); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    QList<Chip> m_chips;
};

} // namespace norvin
