#pragma once

#include "stats/ChartModel.h"

#include <QMetaObject>
#include <QPointer>
#include <QQmlEngine>

namespace norvin {

/// The point of a chart that somebody looks at, and what it says. (Not final: QML derives from what it
/// makes.) Main thread only.
class ChartCursor : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// May be null.
    Q_PROPERTY(norvin::ChartModel* model READ model WRITE setModel NOTIFY changed)
    /// Place of the point; -1 for none, as for a place that the chart does not have.
    Q_PROPERTY(int index READ index WRITE setIndex NOTIFY changed)
    // Of the point; empty without one.
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString valueText READ valueText NOTIFY changed)
    /// Name and value in one.
    Q_PROPERTY(QString text READ text NOTIFY changed)
public:
    explicit ChartCursor(QObject* parent = nullptr)
        : QObject(parent) {}

    [[nodiscard]] ChartModel* model() const { return m_model; }
    void setModel(ChartModel* model);
    [[nodiscard]] int index() const { return point() != nullptr ? m_index : -1; }
    void setIndex(int index);
    [[nodiscard]] QString name() const;
    [[nodiscard]] QString valueText() const;
    [[nodiscard]] QString text() const;

    /// By what the records of the point at a place are asked for; empty for a place that there is not.
    Q_INVOKABLE [[nodiscard]] QString keyAt(int index) const;
    /// The place of the first point that is not zero; 0 where all are, -1 where there is none.
    Q_INVOKABLE [[nodiscard]] int first() const;

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] const ChartPoint* point() const;

    QPointer<ChartModel> m_model;
    QMetaObject::Connection m_connection;
    int m_index = -1;
};

} // namespace norvin
