#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>
#include <variant>

namespace norvin {

/// The browser extension's word on its front tab.
struct PageMessage {
    /// Host name, in lower case; none where the page has none that may be told, or is not known.
    std::optional<QString> domain;
    /// Whether the tab's window has the keyboard.
    bool isFocused = false;

    bool operator==(const PageMessage&) const = default;
};

/// The application wants the front tab closed.
struct CloseRequest {
    /// Number of the request, which its answer repeats; above 0.
    int id = 0;
    /// Domain that the tab must still show.
    QString domain;
    /// Wall-clock time from which on the request is void, in milliseconds since 1970-01-01 UTC.
    qint64 until = 0;

    bool operator==(const CloseRequest&) const = default;
};

/// What became of a CloseRequest.
struct CloseAnswer {
    enum class Outcome {
        closed,    ///< the tab is gone
        otherPage, ///< the front tab shows another domain, or none
        pinned,    ///< the user has pinned the tab
        late,      ///< the request had become void
        failed,    ///< the tab is still there
    };
    int id = 0;
    Outcome outcome = Outcome::failed;

    bool operator==(const CloseAnswer&) const = default;
};

/// The native host introduces itself to the application.
struct HostMessage {
    /// Process id of the program that started the host, as the host sees it.
    qint64 browserProcessId = 0;

    bool operator==(const HostMessage&) const = default;
};

/// Everything that extension, native host and application say to one another.
using BrowserMessage = std::variant<PageMessage, CloseRequest, CloseAnswer, HostMessage>;

/// The message in a JSON text; none where it is not one of them, lacks a field, or has one of another type or
/// out of its range. Fields that are not known are ignored, and lost. Any thread.
[[nodiscard]] std::optional<BrowserMessage> decodeBrowserMessage(QByteArrayView json);

/// The JSON text of a message, below 512 bytes. Any thread.
[[nodiscard]] QByteArray encodeBrowserMessage(const BrowserMessage& message);

/// Whether a text can be the name of a host: 1 to 253 of the characters a–z, 0–9, ".", "-" and "_".
[[nodiscard]] bool isHostName(QStringView text);

/// Whether two host names stand for one site: a "www." in front makes no difference.
[[nodiscard]] bool isSameSite(QStringView domain, QStringView otherDomain);

} // namespace norvin
