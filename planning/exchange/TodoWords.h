#pragma once

#include "model/TaskStatus.h"

#include <QChar>
#include <QString>
#include <QUuid>

#include <optional>

/// The words of a line in the Todo.txt format.
namespace norvin::todo {

inline constexpr auto dueKey = QLatin1String("due");
inline constexpr auto plannedKey = QLatin1String("t");
inline constexpr auto createdKey = QLatin1String("created");
inline constexpr auto priorityKey = QLatin1String("pri");
inline constexpr auto statusKey = QLatin1String("status");
inline constexpr auto noteKey = QLatin1String("note");
inline constexpr auto parentKey = QLatin1String("parent");
inline constexpr auto idKey = QLatin1String("id");
inline constexpr auto inProgressText = QLatin1String("in-progress");

/// Four, two and two digits, whether there is such a day or not.
[[nodiscard]] bool isDayShaped(const QString& word);
/// "(A)" to "(Z)".
[[nodiscard]] bool isPriority(const QString& word);
/// A: high, B: medium, C and later: low.
[[nodiscard]] TaskPriority priorityOf(QChar letter);
/// The letter of a stored priority; none when it is no priority.
[[nodiscard]] std::optional<QChar> letterOf(int priorityValue);
/// A UUID of 36 characters; none for any other text.
[[nodiscard]] std::optional<QUuid> uuidIn(const QString& text);

/// "key:value" with a key of ours and a value that it may have. What is otherwise written like one belongs to
/// the title, as the keys of other programs do; only a value that looks like a day has to be one.
[[nodiscard]] bool isMetadata(const QString& word);
/// A mark, "+" or "@", with a name behind it.
[[nodiscard]] bool isMark(const QString& word, QChar mark);

/// Whether a word of a title would be read as something else. It stands behind a backslash then, and one that
/// has backslashes before such a word gets one more.
/// @param isFirst whether it is the first of the title
[[nodiscard]] bool isSpecial(const QString& word, bool isFirst);

/// What the name of a project or phase becomes behind its mark: blanks turn into underscores.
[[nodiscard]] QString nameForm(const QString& name);

} // namespace norvin::todo
