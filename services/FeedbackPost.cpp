#include "services/FeedbackPost.h"

#include "platform/Clock.h"

#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace norvin {

namespace {

constexpr qint64 largestAnswer = 64 * 1024;

QNetworkRequest request(const QUrl& address) {
    QNetworkRequest request(address);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json; charset=utf-8"));
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("NorvinFocus/" NORVIN_VERSION));
    // Else Qt would tell the language of the machine.
    request.setRawHeader("Accept-Language", "*");
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    return request;
}

// What this program's own service says: nothing, or an object about the message that it took.
bool isAcknowledgement(const QByteArray& answer) {
    return answer.trimmed().isEmpty() || QJsonDocument::fromJson(answer).isObject();
}

FeedbackResult::Outcome withoutAnswer(QNetworkReply::NetworkError error) {
    switch (error) {
    case QNetworkReply::SslHandshakeFailedError:
        return FeedbackResult::Outcome::untrusted;
    case QNetworkReply::RemoteHostClosedError:
    case QNetworkReply::ProtocolFailure:
    case QNetworkReply::ProtocolUnknownError:
        return FeedbackResult::Outcome::broken;
    default:
        return FeedbackResult::Outcome::offline;
    }
}

} // namespace

FeedbackPost::FeedbackPost(const QUrl& address, const QByteArray& json, Clock& clock, QObject* parent)
    : QObject(parent)
    , m_network(std::make_unique<QNetworkAccessManager>())
    , m_reply(m_network->post(request(address), json)) {
    // Of the whole, however slowly the answer drips.
    m_patience = clock.after(patience, [this] {
        m_isTooLate = true;
        m_reply->abort();
    });
    connect(m_reply, &QNetworkReply::readyRead, this, [this] {
        if (m_reply->bytesAvailable() <= largestAnswer)
            return;
        m_isTooMuch = true;
        m_reply->abort();
    });
    connect(m_reply, &QNetworkReply::finished, this, &FeedbackPost::finish);
}

FeedbackPost::~FeedbackPost() {
    disconnect(m_reply, nullptr, this, nullptr);
}

void FeedbackPost::finish() {
    m_patience.reset();
    Q_EMIT ended(result());
}

FeedbackResult FeedbackPost::result() const {
    using Outcome = FeedbackResult::Outcome;
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const auto outcome = [this, status] {
        if (m_isTooLate)
            return Outcome::timedOut;
        if (m_isTooMuch)
            return Outcome::notUnderstood;
        if (status == 0)
            return withoutAnswer(m_reply->error());
        if (status >= 400)
            return Outcome::refused;
        if (status >= 300)
            return Outcome::redirected;
        if (m_reply->error() != QNetworkReply::NoError)
            return Outcome::broken;
        return isAcknowledgement(m_reply->readAll()) ? Outcome::sent : Outcome::notUnderstood;
    };
    return {.outcome = outcome(), .status = status, .detail = m_reply->errorString()};
}

} // namespace norvin
