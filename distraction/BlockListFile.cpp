#include "distraction/BlockListFile.h"

#include "distraction/JsonOutline.h"
#include "distraction/SitePattern.h"

#include <QByteArrayList>
#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>
#include <QStringList>

#include <algorithm>
#include <array>
#include <optional>

namespace norvin {

namespace {

using Fault = BlockListFileError::Fault;
using Problem = std::optional<BlockListFileError>;

constexpr auto formatKey = QLatin1String("format");
constexpr auto formatName = QLatin1String("norvin-focus-block-lists");
constexpr auto versionKey = QLatin1String("version");
constexpr auto versionNumber = QLatin1String("1");
constexpr auto blockedAppsMember = QLatin1String("blockedApps");
constexpr auto whitelistedAppsMember = QLatin1String("whitelistedApps");
constexpr auto whitelistedSitesMember = QLatin1String("whitelistedSites");
constexpr auto blockedSitesMember = QLatin1String("blockedSites");
constexpr std::array allKeys{
    formatKey,         versionKey, blockedAppsMember, whitelistedAppsMember, whitelistedSitesMember,
    blockedSitesMember};
// Hundreds of thousands of sites fit into it.
constexpr qint64 largestFile = 16 * 1024 * 1024;

BlockListFileError error(Fault fault, int line, const QString& detail = {}) {
    return {.fault = fault, .line = line, .detail = detail};
}

/// The members by their keys, each of which has to be there once and be known.
Problem takeApart(const JsonNode& root, QHash<QString, const JsonNode*>& members) {
    if (root.kind != JsonNode::Kind::object)
        return error(Fault::notAnObject, root.line);
    for (const JsonNode::Member& member : root.members) {
        if (std::find(allKeys.cbegin(), allKeys.cend(), member.key) == allKeys.cend())
            return error(Fault::unknownKey, member.line, member.key);
        if (members.contains(member.key))
            return error(Fault::repeatedKey, member.line, member.key);
        members.insert(member.key, &member.value);
    }
    for (const QLatin1String key : allKeys) {
        if (!members.contains(key))
            return error(Fault::missingKey, root.line, key);
    }
    return std::nullopt;
}

/// The texts of an array, each taken through a reduction that gives nothing for what is refused.
template <typename Reduce>
Problem takeTexts(const JsonNode& node, const QString& owner, Fault refusal, Reduce reduce,
                  QSet<QString>& texts) {
    if (node.kind != JsonNode::Kind::array)
        return error(Fault::notAList, node.line, owner);
    for (const JsonNode& item : node.items) {
        if (item.kind != JsonNode::Kind::string)
            return error(Fault::notAText, item.line, owner);
        const std::optional<QString> text = reduce(item.text);
        if (!text)
            return error(refusal, item.line, refusal == Fault::notASite ? item.text : owner);
        texts.insert(*text);
    }
    return std::nullopt;
}

std::optional<QString> identifierIn(const QString& text) {
    const QString identifier = text.trimmed();
    return identifier.isEmpty() ? std::nullopt : std::optional(identifier);
}

Problem takeSites(const JsonNode& node, const QString& owner, SiteLists& lists) {
    if (node.kind != JsonNode::Kind::object)
        return error(Fault::notAnObject, node.line, owner);
    QSet<QString> seen;
    for (const JsonNode::Member& member : node.members) {
        const std::optional<QString> browser = identifierIn(member.key);
        if (!browser)
            return error(Fault::emptyName, member.line, owner);
        if (seen.contains(*browser))
            return error(Fault::repeatedKey, member.line, *browser);
        seen.insert(*browser);
        QSet<QString> sites;
        if (const Problem problem =
                takeTexts(member.value, *browser, Fault::notASite, normalizedSitePattern, sites))
            return problem;
        if (!sites.isEmpty())
            lists.insert(*browser, sites);
    }
    return std::nullopt;
}

Problem checkHeader(const QHash<QString, const JsonNode*>& members) {
    const JsonNode& format = *members.value(formatKey);
    if (format.kind != JsonNode::Kind::string || format.text != formatName)
        return error(Fault::wrongFormat, format.line, format.text);
    const JsonNode& version = *members.value(versionKey);
    if (version.kind != JsonNode::Kind::other || version.text != versionNumber)
        return error(Fault::wrongVersion, version.line, version.text);
    return std::nullopt;
}

Problem takeLists(const QHash<QString, const JsonNode*>& members, BlockLists& lists) {
    Problem problem = takeTexts(*members.value(blockedAppsMember), blockedAppsMember, Fault::emptyName,
                                identifierIn, lists.blockedAppBundleIDs);
    if (!problem)
        problem = takeTexts(*members.value(whitelistedAppsMember), whitelistedAppsMember, Fault::emptyName,
                            identifierIn, lists.whitelistedAppBundleIDs);
    if (!problem)
        problem = takeSites(*members.value(whitelistedSitesMember), whitelistedSitesMember,
                            lists.browserWhitelistedSites);
    if (!problem)
        problem =
            takeSites(*members.value(blockedSitesMember), blockedSitesMember, lists.browserBlockedSites);
    return problem;
}

// Written by hand because people read and compare these files: one entry a line, and the header first.
QByteArray quoted(const QString& text) {
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

QByteArray listText(const QSet<QString>& texts, const QByteArray& indent) {
    if (texts.isEmpty())
        return "[]";
    QStringList sorted(texts.cbegin(), texts.cend());
    sorted.sort();
    QByteArrayList lines;
    for (const QString& text : std::as_const(sorted))
        lines.append(indent + "    " + quoted(text));
    return "[\n" + lines.join(",\n") + '\n' + indent + ']';
}

QByteArray sitesText(const SiteLists& lists) {
    QByteArrayList lines;
    for (auto it = lists.cbegin(); it != lists.cend(); ++it)
        lines.append("        " + quoted(it.key()) + ": " + listText(it.value(), "        "));
    return lines.isEmpty() ? "{}" : "{\n" + lines.join(",\n") + "\n    }";
}

QString sentence(const BlockListFileError& error) {
    switch (error.fault) {
    case Fault::unreadable:
        return qtTrId("list_file_unreadable").arg(error.detail);
    case Fault::tooLarge:
        return qtTrId("list_file_too_large");
    case Fault::notJson:
        return qtTrId("list_file_not_json").arg(error.detail);
    case Fault::notAnObject:
        return error.detail.isEmpty() ? qtTrId("list_file_no_lists")
                                      : qtTrId("list_file_not_an_object").arg(error.detail);
    case Fault::notAList:
        return qtTrId("list_file_not_a_list").arg(error.detail);
    case Fault::notAText:
        return qtTrId("list_file_not_a_text").arg(error.detail);
    case Fault::unknownKey:
        return qtTrId("list_file_unknown_key").arg(error.detail);
    case Fault::missingKey:
        return qtTrId("list_file_missing_key").arg(error.detail);
    case Fault::repeatedKey:
        return qtTrId("list_file_repeated_key").arg(error.detail);
    case Fault::wrongFormat:
        return qtTrId("list_file_no_lists");
    case Fault::wrongVersion:
        return qtTrId("list_file_wrong_version").arg(error.detail);
    case Fault::emptyName:
        return qtTrId("list_file_empty_name").arg(error.detail);
    case Fault::notASite:
        return qtTrId("list_file_not_a_site").arg(error.detail);
    }
    return {};
}

} // namespace

QString blockListFileErrorText(const BlockListFileError& error) {
    return error.line > 0 ? qtTrId("list_file_line").arg(QString::number(error.line), sentence(error))
                          : sentence(error);
}

QByteArray blockListFileText(const BlockLists& lists) {
    const auto member = [](QLatin1String key, const QByteArray& value) {
        return "    \"" + QByteArray(key.data(), key.size()) + "\": " + value;
    };
    const QByteArrayList members{
        member(formatKey, quoted(formatName)),
        member(versionKey, QByteArray(versionNumber.data(), versionNumber.size())),
        member(blockedAppsMember, listText(lists.blockedAppBundleIDs, "    ")),
        member(whitelistedAppsMember, listText(lists.whitelistedAppBundleIDs, "    ")),
        member(blockedSitesMember, sitesText(lists.browserBlockedSites)),
        member(whitelistedSitesMember, sitesText(lists.browserWhitelistedSites)),
    };
    return "{\n" + members.join(",\n") + "\n}\n";
}

std::variant<BlockLists, BlockListFileError> blockListsFromText(const QByteArray& text) {
    if (text.size() > largestFile)
        return error(Fault::tooLarge, 0);
    QJsonParseError parseError;
    static_cast<void>(QJsonDocument::fromJson(text, &parseError));
    if (parseError.error != QJsonParseError::NoError)
        return error(Fault::notJson, lineAt(text, parseError.offset), parseError.errorString());
    const JsonNode root = jsonOutline(text);
    QHash<QString, const JsonNode*> members;
    BlockLists lists;
    Problem problem = takeApart(root, members);
    if (!problem)
        problem = checkHeader(members);
    if (!problem)
        problem = takeLists(members, lists);
    if (problem)
        return *problem;
    return lists;
}

std::variant<BlockLists, BlockListFileError> readBlockListFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return error(Fault::unreadable, 0, file.errorString());
    const QByteArray text = file.read(largestFile + 1);
    if (file.error() != QFileDevice::NoError)
        return error(Fault::unreadable, 0, file.errorString());
    return blockListsFromText(text);
}

QString writeBlockListFile(const QString& path, const BlockLists& lists) {
    QSaveFile file(path);
    const QByteArray text = blockListFileText(lists);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush() ||
        !file.commit())
        return file.errorString();
    return {};
}

} // namespace norvin
