#include "stats/export/StatsPages.h"

#include "stats/export/PaperCharts.h"

#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace norvin {

using namespace paper;

namespace {

constexpr double margin = 48 * point;
constexpr double top = 48 * point;
constexpr double bottom = StatsPages::pageHeight - 54 * point;
constexpr double width = StatsPages::pageWidth - 2 * margin;
constexpr double chartHeight = 104 * point;
constexpr double rowHeight = 19 * point;
/// Lists of no more rows are not torn apart.
constexpr qsizetype mostRowsTogether = 10;

void paintFigure(QPainter& painter, const QRectF& area, const StatsDocument::Figure& figure) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(card);
    painter.drawRoundedRect(area, 6 * point, 6 * point);
    const QRectF inside = area.adjusted(7 * point, 8 * point, -7 * point, -8 * point);
    const auto draw = [&painter](const QRectF& place, Qt::Alignment alignment, const QString& text,
                                 const QFont& font, const QColor& color) {
        drawText(painter, place, alignment, text, fitted(font, text, place.width()), color);
    };
    draw(inside, Qt::AlignLeft | Qt::AlignTop, figure.name, font(8.5), faintInk);
    draw(inside.adjusted(0, 12 * point, 0, -12 * point), Qt::AlignLeft | Qt::AlignVCenter, figure.value,
         font(15, Weight::bold), ink);
    draw(inside, Qt::AlignLeft | Qt::AlignBottom, figure.note, font(7.5), faintInk);
}

void paintRow(QPainter& painter, double y, const StatsDocument::Row& row, double leadWidth) {
    const auto cell = [y](double x, double cellWidth) { return QRectF(margin + x, y, cellWidth, rowHeight); };
    const double noteWidth = row.share ? 110 * point : 40 * point;
    const double valueWidth = 70 * point;
    const double barWidth = row.share ? 100 * point : 0;
    const double right = width - noteWidth - valueWidth - barWidth - (row.share ? 20 * point : 0);
    drawText(painter, cell(0, leadWidth), Qt::AlignLeft | Qt::AlignVCenter, row.lead, font(9), faintInk);
    drawText(painter, cell(leadWidth + 8 * point, right - leadWidth - 16 * point),
             Qt::AlignLeft | Qt::AlignVCenter, row.name, font(9.5), ink);
    double x = right;
    if (row.share) {
        drawText(painter, cell(x, noteWidth), Qt::AlignLeft | Qt::AlignVCenter, row.note, font(8.5),
                 faintInk);
        x += noteWidth + 10 * point;
        const QRectF bar(margin + x, y + rowHeight / 2 - 2 * point, barWidth, 4 * point);
        painter.setPen(Qt::NoPen);
        painter.setBrush(line);
        painter.drawRoundedRect(bar, 2 * point, 2 * point);
        painter.setBrush(accent);
        const double done = std::clamp(*row.share, 0.0, 1.0) * barWidth;
        painter.drawRoundedRect(QRectF(bar.topLeft(), QSizeF(done, bar.height())), 2 * point, 2 * point);
        drawText(painter, cell(width - valueWidth, valueWidth), Qt::AlignRight | Qt::AlignVCenter, row.value,
                 font(9.5), ink);
    } else {
        drawText(painter, cell(x, valueWidth), Qt::AlignRight | Qt::AlignVCenter, row.value, font(9.5), ink);
        drawText(painter, cell(width - noteWidth, noteWidth), Qt::AlignRight | Qt::AlignVCenter, row.note,
                 font(9.5), faintInk);
    }
    painter.setPen(QPen(line, 0.4 * point));
    painter.drawLine(QPointF(margin, y + rowHeight), QPointF(margin + width, y + rowHeight));
}

} // namespace

StatsPages::StatsPages(const StatsDocument& document)
    : m_pageFormat(document.pageFormat)
    , m_foot(document.date) {
    addHeader(document);
    for (const StatsDocument::Section& section : document.sections)
        addSection(section);
    breakPages();
}

void StatsPages::add(Block block) {
    m_blocks.push_back(std::move(block));
}

void StatsPages::addHeader(const StatsDocument& document) {
    add({.height = 52 * point,
         .keepsNext = true,
         .paint = [title = document.title, period = document.period](QPainter& painter, double y) {
             drawText(painter, QRectF(margin, y, width, 26 * point), Qt::AlignLeft | Qt::AlignTop, title,
                      font(20, Weight::bold), ink);
             drawText(painter, QRectF(margin, y + 27 * point, width, 16 * point),
                      Qt::AlignLeft | Qt::AlignVCenter, period, font(11), faintInk);
         }});
    add({.height = 66 * point,
         .keepsNext = false,
         .paint = [figures = document.figures](QPainter& painter, double y) {
             const double gap = 8 * point;
             const auto count = static_cast<double>(figures.size());
             const double each = (width - gap * (count - 1)) / count;
             for (qsizetype i = 0; i < figures.size(); ++i) {
                 const double x = margin + (each + gap) * static_cast<double>(i);
                 paintFigure(painter, QRectF(x, y, each, 62 * point), figures.at(i));
             }
         }});
}

void StatsPages::addSection(const StatsDocument::Section& section) {
    add({.height = 34 * point,
         .keepsNext = true,
         .paint = [title = section.title](QPainter& painter, double y) {
             drawText(painter, QRectF(margin, y + 12 * point, width, 18 * point),
                      Qt::AlignLeft | Qt::AlignVCenter, title, font(12.5, Weight::bold), ink);
         }});
    if (section.points.isEmpty() && section.rows.isEmpty()) {
        add({.height = rowHeight,
             .keepsNext = false,
             .paint = [text = section.emptyText](QPainter& painter, double y) {
                 drawText(painter, QRectF(margin, y, width, rowHeight), Qt::AlignLeft | Qt::AlignVCenter,
                          text, font(9.5), faintInk);
             }});
        return;
    }
    if (!section.points.isEmpty()) {
        const bool isShares = section.kind == StatsDocument::ChartKind::shares;
        const double height = isShares ? heightOfShares(section) : chartHeight;
        add({.height = height, .keepsNext = false, .paint = [section, height](QPainter& painter, double y) {
                 const QRectF area(margin, y, width, height);
                 switch (section.kind) {
                 case StatsDocument::ChartKind::bars:
                     drawBars(painter, area, section);
                     return;
                 case StatsDocument::ChartKind::line:
                     drawLine(painter, area, section);
                     return;
                 case StatsDocument::ChartKind::shares:
                     drawShares(painter, area, section);
                     return;
                 }
             }});
    }
    double leadWidth = 0;
    for (const StatsDocument::Row& row : section.rows)
        leadWidth = std::max(leadWidth, QFontMetricsF(font(9)).horizontalAdvance(row.lead) + point);
    const bool staysTogether = section.rows.size() <= mostRowsTogether;
    for (qsizetype i = 0; i < section.rows.size(); ++i) {
        add({.height = rowHeight,
             .keepsNext = staysTogether && i + 1 < section.rows.size(),
             .paint = [row = section.rows.at(i), leadWidth](QPainter& painter, double y) {
                 paintRow(painter, y, row, leadWidth);
             }});
    }
}

void StatsPages::breakPages() {
    double y = top;
    m_pages.emplace_back();
    for (size_t i = 0; i < m_blocks.size();) {
        size_t end = i + 1;
        double height = m_blocks[i].height;
        for (; m_blocks[end - 1].keepsNext && end < m_blocks.size(); ++end)
            height += m_blocks[end].height;
        if (y + height > bottom && y > top) {
            m_pages.emplace_back();
            y = top;
        }
        for (; i < end; ++i)
            m_pages.back().push_back(&m_blocks[i]);
        y += height;
    }
}

void StatsPages::paint(QPainter& painter, int page) const {
    painter.setRenderHint(QPainter::Antialiasing);
    double y = top;
    for (const Block* block : m_pages.at(static_cast<size_t>(page))) {
        block->paint(painter, y);
        y += block->height;
    }
    const QRectF foot(margin, bottom + 18 * point, width, 14 * point);
    drawText(painter, foot, Qt::AlignLeft | Qt::AlignVCenter, m_foot, font(8), faintInk);
    drawText(painter, foot, Qt::AlignRight | Qt::AlignVCenter, m_pageFormat.arg(page + 1).arg(count()),
             font(8), faintInk);
}

bool writePdf(const StatsDocument& document, QIODevice& device) {
    constexpr int pointsPerInch = 72;
    QPdfWriter writer(&device);
    writer.setTitle(document.title + QStringLiteral(" – ") + document.period);
    writer.setCreator(QStringLiteral("Norvin Focus"));
    writer.setResolution(pointsPerInch * StatsPages::unitsPerPoint);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF());
    const StatsPages pages(document);
    QPainter painter;
    if (!painter.begin(&writer))
        return false;
    for (int page = 0; page < pages.count(); ++page) {
        if (page > 0 && !writer.newPage())
            return false;
        pages.paint(painter, page);
    }
    return painter.end();
}

} // namespace norvin
