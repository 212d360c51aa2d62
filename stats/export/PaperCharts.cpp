#include "stats/export/PaperCharts.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <array>

namespace norvin::paper {

namespace {

constexpr double axisHeight = 16 * point;
constexpr double roomAbove = 14 * point;
constexpr double legendLine = 17 * point;
constexpr double smallestDonut = 110 * point;
/// Beyond this many, each point is no more than a part of the line.
constexpr qsizetype mostDots = 60;

const std::array<QColor, 9> palette{QColor("#7c3aed"), QColor("#10b981"), QColor("#ec4899"),
                                    QColor("#f59e0b"), QColor("#3b82f6"), QColor("#ef4444"),
                                    QColor("#14b8a6"), QColor("#a16207"), QColor("#64748b")};

QColor colorOf(qsizetype index) {
    return palette.at(static_cast<size_t>(index) % palette.size());
}

double largestOf(const StatsDocument::Section& section) {
    double largest = section.top;
    for (const ChartPoint& chartPoint : section.points)
        largest = std::max(largest, chartPoint.value);
    return largest > 0 ? largest : 1;
}

QRectF plotOf(const QRectF& area) {
    return area.adjusted(0, roomAbove, 0, -axisHeight);
}

// Only those that do not touch the one before.
void drawAxis(QPainter& painter, const QRectF& plot, const QList<ChartPoint>& points,
              const std::function<double(qsizetype)>& x) {
    painter.setPen(QPen(line, 0.8 * point));
    painter.drawLine(plot.bottomLeft(), plot.bottomRight());
    const QFont small = font(7.5);
    const QFontMetricsF metrics(small);
    double free = plot.left() - plot.width();
    for (qsizetype i = 0; i < points.size(); ++i) {
        const double width = metrics.horizontalAdvance(points.at(i).label);
        if (points.at(i).label.isEmpty())
            continue;
        const double left = std::clamp(x(i) - width / 2, plot.left(), plot.right() - width);
        if (left < free)
            continue;
        // A little wider than the text, so that rounding never cuts it.
        drawText(painter, QRectF(left - point, plot.bottom(), width + 2 * point, axisHeight),
                 Qt::AlignHCenter | Qt::AlignBottom, points.at(i).label, small, faintInk);
        free = left + width + 4 * point;
    }
}

void drawScale(QPainter& painter, const QRectF& plot, double largest, const QList<ChartPoint>& points,
               const StatsDocument::Section& section) {
    painter.setPen(QPen(line, 0.5 * point));
    painter.drawLine(plot.topLeft(), plot.topRight());
    QString top;
    if (section.top > 0)
        top = QString::number(section.top);
    for (const ChartPoint& chartPoint : points) {
        if (chartPoint.value == largest)
            top = chartPoint.valueText;
    }
    drawText(painter, QRectF(plot.left(), plot.top() - roomAbove, plot.width(), roomAbove - 2 * point),
             Qt::AlignLeft | Qt::AlignBottom, top, font(7.5), faintInk);
}

} // namespace

QFont font(double size, Weight weight) {
    QFont result;
    result.setPixelSize(static_cast<int>(size * point));
    result.setWeight(weight == Weight::bold ? QFont::DemiBold : QFont::Normal);
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

QFont fitted(const QFont& font, const QString& text, double width) {
    const int smallest = font.pixelSize() * 3 / 4;
    QFont result = font;
    while (result.pixelSize() > smallest && QFontMetricsF(result).horizontalAdvance(text) > width)
        result.setPixelSize(result.pixelSize() - 1);
    return result;
}

void drawText(QPainter& painter, const QRectF& area, Qt::Alignment alignment, const QString& text,
              const QFont& font, const QColor& color) {
    painter.setFont(font);
    painter.setPen(color);
    const QString shown = QFontMetricsF(font).elidedText(text, Qt::ElideRight, area.width());
    painter.drawText(area, static_cast<int>(alignment) | Qt::TextSingleLine | Qt::TextDontClip, shown);
}

void drawBars(QPainter& painter, const QRectF& area, const StatsDocument::Section& section) {
    const QList<ChartPoint>& points = section.points;
    const QRectF plot = plotOf(area);
    const double largest = largestOf(section);
    const double step = plot.width() / static_cast<double>(points.size());
    const double width = std::min(step * 0.68, 34 * point);
    const auto middle = [&](qsizetype i) { return plot.left() + step * (static_cast<double>(i) + 0.5); };
    drawAxis(painter, plot, points, middle);
    const QFont small = font(7);
    const QFontMetricsF metrics(small);
    for (qsizetype i = 0; i < points.size(); ++i) {
        if (points.at(i).value <= 0)
            continue;
        const double height = plot.height() * points.at(i).value / largest;
        const QRectF bar(middle(i) - width / 2, plot.bottom() - height, width, height);
        painter.setPen(Qt::NoPen);
        painter.setBrush(accent);
        painter.drawRoundedRect(bar, std::min(2 * point, width / 3), std::min(2 * point, height / 2));
        // In full where it fits, else as a number alone.
        const QString number = QString::number(qRound(points.at(i).value));
        const bool fits = metrics.horizontalAdvance(points.at(i).valueText) <= step - point;
        const QString text = fits ? points.at(i).valueText : number;
        if (metrics.horizontalAdvance(text) <= step) {
            drawText(painter,
                     QRectF(middle(i) - step / 2 - point, bar.top() - roomAbove, step + 2 * point,
                            roomAbove - 2 * point),
                     Qt::AlignHCenter | Qt::AlignBottom, text, small, ink);
        }
    }
}

void drawLine(QPainter& painter, const QRectF& area, const StatsDocument::Section& section) {
    const QList<ChartPoint>& points = section.points;
    const QRectF plot = plotOf(area);
    const double largest = largestOf(section);
    const double step = points.size() > 1 ? plot.width() / static_cast<double>(points.size() - 1) : 0;
    const auto x = [&](qsizetype i) {
        return points.size() > 1 ? plot.left() + step * static_cast<double>(i) : plot.center().x();
    };
    const auto y = [&](double value) { return plot.bottom() - plot.height() * value / largest; };
    drawScale(painter, plot, largest, points, section);
    drawAxis(painter, plot, points, x);

    QPolygonF curve;
    for (qsizetype i = 0; i < points.size(); ++i)
        curve.append(QPointF(x(i), y(points.at(i).value)));
    QPolygonF surface = curve;
    surface.append(QPointF(x(points.size() - 1), plot.bottom()));
    surface.append(QPointF(x(0), plot.bottom()));
    painter.setPen(Qt::NoPen);
    // Light instead of transparent, which not every printer takes.
    painter.setBrush(QColor("#ece5fd"));
    painter.drawPolygon(surface);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(accent, 1.4 * point, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(curve);
    if (points.size() <= mostDots) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(accent);
        for (const QPointF& place : curve)
            painter.drawEllipse(place, 2 * point, 2 * point);
    }
    if (section.threshold) {
        const double level = y(*section.threshold);
        painter.setPen(QPen(faintInk, point, Qt::DashLine));
        painter.drawLine(QPointF(plot.left(), level), QPointF(plot.right(), level));
        drawText(painter, QRectF(plot.left(), level - roomAbove, plot.width(), roomAbove - 2 * point),
                 Qt::AlignRight | Qt::AlignBottom, section.thresholdName, font(7.5), faintInk);
    }
}

double heightOfShares(const StatsDocument::Section& section) {
    return std::max(smallestDonut, legendLine * static_cast<double>(section.points.size())) + 6 * point;
}

void drawShares(QPainter& painter, const QRectF& area, const StatsDocument::Section& section) {
    double total = 0;
    for (const ChartPoint& chartPoint : section.points)
        total += chartPoint.value;
    if (total <= 0)
        return;
    const double width = 18 * point;
    const QRectF ring(area.left() + width, area.top() + width / 2, smallestDonut - width,
                      smallestDonut - width);
    constexpr double whole = 360.0 * 16;
    double begin = 90.0 * 16;
    for (qsizetype i = 0; i < section.points.size(); ++i) {
        const double part = whole * section.points.at(i).value / total;
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(colorOf(i), width, Qt::SolidLine, Qt::FlatCap));
        painter.drawArc(ring, qRound(begin), -qRound(part));
        begin -= part;
    }
    double top = area.top();
    const double left = area.left() + smallestDonut + 50 * point;
    const double valueWidth = 80 * point;
    const double shareWidth = 45 * point;
    for (qsizetype i = 0; i < section.points.size(); ++i, top += legendLine) {
        const ChartPoint& chartPoint = section.points.at(i);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colorOf(i));
        painter.drawRoundedRect(QRectF(left, top + 4.5 * point, 8 * point, 8 * point), 2 * point, 2 * point);
        const double right = area.right() - shareWidth;
        drawText(painter, QRectF(left + 16 * point, top, right - valueWidth - left - 20 * point, legendLine),
                 Qt::AlignLeft | Qt::AlignVCenter, chartPoint.name, font(9), ink);
        drawText(painter, QRectF(right - valueWidth, top, valueWidth, legendLine),
                 Qt::AlignRight | Qt::AlignVCenter, chartPoint.valueText, font(9), ink);
        drawText(painter, QRectF(right, top, shareWidth, legendLine), Qt::AlignRight | Qt::AlignVCenter,
                 QString::number(qRound(100 * chartPoint.value / total)) + QStringLiteral("\u202f%"), font(9),
                 faintInk);
    }
}

} // namespace norvin::paper
