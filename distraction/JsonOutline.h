#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace norvin {

/// A JSON value with the line that it begins on, for whoever has to say where something is wrong.
struct JsonNode {
    enum class Kind { object, array, string, other };
    struct Member;

    Kind kind = Kind::other;
    /// Counted from 1.
    int line = 1;
    /// Of a string, its text; of a number, "true", "false" and "null" as they stand in the file.
    QString text;
    std::vector<JsonNode> items;
    /// In the order of the file; a key may be there more than once.
    std::vector<Member> members;
};

struct JsonNode::Member {
    QString key;
    /// Of the key, counted from 1.
    int line = 1;
    JsonNode value;
};

/// Line of a place in a text, counted from 1. @param offset in bytes; one past the end counts as the end
[[nodiscard]] int lineAt(const QByteArray& text, qsizetype offset);

/// @param text a document that QJsonDocument has accepted: nothing is checked again
[[nodiscard]] JsonNode jsonOutline(const QByteArray& text);

} // namespace norvin
