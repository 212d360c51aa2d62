#include "platform/fake/FakeClock.h"
#include "platform/fake/FakePreferences.h"
#include "platform/fake/FakeSoundStream.h"
#include "sound/AmbientSoundService.h"

#include <QSignalSpy>
#include <QtTest>

#include <cmath>

using namespace norvin;
using namespace std::chrono_literals;

namespace {

using Heard = std::vector<SoundFrame>;

double level(const Heard& heard) {
    double sum = 0;
    for (const SoundFrame& frame : heard)
        sum += frame.left * frame.left + frame.right * frame.right;
    return std::sqrt(sum / static_cast<double>(2 * heard.size()));
}

/// The largest step from one frame to the next.
float steepest(const Heard& heard) {
    float step = 0;
    for (size_t i = 1; i < heard.size(); ++i)
        step = std::max(step, std::abs(heard[i].left - heard[i - 1].left));
    return step;
}

Heard operator+(Heard first, const Heard& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

} // namespace

class AmbientSoundServiceTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { restart(); }
    void cleanup() {
        service.reset();
        preferences = std::make_unique<FakePreferences>();
    }

    void theCatalogueHasEnoughOfEachKind();
    void whatIsSetIsStoredAndTakenUpAgain();
    void nonsenseInThePreferencesIsTheDefault();
    void soundFollowsTheSession();
    void whatTheUserAsksForHoldsUntilTheSessionChanges();
    void aChoiceInSilenceIsHeardForAMoment();
    void changesAreHeardSoonAndWithoutASpring();
    void aServerThatComesBackPlaysOn();

private:
    void restart() {
        service.reset();
        stream = std::make_unique<FakeSoundStream>();
        service = std::make_unique<AmbientSoundService>(*stream, *preferences, clock);
    }

    FakeClock clock;
    std::unique_ptr<FakePreferences> preferences = std::make_unique<FakePreferences>();
    std::unique_ptr<FakeSoundStream> stream;
    std::unique_ptr<AmbientSoundService> service;
};

void AmbientSoundServiceTest::theCatalogueHasEnoughOfEachKind() {
    QCOMPARE(service->categories(),
             (QList<QString>{QStringLiteral("nature"), QStringLiteral("noise"), QStringLiteral("focus")}));
    QSet<QString> all;
    for (const QString& category : service->categories()) {
        const QList<QString> sounds = service->soundsOf(category);
        QVERIFY(sounds.size() >= 4);
        for (const QString& sound : sounds) {
            QVERIFY2(!all.contains(sound), qPrintable(sound));
            all.insert(sound);
            service->setSelectedSound(sound);
            QCOMPARE(service->selectedCategory(), category);
        }
    }
    QCOMPARE(service->choices().size(), all.size() + 1);
}

void AmbientSoundServiceTest::whatIsSetIsStoredAndTakenUpAgain() {
    QVERIFY(service->selectedSound().isEmpty());
    QCOMPARE(service->volumePercent(), 50);
    service->setSelectedSound(QStringLiteral("rain"));
    service->setVolumePercent(35);
    QCOMPARE(preferences->value(QStringLiteral("selected_ambient_sound")), QVariant(QStringLiteral("rain")));
    QCOMPARE(preferences->value(QStringLiteral("ambient_sound_volume")), QVariant(0.35));
    restart();
    QCOMPARE(service->selectedSound(), QStringLiteral("rain"));
    QCOMPARE(service->volume(), 0.35);
    QVERIFY(!service->isPlaying());

    service->setSelectedSound(QStringLiteral("thunder"));
    QCOMPARE(service->selectedSound(), QStringLiteral("rain"));
    service->setSelectedSound(QString());
    QCOMPARE(preferences->value(QStringLiteral("selected_ambient_sound")), QVariant(QString()));
}

void AmbientSoundServiceTest::nonsenseInThePreferencesIsTheDefault() {
    preferences->setValue(QStringLiteral("selected_ambient_sound"), QStringLiteral("thunder"));
    preferences->setValue(QStringLiteral("ambient_sound_volume"), QStringLiteral("loud"));
    restart();
    QVERIFY(service->selectedSound().isEmpty());
    QCOMPARE(service->volume(), AmbientSoundService::defaultVolume);
    preferences->setValue(QStringLiteral("ambient_sound_volume"), QStringLiteral("7"));
    restart();
    QCOMPARE(service->volume(), 1.0);
}

void AmbientSoundServiceTest::soundFollowsTheSession() {
    preferences->setValue(QStringLiteral("selected_ambient_sound"), QStringLiteral("pink_noise"));
    restart();
    QSignalSpy changed(service.get(), &AmbientSoundService::isPlayingChanged);
    service->followSession(true);
    QVERIFY(service->isPlaying());
    const double begin = level(stream->hear(300ms));
    static_cast<void>(stream->hear(AmbientSoundService::sessionFadeIn));
    const double full = level(stream->hear(1s));
    QVERIFY2(begin < 0.2 * full, "it fades in");

    // A pause, or the end of it.
    service->followSession(false);
    QVERIFY(!service->isPlaying());
    static_cast<void>(stream->hear(AmbientSoundService::sessionFadeOut + 100ms));
    QCOMPARE(level(stream->hear(1s)), 0.0);
    static_cast<void>(stream->hear(2s));
    QVERIFY2(!stream->isPlaying(), "silence costs nothing");
    QCOMPARE(changed.size(), 2);

    // Nothing is chosen: nothing is played.
    service->setSelectedSound(QString());
    service->followSession(true);
    QVERIFY(!service->isPlaying());
    QVERIFY(!stream->isPlaying());
    // Chosen while the session runs, it stays.
    service->setSelectedSound(QStringLiteral("rain"));
    clock.advance(2 * AmbientSoundService::previewLength);
    QVERIFY(service->isPlaying());
}

void AmbientSoundServiceTest::whatTheUserAsksForHoldsUntilTheSessionChanges() {
    service->toggle();
    QVERIFY(service->isPlaying());
    QVERIFY2(!service->selectedSound().isEmpty(), "there is something to play");
    clock.advance(5min);
    QVERIFY(service->isPlaying());
    // A session that begins takes it over without a gap.
    static_cast<void>(stream->hear(2s));
    service->followSession(true);
    QVERIFY(level(stream->hear(200ms)) > 0);
    service->toggle();
    QVERIFY(!service->isPlaying());
    service->toggle();
    QVERIFY(service->isPlaying());
    service->stop();
    service->followSession(false);
    service->followSession(true);
    QVERIFY2(service->isPlaying(), "the next session has its sound");
    service->followSession(false);
    QVERIFY(!service->isPlaying());
}

void AmbientSoundServiceTest::aChoiceInSilenceIsHeardForAMoment() {
    service->setSelectedSound(QStringLiteral("rain"));
    QVERIFY(service->isPlaying());
    clock.advance(AmbientSoundService::previewLength - 1s);
    service->setSelectedSound(QStringLiteral("wind"));
    clock.advance(AmbientSoundService::previewLength - 1s);
    QVERIFY2(service->isPlaying(), "each choice has its time");
    clock.advance(1s);
    QVERIFY(!service->isPlaying());

    service->setSelectedSound(QStringLiteral("fire"));
    service->endPreview();
    QVERIFY(!service->isPlaying());
    // What is played for its own sake is not ended by those who only choose.
    service->play();
    service->setSelectedSound(QStringLiteral("rain"));
    service->endPreview();
    clock.advance(2 * AmbientSoundService::previewLength);
    QVERIFY(service->isPlaying());
    service->setSelectedSound(QString());
    QVERIFY(!service->isPlaying());
}

void AmbientSoundServiceTest::changesAreHeardSoonAndWithoutASpring() {
    service->setVolumePercent(100);
    service->setSelectedSound(QStringLiteral("brown_noise"));
    service->play();
    static_cast<void>(stream->hear(2s));
    Heard steady = stream->hear(1s);
    const float usual = steepest(steady);
    const double full = level(steady);

    // Sound is made 2.2 s ahead; none of that delays what is asked for.
    service->setVolumePercent(50);
    Heard change = stream->hear(200ms);
    const Heard quiet = stream->hear(1s);
    QVERIFY(std::abs(level(quiet) / full - 0.25) < 0.08);
    service->setVolumePercent(100);
    change = change + quiet + stream->hear(200ms);
    service->setSelectedSound(QStringLiteral("low_drone"));
    change = change + stream->hear(400ms);
    service->setSelectedSound(QStringLiteral("brown_noise"));
    service->stop();
    change = change + stream->hear(300ms);
    service->play();
    change = change + stream->hear(1500ms);
    service->stop();
    change = change + stream->hear(1s);
    QVERIFY2(steepest(change) < 1.3F * usual,
             qPrintable(QStringLiteral("%1 against %2").arg(steepest(change)).arg(usual)));
    QCOMPARE(level(stream->hear(1s)), 0.0);
}

void AmbientSoundServiceTest::aServerThatComesBackPlaysOn() {
    service->setSelectedSound(QStringLiteral("rain"));
    service->followSession(true);
    QSignalSpy changed(service.get(), &AmbientSoundService::problemKeyChanged);
    stream->setAvailability(Availability::unavailable(QStringLiteral("health_no_sound_server")));
    QCOMPARE(service->problemKey(), QStringLiteral("health_no_sound_server"));
    QVERIFY(service->isPlaying());
    QCOMPARE(level(stream->hear(1s)), 0.0);
    stream->setAvailability(Availability::available());
    QVERIFY(service->problemKey().isEmpty());
    QCOMPARE(changed.size(), 2);
    static_cast<void>(stream->hear(1s));
    QVERIFY(level(stream->hear(1s)) > 0.001);
}

QTEST_GUILESS_MAIN(AmbientSoundServiceTest)
#include "tst_AmbientSoundService.moc"
