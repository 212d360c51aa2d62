#pragma once

#include "stats/ChartModel.h"

#include <QList>
#include <QMetaObject>
#include <QPointer>
#include <QQmlEngine>
#include <QString>

namespace norvin {

/// The slices of a donut: one for each point of a chart, as large as its share of the whole. Angles in
/// degrees, clockwise from three o'clock. (Not final: QML derives from what it makes.) Main thread only.
class DonutLayout : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// May be null.
    Q_PROPERTY(norvin::ChartModel* model READ model WRITE setModel NOTIFY changed)
    /// The language that percentages are written for ("fr").
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY changed)
    // By the index of the point: where a slice begins and how far it reaches,
    Q_PROPERTY(QList<double> starts MEMBER m_starts NOTIFY changed)
    Q_PROPERTY(QList<double> sweeps MEMBER m_sweeps NOTIFY changed)
    /// its share as text,
    Q_PROPERTY(QList<QString> shares MEMBER m_shares NOTIFY changed)
    /// and its colour, as "#rrggbb": the same for the same key, whatever else there is.
    Q_PROPERTY(QList<QString> colors MEMBER m_colors NOTIFY changed)
public:
    explicit DonutLayout(QObject* parent = nullptr)
        : QObject(parent) {}

    [[nodiscard]] ChartModel* model() const { return m_model; }
    void setModel(ChartModel* model);
    [[nodiscard]] QString language() const { return m_language; }
    void setLanguage(const QString& language);

    /// The slice in the direction of a place seen from the middle; -1 for none.
    Q_INVOKABLE [[nodiscard]] int sliceAt(double x, double y) const;
    /// The colour of a key, see colors.
    [[nodiscard]] static QString colorOf(const QString& key);

Q_SIGNALS:
    void changed();

private:
    void update();

    QPointer<ChartModel> m_model;
    QMetaObject::Connection m_connection;
    QString m_language;
    QList<double> m_starts;
    QList<double> m_sweeps;
    QList<QString> m_shares;
    QList<QString> m_colors;
};

} // namespace norvin
