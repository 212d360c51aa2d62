#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>

namespace norvin {

/// A suggestion as its writer made it.
struct FeedbackMessage {
    /// Tells a message that arrives twice from two messages; random, and the same until it has arrived.
    QString id;
    /// "idea", "problem" or "praise".
    QString kind;
    QString text;
    /// Where an answer may go; empty for none.
    QString email;
    /// Of the program.
    QString version;
    /// Of the program's texts, "fr" or "en".
    QString language;
};

/// The message as it is sent and shown: indented JSON in UTF-8. An empty address is left out.
[[nodiscard]] QByteArray toJson(const FeedbackMessage& message);

/// Where messages go: the path "/api/feedbacks" below a base address.
/// @return none unless the base is an https address of a host, without user name, query or fragment
[[nodiscard]] std::optional<QUrl> feedbackAddress(const QString& base);

/// Whether a text could be an e-mail address. Only the way there can tell whether it is one.
[[nodiscard]] bool looksLikeEmail(const QString& text);

} // namespace norvin
