#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>

namespace norvin {

/// One point, bar or slice of a chart.
struct ChartPoint {
    /// What stands below it on the axis, or beside it in a legend; empty where nothing does.
    QString label;
    /// What it stands for, in full ("9 am", "Tuesday, 4 March").
    QString name;
    double value = 0;
    /// The value as it is written ("25 min").
    QString valueText;
    /// By what the records behind it are asked for; the place in the chart where it is empty.
    QString key;

    bool operator==(const ChartPoint&) const = default;
};

/// What a chart shows, in its order. Main thread only.
class ChartModel final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY changed)
    /// The value of each point.
    Q_PROPERTY(QList<double> values READ values NOTIFY changed)
    /// The largest value; 0 where there are none, and where none is above 0.
    Q_PROPERTY(double largest READ largest NOTIFY changed)
    /// The sum of the values.
    Q_PROPERTY(double total READ total NOTIFY changed)
    /// The whole chart in words, for who cannot see it: each name with its value, but those of zero.
    Q_PROPERTY(QString summary READ summary NOTIFY changed)
public:
    enum Role {
        LabelRole = Qt::UserRole + 1, ///< "label"
        NameRole,                     ///< "name"
        ValueRole,                    ///< "value"
        ValueTextRole,                ///< "valueText"
        KeyRole                       ///< "key"
    };

    explicit ChartModel(QObject* parent);

    /// Where as many points as before have the same keys, only those that differ are told to have changed.
    void setPoints(QList<ChartPoint> points);
    [[nodiscard]] const QList<ChartPoint>& points() const { return m_points; }

    [[nodiscard]] QList<double> values() const;
    [[nodiscard]] double largest() const;
    [[nodiscard]] double total() const;
    [[nodiscard]] QString summary() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();

private:
    QList<ChartPoint> m_points;
};

} // namespace norvin
