#include "platform/fake/FakeAudioOutput.h"
#include "platform/fake/FakeClock.h"
#include "platform/fake/FakePreferences.h"
#include "sound/TickSoundService.h"
#include "sound/TickSoundSettings.h"

#include <QSignalSpy>
#include <QtTest>

#include <cmath>

using namespace norvin;
using namespace std::chrono_literals;

namespace {

const QString typeKey = QStringLiteral("tick_sound_type");
const QString enabledKey = QStringLiteral("tick_sound_enabled");
const QString volumeKey = QStringLiteral("tick_sound_volume");

/// Cycles of a buffer's wave, told by its changes of sign; the pitch follows from the length.
double pitchOf(const std::vector<float>& samples) {
    int changes = 0;
    for (size_t i = 2; i < samples.size(); ++i)
        changes += (samples[i - 1] < 0) != (samples[i] < 0) ? 1 : 0;
    return changes / 2.0 * 44100 / static_cast<double>(samples.size());
}

} // namespace

class TickSoundServiceTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aTickIsADampedSine_data();
    void aTickIsADampedSine();
    void ticksAlternateWhileEnabled();
    void aSilentTickIsStillATick();
    void settingsAreStoredAtOnce();
    void storedSettingsAreTakenUp_data();
    void storedSettingsAreTakenUp();
    void theSheetPlaysWhatIsChosen();

private:
    FakeClock m_clock;
};

void TickSoundServiceTest::aTickIsADampedSine_data() {
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isOdd");
    QTest::addColumn<double>("frequency");
    QTest::addColumn<int>("frames");
    QTest::addColumn<double>("decay");
    const auto row = [](const char* name, TickSoundType type, bool isOdd, double frequency, int frames,
                        double decay) {
        QTest::newRow(name) << static_cast<int>(type) << isOdd << frequency << frames << decay;
    };
    row("clock, tick", TickSoundType::clock, true, 1100, 3087, 12);
    row("clock, tock", TickSoundType::clock, false, 860, 3087, 12);
    row("digital, tick", TickSoundType::digital, true, 900, 1984, 18);
    row("digital, tock", TickSoundType::digital, false, 900, 1984, 18);
    row("soft, tick", TickSoundType::soft, true, 520, 3969, 5);
    row("soft, tock", TickSoundType::soft, false, 520, 3969, 5);
    row("metronome, tick", TickSoundType::metronome, true, 1450, 1543, 30);
    row("metronome, tock", TickSoundType::metronome, false, 1100, 1543, 30);
}

void TickSoundServiceTest::aTickIsADampedSine() {
    QFETCH(int, type);
    QFETCH(bool, isOdd);
    QFETCH(double, frequency);
    QFETCH(int, frames);
    QFETCH(double, decay);
    FakePreferences preferences;
    FakeAudioOutput output(m_clock);
    TickSoundService service(output, preferences);
    service.setVolume(0.7);

    const std::vector<float> samples = service.generateBuffer(static_cast<TickSoundType>(type), isOdd);
    QCOMPARE(static_cast<int>(samples.size()), frames);
    QCOMPARE(samples.front(), 0.0F);
    // In more precision than the service has, so that only its rounding is left over.
    const long double full = 2 * std::acos(-1.0L) * static_cast<long double>(frequency);
    for (int i = 0; i < frames; ++i) {
        const long double envelope =
            i <= 131 ? i / 132.0L : std::exp(-static_cast<long double>(decay) * (i - 132) / (frames - 132));
        const long double expected = std::sin(full * i / 44100) * envelope * 0.7F;
        const auto difference = static_cast<double>(samples[static_cast<size_t>(i)] - expected);
        QVERIFY2(std::abs(difference) <= 1.2e-7, qPrintable(QStringLiteral("frame %1").arg(i)));
    }

    // The ends of both pieces of the envelope, where the wave itself is known.
    const auto envelopeAt = [&](int frame) {
        const double wave = std::sin(2 * std::acos(-1.0) * frequency * frame / 44100);
        return static_cast<double>(samples[static_cast<size_t>(frame)]) / wave / static_cast<double>(0.7F);
    };
    QVERIFY(std::abs(envelopeAt(131) - 131.0 / 132) < 1e-6);
    QVERIFY(std::abs(envelopeAt(132) - 1.0) < 1e-6);
    const double last = std::exp(-decay * (frames - 133) / (frames - 132));
    QVERIFY(std::abs(envelopeAt(frames - 1) / last - 1.0) < 1e-5);
}

void TickSoundServiceTest::ticksAlternateWhileEnabled() {
    FakePreferences preferences;
    FakeAudioOutput output(m_clock);
    TickSoundService service(output, preferences);
    const auto tick = [&] {
        m_clock.advance(1s);
        service.play();
    };
    tick();
    tick();
    service.setEnabled(false);
    tick();
    QCOMPARE(service.tickCount(), 2);
    service.setEnabled(true);
    // Hearing a sample does not change whose turn it is.
    service.playSample();
    tick();
    QCOMPARE(service.tickCount(), 3);
    service.setSelectedType(TickSoundType::metronome);
    tick();

    QCOMPARE(output.played().size(), size_t{5});
    const std::array<double, 5> pitches{1100, 860, 1100, 1100, 1100};
    for (size_t i = 0; i < pitches.size(); ++i)
        QVERIFY(std::abs(pitchOf(output.played()[i].samples) - pitches[i]) < 30);
    QCOMPARE(output.played()[4].samples.size(), size_t{1543});
}

void TickSoundServiceTest::aSilentTickIsStillATick() {
    FakePreferences preferences;
    FakeAudioOutput output(m_clock);
    TickSoundService service(output, preferences);
    service.setVolume(0);
    service.play();
    QCOMPARE(service.tickCount(), 1);
    QCOMPARE(output.played().size(), size_t{1});
    QCOMPARE(output.played()[0].samples, std::vector<float>(3087, 0.0F));

    // Ticks that come too close wait for each other.
    service.setVolume(1);
    service.play();
    QCOMPARE(output.played()[1].start - output.played()[0].start, 70ms);
}

void TickSoundServiceTest::settingsAreStoredAtOnce() {
    FakePreferences preferences;
    FakeAudioOutput output(m_clock);
    TickSoundService service(output, preferences);
    QVERIFY(service.isEnabled());
    QCOMPARE(service.selectedType(), TickSoundType::clock);
    QCOMPARE(service.volume(), 0.5);
    QVERIFY2(preferences.values().isEmpty(), "defaults are not written down");

    QSignalSpy written(&preferences, &Preferences::changed);
    service.setSelectedType(TickSoundType::soft);
    service.setEnabled(false);
    service.setVolume(1.5);
    service.setVolume(1.0);
    QCOMPARE(written.size(), 3);
    QCOMPARE(preferences.value(typeKey)->toString(), QStringLiteral("soft"));
    QCOMPARE(*preferences.value(enabledKey), QVariant(false));
    QCOMPARE(*preferences.value(volumeKey), QVariant(1.0));

    const TickSoundService next(output, preferences);
    QCOMPARE(next.selectedType(), TickSoundType::soft);
    QVERIFY(!next.isEnabled());
    QCOMPARE(next.volume(), 1.0);
}

void TickSoundServiceTest::storedSettingsAreTakenUp_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("taken");
    QTest::newRow("character") << typeKey << QVariant(QStringLiteral("digital"))
                               << QStringLiteral("digital on 0.5");
    QTest::newRow("no character") << typeKey << QVariant(QStringLiteral("Clock "))
                                  << QStringLiteral("clock on 0.5");
    QTest::newRow("off, as text") << enabledKey << QVariant(QStringLiteral("false"))
                                  << QStringLiteral("clock off 0.5");
    QTest::newRow("no switch") << enabledKey << QVariant(QStringLiteral("never"))
                               << QStringLiteral("clock on 0.5");
    QTest::newRow("volume, as text") << volumeKey << QVariant(QStringLiteral("0.25"))
                                     << QStringLiteral("clock on 0.25");
    QTest::newRow("too loud") << volumeKey << QVariant(7) << QStringLiteral("clock on 1");
    QTest::newRow("below silence") << volumeKey << QVariant(-0.1) << QStringLiteral("clock on 0");
    QTest::newRow("no volume") << volumeKey << QVariant(QStringLiteral("loud"))
                               << QStringLiteral("clock on 0.5");
    QTest::newRow("not a number") << volumeKey << QVariant(QStringLiteral("nan"))
                                  << QStringLiteral("clock on 0.5");
}

void TickSoundServiceTest::storedSettingsAreTakenUp() {
    QFETCH(QString, key);
    QFETCH(QVariant, stored);
    QFETCH(QString, taken);
    FakePreferences preferences;
    preferences.setValue(key, stored);
    FakeAudioOutput output(m_clock);
    const TickSoundService service(output, preferences);
    QCOMPARE(QStringLiteral("%1 %2 %3")
                 .arg(rawValue(service.selectedType()),
                      service.isEnabled() ? QStringLiteral("on") : QStringLiteral("off"))
                 .arg(service.volume()),
             taken);
}

void TickSoundServiceTest::theSheetPlaysWhatIsChosen() {
    FakePreferences preferences;
    FakeAudioOutput output(m_clock);
    TickSoundService service(output, preferences);
    TickSoundSettings settings(service, output);
    QCOMPARE(settings.types(), QStringList({QStringLiteral("clock"), QStringLiteral("digital"),
                                            QStringLiteral("soft"), QStringLiteral("metronome")}));
    settings.setEnabled(false);
    settings.setSelectedType(QStringLiteral("digital"));
    settings.setSelectedType(QStringLiteral("digital"));
    settings.setSelectedType(QStringLiteral("gong"));
    QCOMPARE(settings.selectedType(), QStringLiteral("digital"));
    QCOMPARE(output.played().size(), size_t{1});
    QCOMPARE(output.played()[0].samples.size(), size_t{1984});

    // A volume between two steps of the slider is not rounded by merely showing it.
    service.setVolume(0.333);
    QCOMPARE(settings.volumePercent(), 33);
    settings.setVolumePercent(33);
    QCOMPARE(service.volume(), 0.333);
    settings.setVolumePercent(34);
    QCOMPARE(service.volume(), 0.34);

    QSignalSpy problems(&settings, &TickSoundSettings::problemKeyChanged);
    output.setAvailability(Availability::unavailable(QStringLiteral("health_no_sound_server")));
    QCOMPARE(problems.size(), 1);
    QCOMPARE(settings.problemKey(), QStringLiteral("health_no_sound_server"));
}

QTEST_GUILESS_MAIN(TickSoundServiceTest)
#include "tst_TickSoundService.moc"
