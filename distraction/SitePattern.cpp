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

bool isLetterOrDigit(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9');
}

bool isHostCharacter(QChar c) {
    return isLetterOrDigit(c) || c == u'-' || c == u'.' || c == u'_';
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
    if (host.contains(QLatin1String("..")) || std::none_of(host.cbegin(), host.cend(), isLetterOrDigit))
        return std::nullopt;
    return host;
}

QString normalizedDomain(const QString& domain) {
    QString result = withoutScheme(domain);
    if (result.startsWith(QLatin1String("www.")))
        result.remove(0, 4);
    keepBefore(result, u'/');
    return result;
}

QString matchingPattern(const QString& domain, const QSet<QString>& patterns) {
    // Whatever matches is the domain itself or one of its endings behind a dot, so these are looked up
    // instead of trying every pattern.
    const QString star = QStringLiteral("*.");
    for (qsizetype start = 0; start < domain.size();) {
        const QString ending = domain.mid(start);
        if (patterns.contains(ending))
            return ending;
        if (patterns.contains(star + ending))
            return star + ending;
        const qsizetype dot = domain.indexOf(u'.', start);
        if (dot < 0)
            break;
        start = dot + 1;
    }
    return {};
}

bool matchesDomain(const QString& domain, const QSet<QString>& patterns) {
    return !matchingPattern(domain, patterns).isEmpty();
}

PastedSites pastedSites(const QString& text) {
    static const QRegularExpression separators(QStringLiteral("[\\s,;]+"));
    PastedSites result;
    QSet<QString> seen;
    const QStringList pieces = text.split(separators, Qt::SkipEmptyParts);
    for (const QString& piece : pieces) {
        const std::optional<QString> pattern = normalizedSitePattern(piece);
        const bool isWord = pieces.size() > 1 && !piece.contains(u'.') && !piece.contains(u':');
        if (!pattern || isWord)
            result.refused.append(piece);
        else if (!seen.contains(*pattern)) {
            seen.insert(*pattern);
            result.patterns.append(*pattern);
        }
    }
    return result;
}

QString displayedSite(const QString& pattern) {
    return QUrl::fromAce(pattern.toLatin1());
}

} // namespace norvin
