#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>
#include <QtTest>

/// The texts against the sources that use them.
class TextsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyKeyThatIsUsedHasFinishedTexts();
    void noTextIsUnused();
    void bothLanguagesTakeTheSameArguments();
    void frenchTypographyIsKept();

private:
    using Texts = QMap<QString, QStringList>; // by key; several for plural forms
    static Texts texts(const QString& language);
    static QSet<QString> usedKeys();

    Texts m_english;
    Texts m_french;
    QSet<QString> m_used;
};

namespace {

const QString root = QStringLiteral(NORVIN_SOURCE_DIR);

/// Keys that are put together, or stored, rather than written out where they are used.
bool isMadeAtRunTime(const QString& key) {
    return key.startsWith(QLatin1String("category_")) || key.endsWith(QLatin1String("_remedy")) ||
           key == QLatin1String("today") || key == QLatin1String("tomorrow");
}

} // namespace

TextsTest::Texts TextsTest::texts(const QString& language) {
    QFile file(root + QStringLiteral("/i18n/norvin-focus_%1.ts").arg(language));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    Texts found;
    QXmlStreamReader xml(&file);
    QString key;
    bool isPlural = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const bool isUnfinished = xml.attributes().hasAttribute(QStringLiteral("type"));
        if (xml.name() == QLatin1String("message")) {
            key = xml.attributes().value(QStringLiteral("id")).toString();
            isPlural = xml.attributes().hasAttribute(QStringLiteral("numerus"));
        } else if (xml.name() == QLatin1String("numerusform") ||
                   (xml.name() == QLatin1String("translation") && !isPlural)) {
            found[key].append(isUnfinished ? QString() : xml.readElementText());
        }
    }
    return found;
}

QSet<QString> TextsTest::usedKeys() {
    static const QRegularExpression call(QStringLiteral(R"re(q[st]TrId\(\s*"([a-z0-9_]+)")re"));
    static const QRegularExpression written(QStringLiteral(
        R"re("((?:accessibility|action|ambience|attach|autostart|browser_restart|count|extension|feedback|health|licence|planning_file|refused|update|window_closed)_[a-z0-9_]+)")re"));
    QSet<QString> keys;
    for (const char* folder : {"app", "distraction", "focus", "model", "planning", "platform", "services",
                               "settings", "sound", "stats", "ui"}) {
        QDirIterator files(root + QLatin1Char('/') + QLatin1String(folder),
                           {QStringLiteral("*.cpp"), QStringLiteral("*.qml")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (file.fileName().contains(QLatin1String("/fake/")) || !file.open(QIODevice::ReadOnly))
                continue;
            const QString source = QString::fromUtf8(file.readAll());
            for (const QRegularExpression& expression : {call, written}) {
                for (auto match = expression.globalMatch(source); match.hasNext();)
                    keys.insert(match.next().captured(1));
            }
        }
    }
    return keys;
}

void TextsTest::initTestCase() {
    m_english = texts(QStringLiteral("en"));
    m_french = texts(QStringLiteral("fr"));
    m_used = usedKeys();
    QVERIFY(m_english.size() > 100);
    QVERIFY(m_used.size() > 100);
    QCOMPARE(m_french.keys(), m_english.keys());
}

void TextsTest::everyKeyThatIsUsedHasFinishedTexts() {
    for (const QString& key : std::as_const(m_used)) {
        for (const Texts& language : {m_english, m_french}) {
            const QStringList forms = language.value(key);
            QVERIFY2(!forms.isEmpty() && !forms.contains(QString()), qPrintable(key));
        }
        const bool isReason =
            key.startsWith(QLatin1String("health_")) && m_english.contains(key + QStringLiteral("_remedy"));
        QVERIFY2(!isReason || m_french.contains(key + QStringLiteral("_remedy")), qPrintable(key));
    }
}

void TextsTest::noTextIsUnused() {
    QStringList unused;
    for (auto it = m_english.cbegin(); it != m_english.cend(); ++it) {
        if (!m_used.contains(it.key()) && !isMadeAtRunTime(it.key()))
            unused.append(it.key());
    }
    QVERIFY2(unused.isEmpty(), qPrintable(unused.join(QLatin1Char(' '))));
}

void TextsTest::bothLanguagesTakeTheSameArguments() {
    static const QRegularExpression argument(QStringLiteral("%[0-9n]"));
    const auto arguments = [](const QString& text) {
        QStringList found;
        for (auto match = argument.globalMatch(text); match.hasNext();)
            found.append(match.next().captured());
        found.sort();
        return found;
    };
    for (auto it = m_english.cbegin(); it != m_english.cend(); ++it) {
        const QStringList french = m_french.value(it.key());
        QVERIFY2(french.size() == it.value().size(), qPrintable(it.key()));
        for (const QString& form : french)
            QVERIFY2(arguments(form) == arguments(it.value().constFirst()), qPrintable(it.key()));
    }
}

void TextsTest::frenchTypographyIsKept() {
    // A narrow no-break space belongs before these, and inside the quotation marks.
    static const QRegularExpression wrong(
        QStringLiteral("[^\\x{202f}](?:[;!?»]|:(?!//))|«(?!\\x{202f})|'|\""));
    for (auto it = m_french.cbegin(); it != m_french.cend(); ++it) {
        for (const QString& form : it.value())
            QVERIFY2(!wrong.match(form).hasMatch(), qPrintable(it.key() + QStringLiteral(": ") + form));
    }
}

QTEST_GUILESS_MAIN(TextsTest)
#include "tst_Texts.moc"
