#pragma once

#include "stats/export/StatsDocument.h"

#include <QColor>
#include <QFont>
#include <QRectF>

class QPainter;

namespace norvin::paper {

// Everything in the units of StatsPages.

inline constexpr double point = 10;

inline const QColor ink("#1b1b2d");
inline const QColor faintInk("#5d5d75");
inline const QColor line("#d9d7e3");
inline const QColor card("#f5f3fb");
inline const QColor accent("#7c3aed");

enum class Weight { normal, bold };
/// @param size in points
[[nodiscard]] QFont font(double size, Weight weight = Weight::normal);

/// The same font, or a smaller one in which the text has room, down to three quarters.
[[nodiscard]] QFont fitted(const QFont& font, const QString& text, double width);

/// On one line, cut with an ellipsis where it has no room.
void drawText(QPainter& painter, const QRectF& area, Qt::Alignment alignment, const QString& text,
              const QFont& font, const QColor& color);

void drawBars(QPainter& painter, const QRectF& area, const StatsDocument::Section& section);
void drawLine(QPainter& painter, const QRectF& area, const StatsDocument::Section& section);
/// A donut with its legend beside it.
void drawShares(QPainter& painter, const QRectF& area, const StatsDocument::Section& section);
/// How high the legend of a donut is.
[[nodiscard]] double heightOfShares(const StatsDocument::Section& section);

} // namespace norvin::paper
