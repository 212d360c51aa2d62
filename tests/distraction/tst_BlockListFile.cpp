#include "distraction/BlockListFile.h"

#include <QTemporaryDir>
#include <QTest>

using namespace norvin;
using Fault = BlockListFileError::Fault;

Q_DECLARE_METATYPE(norvin::BlockListFileError::Fault)

class tst_BlockListFile final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void writtenListsAreReadBackTheSame();
    void equalListsGiveEqualFiles();
    void badFilesAreRefusedWithTheirLine_data();
    void badFilesAreRefusedWithTheirLine();
    void sitesAreReducedLikePastedOnes();
    void whatTheDiskSaysIsToldToTheUser();
};

namespace {

QSet<QString> texts(std::initializer_list<const char*> list) {
    QSet<QString> result;
    for (const char* text : list)
        result.insert(QString::fromUtf8(text));
    return result;
}

BlockLists someLists() {
    BlockLists lists;
    lists.blockedAppBundleIDs = texts({"org.example.Game", "org.example.\"Odd\" \\ name", "été"});
    lists.whitelistedAppBundleIDs = texts({"org.example.Editor"});
    lists.browserWhitelistedSites[QStringLiteral("org.mozilla.firefox")] =
        texts({"docs.example.org", "xn--bcher-kva.example"});
    lists.browserBlockedSites[QStringLiteral("com.google.Chrome")] = texts({"b.org", "a.org"});
    lists.browserBlockedSites[QStringLiteral("org.mozilla.firefox")] = texts({"a.org"});
    return lists;
}

/// A good file of nine lines, so that a fault can be put into one of them.
QByteArrayList goodLines() {
    return {"{",
            "  \"format\": \"norvin-focus-block-lists\",",
            "  \"version\": 1,",
            "  \"blockedApps\": [\"org.example.Game\"],",
            "  \"whitelistedApps\": [],",
            "  \"blockedSites\": {\"org.mozilla.firefox\": [\"a.org\",",
            "     \"b.org\"]},",
            "  \"whitelistedSites\": {}",
            "}"};
}

} // namespace

void tst_BlockListFile::writtenListsAreReadBackTheSame() {
    for (const BlockLists& lists : {someLists(), BlockLists{}}) {
        const auto read = blockListsFromText(blockListFileText(lists));
        QVERIFY(std::holds_alternative<BlockLists>(read));
        QCOMPARE(std::get<BlockLists>(read), lists);
    }
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("lists.json"));
    QCOMPARE(writeBlockListFile(path, someLists()), QString());
    QCOMPARE(std::get<BlockLists>(readBlockListFile(path)), someLists());
}

void tst_BlockListFile::equalListsGiveEqualFiles() {
    // The order in which entries came must not show.
    BlockLists again;
    again.browserBlockedSites[QStringLiteral("org.mozilla.firefox")].insert(QStringLiteral("a.org"));
    again.browserBlockedSites[QStringLiteral("com.google.Chrome")].insert(QStringLiteral("a.org"));
    again.browserBlockedSites[QStringLiteral("com.google.Chrome")].insert(QStringLiteral("b.org"));
    BlockLists rest = someLists();
    rest.browserBlockedSites.clear();
    QCOMPARE(blockListFileText(unitedLists(again, rest)), blockListFileText(someLists()));
    const QByteArray text = blockListFileText(someLists());
    QVERIFY(text.indexOf("\"a.org\"") < text.indexOf("\"b.org\""));
}

void tst_BlockListFile::badFilesAreRefusedWithTheirLine_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<int>("line");
    const auto row = [](const char* name, int line, const QByteArray& replacement, Fault fault) {
        QByteArrayList lines = goodLines();
        lines[line - 1] = replacement;
        QTest::newRow(name) << lines.join('\n') << fault << line;
    };
    row("comma missing", 5, "  \"whitelistedApps\": [] \"x\"", Fault::notJson);
    row("stray word", 7, "     b.org]},", Fault::notJson);
    row("unknown key", 5, "  \"whitelistedApps\": [], \"allowedApps\": [],", Fault::unknownKey);
    row("key twice", 5, "  \"whitelistedApps\": [], \"version\": 1,", Fault::repeatedKey);
    row("other format", 2, "  \"format\": \"something-else\",", Fault::wrongFormat);
    row("other version", 3, "  \"version\": 2,", Fault::wrongVersion);
    row("version as a text", 3, "  \"version\": \"1\",", Fault::wrongVersion);
    row("apps as a text", 4, "  \"blockedApps\": \"org.example.Game\",", Fault::notAList);
    row("app as a number", 4, "  \"blockedApps\": [\"a\", 7],", Fault::notAText);
    row("empty identifier", 4, "  \"blockedApps\": [\" \"],", Fault::emptyName);
    row("sites as a list", 8, "  \"whitelistedSites\": []", Fault::notAnObject);
    row("sites of a browser as a text", 8, "  \"whitelistedSites\": {\"x\": \"a.org\"}", Fault::notAList);
    row("browser twice", 8, "  \"whitelistedSites\": {\"x\": [\"a.org\"], \"x\": []}", Fault::repeatedKey);
    row("site that is none", 7, "     \"two words\"]},", Fault::notASite);
    row("escapes before the fault", 7, "     \"b\\u002eorg\", \"\\\"\"]},", Fault::notASite);

    QByteArrayList lines = goodLines();
    lines.removeAt(4);
    QTest::newRow("key missing") << lines.join('\n') << Fault::missingKey << 1;
    QTest::newRow("cut short") << goodLines().mid(0, 6).join('\n') << Fault::notJson << 6;
    QTest::newRow("not an object") << QByteArray("\n\n[]") << Fault::notAnObject << 3;
    QTest::newRow("empty") << QByteArray() << Fault::notJson << 1;
    QTest::newRow("not UTF-8") << goodLines().join('\n').replace("b.org", "b\xff.org") << Fault::notJson << 7;
    QTest::newRow("too large") << QByteArray(17 * 1024 * 1024, ' ') << Fault::tooLarge << 0;
}

void tst_BlockListFile::badFilesAreRefusedWithTheirLine() {
    QFETCH(QByteArray, text);
    const auto read = blockListsFromText(text);
    QVERIFY(std::holds_alternative<BlockListFileError>(read));
    const BlockListFileError error = std::get<BlockListFileError>(read);
    QTEST(error.fault, "fault");
    QTEST(error.line, "line");
    // The same with the line ends of other systems, and behind a byte-order mark.
    if (error.fault != Fault::notJson && error.fault != Fault::tooLarge) {
        QCOMPARE(
            std::get<BlockListFileError>(blockListsFromText("\xef\xbb\xbf" + text.replace("\n", "\r\n"))),
            error);
    }
}

void tst_BlockListFile::sitesAreReducedLikePastedOnes() {
    QByteArray text = goodLines().join('\n');
    text.replace("b.org", "https://www.B.org/page");
    const auto read = blockListsFromText(text);
    QVERIFY(std::holds_alternative<BlockLists>(read));
    QCOMPARE(std::get<BlockLists>(read).browserBlockedSites.value(QStringLiteral("org.mozilla.firefox")),
             texts({"a.org", "b.org"}));
}

void tst_BlockListFile::whatTheDiskSaysIsToldToTheUser() {
    QTemporaryDir folder;
    const QString missing = folder.filePath(QStringLiteral("missing/lists.json"));
    const auto error = std::get<BlockListFileError>(readBlockListFile(missing));
    QCOMPARE(error.fault, Fault::unreadable);
    QVERIFY(!error.detail.isEmpty());
    QVERIFY(!writeBlockListFile(missing, someLists()).isEmpty());
}

QTEST_APPLESS_MAIN(tst_BlockListFile)
#include "tst_BlockListFile.moc"
