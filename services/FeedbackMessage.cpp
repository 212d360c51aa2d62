#include "services/FeedbackMessage.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace norvin {

QByteArray toJson(const FeedbackMessage& message) {
    QJsonObject object{{QStringLiteral("id"), message.id},
                       {QStringLiteral("kind"), message.kind},
                       {QStringLiteral("suggestion"), message.text},
                       {QStringLiteral("version"), message.version},
                       {QStringLiteral("language"), message.language}};
    if (!message.email.isEmpty())
        object.insert(QStringLiteral("email"), message.email);
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

std::optional<QUrl> feedbackAddress(const QString& base) {
    QUrl url(base.trimmed(), QUrl::StrictMode);
    if (!url.isValid() || url.scheme() != QLatin1String("https") || url.host().isEmpty() ||
        !url.userInfo().isEmpty() || url.hasQuery() || url.hasFragment())
        return std::nullopt;
    QString path = url.path();
    while (path.endsWith(u'/'))
        path.chop(1);
    url.setPath(path + QStringLiteral("/api/feedbacks"));
    return url;
}

bool looksLikeEmail(const QString& text) {
    const qsizetype at = text.indexOf(u'@');
    return at > 0 && at == text.lastIndexOf(u'@') && at < text.size() - 1 && !text.contains(u' ');
}

} // namespace norvin
