#include "distraction/PageAddress.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace norvin {

namespace {

constexpr std::array<QLatin1String, 16> knownTopLevelDomains{
    QLatin1String("com"), QLatin1String("org"), QLatin1String("net"), QLatin1String("io"),
    QLatin1String("dev"), QLatin1String("app"), QLatin1String("fr"),  QLatin1String("de"),
    QLatin1String("uk"),  QLatin1String("co"),  QLatin1String("ai"),  QLatin1String("me"),
    QLatin1String("tv"),  QLatin1String("edu"), QLatin1String("gov"), QLatin1String("sh"),
};

constexpr qsizetype shortestUrl = 4;
constexpr qsizetype shortestUnknownTopLevelDomain = 2;

} // namespace

std::optional<QString> extractDomain(const QString& address) {
    QString domain = address.toLower().trimmed();
    if (const qsizetype scheme = domain.indexOf(QLatin1String("://")); scheme >= 0)
        domain.remove(0, scheme + 3);
    if (domain.startsWith(QLatin1String("www.")))
        domain.remove(0, 4);
    for (const QChar delimiter : {u'/', u'?', u'#', u':'}) {
        if (const qsizetype at = domain.indexOf(delimiter); at >= 0)
            domain.truncate(at);
    }
    if (domain.isEmpty())
        return std::nullopt;
    return domain;
}

bool looksLikeURL(const QString& text) {
    const QString trimmed = text.trimmed();
    if (trimmed.size() < shortestUrl)
        return false;
    if (trimmed.startsWith(QLatin1String("http://")) || trimmed.startsWith(QLatin1String("https://")))
        return true;
    if (trimmed.contains(u' ') || !trimmed.contains(u'.'))
        return false;
    const QStringList pieces = trimmed.split(u'.', Qt::SkipEmptyParts);
    if (pieces.size() < 2)
        return false;
    const QString ending = pieces.last().toLower();
    // The list names the common cases; longer unknown endings are meant to pass as well.
    return std::find(knownTopLevelDomains.begin(), knownTopLevelDomains.end(), ending) !=
               knownTopLevelDomains.end() ||
           ending.size() >= shortestUnknownTopLevelDomain;
}

} // namespace norvin
