#pragma once

#include <QString>

namespace norvin {

/// A length in whole minutes in the language of the window ("25 min", "2 h", "2 h 5 min").
[[nodiscard]] QString formatTime(int minutes);
/// A length in whole seconds in the language of the window; above a minute, seconds are dropped ("42 s",
/// "59 min", "1 h 1 min").
[[nodiscard]] QString formatSeconds(qint64 seconds);
/// A focus score as the statistics show it ("7.5").
[[nodiscard]] QString formatScore(double score);
/// A usage category in the language of the window; the text as it is stored where it is none that we know.
[[nodiscard]] QString categoryName(const QString& category);

} // namespace norvin
