#include "platform/Log.h"
#include "platform/fake/FakeClock.h"
#include "platform/fake/FakePreferences.h"
#include "services/LicenseService.h"
#include "tests/services/LicenseIssuer.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTimeZone>
#include <QtTest>

using namespace norvin;

namespace {

const QByteArray fields = "product: Norvin Focus\n"
                          "name: Ada Łovelace\n"
                          "email: ada@example.org\n"
                          "issued: 2025-01-01\n";

} // namespace

class LicenseServiceTest final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        setLogSink([](const QString&) {});
    }
    void init() {
        m_directory = std::make_unique<QTemporaryDir>();
        m_preferences = std::make_unique<FakePreferences>();
        m_clock = std::make_unique<FakeClock>(); // 10 March 2025
        m_oldest.reset();
    }
    void keysAreReadInBothNotations();
    void onlyWhatWasSignedIsALicence_data();
    void onlyWhatWasSignedIsALicence();
    void survivesTheWayThroughALetter();
    void aBuildWithoutAKeyKeepsNothingAndNeverRefuses();
    void theTrialEndsOnTheFifteenthDay();
    void theTrialIsNotLengthened_data();
    void theTrialIsNotLengthened();
    void aLicenceOpensTheGateUntilItIsOver();
    void aBadFileNeverReplacesAGoodOne();

private:
    std::unique_ptr<LicenseService> service(const QByteArray& key) {
        return std::make_unique<LicenseService>(
            key, LicenseService::Collaborators{.preferences = *m_preferences,
                                               .clock = *m_clock,
                                               .file = file(),
                                               .oldestRecord = [this] { return m_oldest; }});
    }
    std::unique_ptr<LicenseService> service() { return service(m_issuer.publicKey()); }
    [[nodiscard]] QString file() const { return m_directory->filePath(QStringLiteral("kept/licence.txt")); }
    [[nodiscard]] QByteArray keptFile() const {
        QFile kept(file());
        return kept.open(QIODevice::ReadOnly) ? kept.readAll() : QByteArray();
    }
    void setDay(int month, int day) {
        m_clock->setNow(QDateTime(QDate(2025, month, day), QTime(12, 0), QTimeZone::utc()));
    }

    LicenseIssuer m_issuer;
    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<FakePreferences> m_preferences;
    std::unique_ptr<FakeClock> m_clock;
    std::optional<QDateTime> m_oldest;
};

void LicenseServiceTest::keysAreReadInBothNotations() {
    const QByteArray key = m_issuer.publicKey();
    QCOMPARE(parseLicenseKey(key.toHex()), std::optional(key));
    QCOMPARE(parseLicenseKey(key.toBase64() + '\n'), std::optional(key));
    for (const QByteArray& bad :
         {QByteArray(), key.toHex().chopped(2), QByteArray(64, 'g'), key.toBase64().chopped(4)})
        QVERIFY(!parseLicenseKey(bad));
}

void LicenseServiceTest::onlyWhatWasSignedIsALicence_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");
    const QByteArray good = m_issuer.sign(fields);
    QTest::newRow("good") << good << "";
    QTest::newRow("changed name") << QByteArray(good).replace("Ada", "Eve") << "licence_bad_signature";
    QTest::newRow("field added") << "expires: 2099-01-01\n" + good << "licence_bad_signature";
    QTest::newRow("other key") << LicenseIssuer().sign(fields) << "licence_bad_signature";
    QTest::newRow("signature cut") << good.chopped(9) << "licence_bad_signature";
    QTest::newRow("signature of zeros")
        << fields + "signature: " + QByteArray(64, '\0').toBase64() << "licence_bad_signature";
    QTest::newRow("other product") << m_issuer.sign(QByteArray(fields).replace("Norvin Focus", "Other"))
                                   << "licence_other_product";
    QTest::newRow("no name") << m_issuer.sign(QByteArray(fields).replace("name:", "names:"))
                             << "licence_unreadable";
    QTest::newRow("no such day") << m_issuer.sign(fields + "expires: 2025-02-30\n") << "licence_unreadable";
    QTest::newRow("twice the same field") << m_issuer.sign(fields + "name: Eve\n") << "licence_unreadable";
    QTest::newRow("more after the signature") << good + "name: Eve\n"
                                              << "licence_unreadable";
    QTest::newRow("no signature") << fields << "licence_unreadable";
    QTest::newRow("empty") << QByteArray() << "licence_unreadable";
    QTest::newRow("too long") << m_issuer.sign(fields + "note: " + QByteArray(largestLicense, 'x') + '\n')
                              << "licence_unreadable";
    QTest::newRow("zeros") << QByteArray(200, '\0') << "licence_unreadable";
}

void LicenseServiceTest::onlyWhatWasSignedIsALicence() {
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    const auto read = readLicense(text, m_issuer.publicKey());
    if (reason.isEmpty())
        QCOMPARE(std::get<License>(read).name, QStringLiteral("Ada Łovelace"));
    else
        QCOMPARE(std::get<LicenseProblem>(read).reasonKey, reason);
}

void LicenseServiceTest::survivesTheWayThroughALetter() {
    const QByteArray sent = m_issuer.sign(fields + "seats: 3\nexpires: 2026-01-01\n");
    const QByteArray arrived =
        "\xEF\xBB\xBF# Your licence\r\n\r\n" + QByteArray(sent).replace("\n", "  \r\n\r\n  ");
    const License license = std::get<License>(readLicense(arrived, m_issuer.publicKey()));
    QCOMPARE(license.expires, std::optional(QDate(2026, 1, 1)));
    QCOMPARE(license.email, QStringLiteral("ada@example.org"));
}

void LicenseServiceTest::aBuildWithoutAKeyKeepsNothingAndNeverRefuses() {
    const auto service = this->service({});
    m_oldest = QDateTime(QDate(2001, 1, 1), QTime(0, 0));
    setDay(12, 31);
    QVERIFY(!service->refusal());
    QCOMPARE(service->kind(), QStringLiteral("free"));
    QVERIFY(m_preferences->values().isEmpty());
    QVERIFY(!service->installText(QString::fromUtf8(m_issuer.sign(fields))));
}

void LicenseServiceTest::theTrialEndsOnTheFifteenthDay() {
    auto service = this->service();
    QCOMPARE(service->trialDaysLeft(), 14);
    QCOMPARE(service->kind(), QStringLiteral("trial"));
    QSignalSpy changed(service.get(), &LicenseService::changed);
    setDay(3, 23);
    QVERIFY(!service->refusal());
    QCOMPARE(service->trialDaysLeft(), 1);
    setDay(3, 24);
    QCOMPARE(service->refusal(), std::optional(QStringLiteral("refused_trial_over")));
    QCOMPARE(service->kind(), QStringLiteral("expired"));
    QCOMPARE(changed.size(), 2);
    QVERIFY(!this->service()->isUseAllowed()); // the next launch
}

void LicenseServiceTest::theTrialIsNotLengthened_data() {
    QTest::addColumn<bool>("forgetsPreferences");
    QTest::addColumn<int>("day");
    QTest::newRow("by a clock set back after the end") << false << 11;
    QTest::newRow("by a clock set back before the beginning") << false << 1;
    QTest::newRow("by forgetting the preferences") << true << 26;
}

void LicenseServiceTest::theTrialIsNotLengthened() {
    QFETCH(bool, forgetsPreferences);
    QFETCH(int, day);
    static_cast<void>(service());
    setDay(3, 25);
    QVERIFY(service()->refusal());
    setDay(3, day);
    if (forgetsPreferences) {
        m_preferences = std::make_unique<FakePreferences>();
        m_oldest = QDateTime(QDate(2025, 3, 11), QTime(9, 0), QTimeZone::utc());
    }
    QCOMPARE(service()->refusal(), std::optional(QStringLiteral("refused_trial_over")));
}

void LicenseServiceTest::aLicenceOpensTheGateUntilItIsOver() {
    m_oldest = QDateTime(QDate(2024, 1, 1), QTime(9, 0), QTimeZone::utc());
    auto service = this->service();
    QVERIFY(service->refusal());
    QVERIFY(service->installText(QString::fromUtf8(m_issuer.sign(fields + "expires: 2025-05-01\n"))));
    service = this->service();
    QCOMPARE(service->kind(), QStringLiteral("licensed"));
    QCOMPARE(service->holder(), QStringLiteral("Ada Łovelace"));
    setDay(5, 1);
    QVERIFY(!service->refusal());
    setDay(5, 2);
    QCOMPARE(service->refusal(), std::optional(QStringLiteral("refused_licence_over")));
    QCOMPARE(service->kind(), QStringLiteral("expired"));
    // One that is over is not taken; one without end is, also from a file.
    QVERIFY(!service->installText(QString::fromUtf8(m_issuer.sign(fields + "expires: 2025-04-01\n"))));
    QCOMPARE(service->problemKey(), QStringLiteral("licence_over"));
    QFile chosen(m_directory->filePath(QStringLiteral("chosen.txt")));
    QVERIFY(chosen.open(QIODevice::WriteOnly));
    chosen.write(m_issuer.sign(fields));
    chosen.close();
    QVERIFY(service->installFile(QUrl::fromLocalFile(chosen.fileName())));
    QVERIFY(!service->refusal());
    QVERIFY(!service->expiry().isValid());
    QVERIFY(service->problemKey().isEmpty());
}

void LicenseServiceTest::aBadFileNeverReplacesAGoodOne() {
    auto service = this->service();
    const QByteArray good = m_issuer.sign(fields);
    QVERIFY(service->installText(QString::fromUtf8(good)));
    QVERIFY(!service->installText(QStringLiteral("nonsense")));
    QVERIFY(!service->installFile(QUrl::fromLocalFile(QStringLiteral("/nowhere/licence.txt"))));
    QCOMPARE(service->problemKey(), QStringLiteral("licence_unreadable"));
    QCOMPARE(service->kind(), QStringLiteral("licensed"));
    service->forgetProblem();
    QVERIFY(service->problemKey().isEmpty());
    QCOMPARE(keptFile(), good);

    // What was damaged later is named, and the trial goes on.
    QFile kept(file());
    QVERIFY(kept.open(QIODevice::WriteOnly));
    kept.write(good.chopped(40));
    kept.close();
    service = this->service();
    QCOMPARE(service->kind(), QStringLiteral("invalid"));
    QCOMPARE(service->problemKey(), QStringLiteral("licence_bad_signature"));
    QVERIFY(service->isUseAllowed());
}

QTEST_GUILESS_MAIN(LicenseServiceTest)
#include "tst_LicenseService.moc"
