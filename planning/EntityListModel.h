#pragma once

#include "model/Entity.h"

#include <QAbstractListModel>
#include <QList>
#include <QSet>

namespace norvin {

/// Rows of planning entities that a screen shows. Whoever fills it hands over the whole list each time; the
/// model tells its views the difference, row by row. Main thread only.
///
/// Derived classes name it with its namespace: the QML tools know it only so.
class EntityListModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    using Rows = QList<Entity*>;

    ~EntityListModel() override;

    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;

Q_SIGNALS:
    void countChanged();

protected:
    explicit EntityListModel(QObject* parent)
        : QAbstractListModel(parent) {}

    [[nodiscard]] const Rows& rows() const { return m_rows; }
    /// Null when there is no such row.
    [[nodiscard]] Entity* entityAt(int row) const;
    /// −1 when the entity has none.
    [[nodiscard]] int rowOfEntity(const Entity* entity) const;
    /// Shows exactly these entities, each of them once, in this order. A list that is put into another order
    /// altogether resets the model.
    void setRows(const Rows& wanted);
    /// Takes out one that is about to be destroyed.
    void dropRow(const Entity* entity);
    /// Has what the views show of these entities read again.
    void rowsTouched(const QSet<const Entity*>& entities);
    void allRowsTouched();

private:
    void removeRowsExcept(const QSet<const Entity*>& wanted);
    /// @param to the row that it has afterwards
    void shiftRow(qsizetype from, qsizetype to);
    void reset(const Rows& wanted);

    Rows m_rows;
};

} // namespace norvin
