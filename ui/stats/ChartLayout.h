#pragma once

#include "stats/ChartModel.h"

#include <QFontMetricsF>
#include <QList>
#include <QMetaObject>
#include <QPointer>
#include <QPolygonF>
#include <QQmlEngine>
#include <QVariant>

namespace norvin {

/// Where the points of a chart stand in an area of a given size, and which of the texts around them find room
/// there. Everything in device-independent pixels from the upper left corner of the area; computed once per
/// change. (Not final: QML derives from what it makes.) Main thread only.
class ChartLayout : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// May be null.
    Q_PROPERTY(norvin::ChartModel* model READ model WRITE setModel NOTIFY changed)
    Q_PROPERTY(double width MEMBER m_width WRITE setWidth NOTIFY changed)
    Q_PROPERTY(double height MEMBER m_height WRITE setHeight NOTIFY changed)
    Q_PROPERTY(Scale scale MEMBER m_scale WRITE setScale NOTIFY changed)
    /// Whether each point stands in the middle of a band of its own, as bars do, rather than from the left
    /// edge to the right one, as the points of a line do.
    Q_PROPERTY(bool inBands MEMBER m_inBands WRITE setInBands NOTIFY changed)
    /// How far a label may reach beyond the area, at either side.
    Q_PROPERTY(double overhang MEMBER m_overhang WRITE setOverhang NOTIFY changed)
    /// Height of the texts' font, from 1.
    Q_PROPERTY(int fontPixelSize MEMBER m_fontPixelSize WRITE setFontPixelSize NOTIFY changed)

    /// The value at the upper edge; above 0.
    Q_PROPERTY(double top READ top NOTIFY changed)
    /// Width of a band, or the distance of two points of a line.
    Q_PROPERTY(double step READ step NOTIFY changed)
    /// Where each point stands.
    Q_PROPERTY(QList<double> xs MEMBER m_xs NOTIFY changed)
    Q_PROPERTY(QList<double> ys MEMBER m_ys NOTIFY changed)
    /// Polygons: through all points, and the same down to the lower edge.
    Q_PROPERTY(QVariant line READ line NOTIFY changed)
    Q_PROPERTY(QVariant area READ area NOTIFY changed)
    /// All bars as one path of SVG.
    Q_PROPERTY(QString bars MEMBER m_bars NOTIFY changed)
    // By the same index: the values that the scale names, as heights and as texts.
    Q_PROPERTY(QList<double> tickYs MEMBER m_tickYs NOTIFY changed)
    Q_PROPERTY(QList<QString> tickTexts MEMBER m_tickTexts NOTIFY changed)
    /// Width of the widest of those texts.
    Q_PROPERTY(double tickWidth MEMBER m_tickWidth NOTIFY tickWidthChanged)
    // By the same index: the labels that fit below the area, by their middles.
    Q_PROPERTY(QList<double> labelXs MEMBER m_labelXs NOTIFY changed)
    Q_PROPERTY(QList<QString> labelTexts MEMBER m_labelTexts NOTIFY changed)
    // By the same index: whole numbers that fit above the points that are not zero, and where they stand.
    Q_PROPERTY(QList<double> numberXs MEMBER m_numberXs NOTIFY changed)
    Q_PROPERTY(QList<double> numberYs MEMBER m_numberYs NOTIFY changed)
    Q_PROPERTY(QList<QString> numberTexts MEMBER m_numberTexts NOTIFY changed)
    /// Whether the points are so few that each of them can be seen.
    Q_PROPERTY(bool showsMarks READ showsMarks NOTIFY changed)
public:
    enum Scale {
        Largest, ///< up to the largest value, and no value named
        Minutes, ///< up to a round length
        Score    ///< 0 to 10
    };
    Q_ENUM(Scale)

    explicit ChartLayout(QObject* parent = nullptr)
        : QObject(parent) {}

    [[nodiscard]] ChartModel* model() const { return m_model; }
    void setModel(ChartModel* model);
    void setWidth(double width) { change(m_width, width); }
    void setHeight(double height) { change(m_height, height); }
    void setScale(Scale scale) { change(m_scale, scale); }
    void setInBands(bool inBands) { change(m_inBands, inBands); }
    void setOverhang(double overhang) { change(m_overhang, overhang); }
    void setFontPixelSize(int size) { change(m_fontPixelSize, size); }

    [[nodiscard]] double top() const { return m_top; }
    [[nodiscard]] QVariant line() const { return QVariant::fromValue(m_line); }
    [[nodiscard]] QVariant area() const { return QVariant::fromValue(m_area); }
    [[nodiscard]] double step() const { return m_step; }
    [[nodiscard]] bool showsMarks() const;

    /// Height at which a value stands.
    Q_INVOKABLE [[nodiscard]] double heightOf(double value) const;
    /// The point nearest to a place; -1 in a chart without points.
    Q_INVOKABLE [[nodiscard]] int pointAt(double x) const;

Q_SIGNALS:
    void changed();
    /// Told apart, so that the width may follow from it.
    void tickWidthChanged();

private:
    template <typename T>
    void change(T& member, const T& value) {
        if (member == value)
            return;
        member = value;
        update();
    }
    void update();
    void placeTicks(const QFontMetricsF& metrics);
    void placeLabels(const QFontMetricsF& metrics);
    void placeNumbers(const QFontMetricsF& metrics);
    void drawBars();

    QPointer<ChartModel> m_model;
    QMetaObject::Connection m_connection;
    double m_width = 0;
    double m_height = 0;
    Scale m_scale = Largest;
    bool m_inBands = false;
    double m_overhang = 0;
    int m_fontPixelSize = 12;
    double m_top = 1;
    double m_step = 0;
    QList<double> m_xs;
    QList<double> m_ys;
    QPolygonF m_line;
    QPolygonF m_area;
    QString m_bars;
    QList<double> m_tickYs;
    QList<QString> m_tickTexts;
    double m_tickWidth = 0;
    QList<double> m_labelXs;
    QList<QString> m_labelTexts;
    QList<double> m_numberXs;
    QList<double> m_numberYs;
    QList<QString> m_numberTexts;
};

} // namespace norvin
