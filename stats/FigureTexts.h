#pragma once

#include "stats/FigureRecords.h"

#include <QLocale>
#include <QString>

namespace norvin {

// What is said about a figure and its records, in the language of the window.

/// What it is called. @param pointName of what is a point of a chart, the name of that point
[[nodiscard]] QString figureTitle(const FigureQuestion& question, const QString& pointName,
                                  const QLocale& locale);
/// Which days it is about: today, or the period.
[[nodiscard]] QString figureScope(const FigureQuestion& question);
/// How it comes about, as a sentence.
[[nodiscard]] QString figureRule(Figure figure);
/// The figure as the page writes it.
[[nodiscard]] QString figureValue(Figure figure, const FigureSum& sum);
/// How many records there are, and what they add up to.
[[nodiscard]] QString figureSumText(Figure figure, const FigureSum& sum);
[[nodiscard]] QString intervalSumText(const UsageSum& sum);
/// A length in seconds without a loss ("1 h 2 min 5 s").
[[nodiscard]] QString exactSeconds(qint64 seconds);

} // namespace norvin
