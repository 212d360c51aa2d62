#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QUrl>

#include <chrono>
#include <memory>

class QNetworkAccessManager;
class QNetworkReply;

namespace norvin {

class Clock;
class ClockTimer;

/// What became of a message that was posted.
struct FeedbackResult {
    enum class Outcome {
        sent,
        /// Nobody was reached.
        offline,
        timedOut,
        /// The certificate of the other side is not trusted here.
        untrusted,
        /// The other side answered with an error of HTTP.
        refused,
        /// The other side sent us elsewhere, where nothing is sent to.
        redirected,
        /// The connection ended before the answer did.
        broken,
        /// There was an answer, but not one that such a message gets.
        notUnderstood
    };

    Outcome outcome = Outcome::offline;
    /// Of HTTP; 0 where none was received.
    int status = 0;
    /// In no particular language, for the log.
    QString detail;
};

/// One message on its way over HTTPS. Destroying it gives up. Follows no redirection, and sends no cookies
/// and nothing about the machine besides the message. A connection that ends before there is an answer may be
/// tried again at once, so that the message can arrive twice. Main thread only.
class FeedbackPost final : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::seconds patience{15};

    /// Begins at once. @param clock must outlive this
    FeedbackPost(const QUrl& address, const QByteArray& json, Clock& clock, QObject* parent = nullptr);
    ~FeedbackPost() override;

Q_SIGNALS:
    /// Sent once.
    void ended(const norvin::FeedbackResult& result);

private:
    void finish();
    [[nodiscard]] FeedbackResult result() const;

    std::unique_ptr<QNetworkAccessManager> m_network;
    QNetworkReply* m_reply = nullptr;
    std::unique_ptr<ClockTimer> m_patience;
    bool m_isTooLate = false;
    bool m_isTooMuch = false;
};

} // namespace norvin
