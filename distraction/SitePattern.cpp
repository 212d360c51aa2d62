#include "distraction/SitePattern.h"

#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

namespace norvin {

namespace {

void keepBefore(QString& text, QChar delimiter) {
    const qsizetype at = text.indexOf(delimiter);
    if (at >= 0)
        text.truncate(at);
}

QString withoutScheme(const QString& text) {
    const qsizetype at = text.indexOf(QLatin1String("://"));
    return at < 0 ? text : text.mid(at + 3);
}

bool isHostCharacter(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9') || c == u'-' || c == u'.' || c == u'_';
}

} // namespace

std::optional<QString> normalizedSitePattern(const QString& text) {
    QString host = text.trimmed().toLower();
    // An address may carry another one in its path or query.
    const qsizetype afterHost = host.indexOf(QRegularExpression(QStringLiteral("[/?#]")));
    if (host.indexOf(QLatin1String("://")) == afterHost - 1)
        host = withoutScheme(host);
    for (const QChar delimiter : {u'/', u'\\', u'?', u'#'})
        keepBefore(host, delimiter);
    host = host.mid(host.lastIndexOf(u'@') + 1);
    keepBefore(host, u':');
    if (host.startsWith(QLatin1String("*.")))
        host.remove(0, 2);
    // "www.com" is a site, "com" would be a whole top-level domain.
    if (host.startsWith(QLatin1String("www.")) && host.indexOf(u'.', 4) >= 0)
        host.remove(0, 4);
    while (host.endsWith(u'.'))
        host.chop(1);
    while (host.startsWith(u'.'))
        host.remove(0, 1);
    if (host.isEmpty())
        return std::nullopt;
    if (!std::all_of(host.cbegin(), host.cend(), isHostCharacter)) {
        host = QString::fromLatin1(QUrl::toAce(host));
        if (host.isEmpty() || !std::all_of(host.cbegin(), host.cend(), isHostCharacter))
            return std::nullopt;
    }
    return host;
}

QString normalizedDomain(const QString& domain) {
    QString result = withoutScheme(domain);
    if (result.startsWith(QLatin1String("www.")))
        result.remove(0, 4);
    keepBefore(result, u'/');
    return result;
}

bool matchesDomain(const QString& domain, const QSet<QString>& patterns) {
    return std::any_of(patterns.cbegin(), patterns.cend(), [&domain](const QString& listed) {
        const QStringView pattern =
            listed.startsWith(QLatin1String("*.")) ? QStringView(listed).mid(2) : QStringView(listed);
        if (pattern.isEmpty() || !domain.endsWith(pattern))
            return false;
        const qsizetype rest = domain.size() - pattern.size();
        return rest == 0 || domain.at(rest - 1) == u'.';
    });
}

} // namespace norvin
