#include "sound/AmbientGenerator.h"

#include <QtTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <map>
#include <numbers>
#include <span>

using namespace norvin;

Q_DECLARE_METATYPE(norvin::AmbientSound)

namespace {

constexpr int rate = AmbientGenerator::sampleRate;
using Samples = std::vector<float>;

std::vector<SoundFrame> render(AmbientSound sound, int seconds, std::uint64_t seed) {
    const auto generator = makeAmbientGenerator(sound, seed);
    constexpr size_t block = AmbientGenerator::blockFrames;
    std::vector<SoundFrame> frames(static_cast<size_t>(seconds) * rate / block * block);
    for (size_t i = 0; i < frames.size(); i += block)
        generator->render(AmbientGenerator::Block(&frames[i], block));
    return frames;
}

/// Of some seconds, which is enough to see where its power lies.
Samples leftOf(const std::vector<SoundFrame>& frames) {
    Samples samples;
    for (const SoundFrame& frame : std::span(frames).first(15 * rate))
        samples.push_back(frame.left);
    return samples;
}

double decibels(double power) {
    return 10 * std::log10(power);
}

/// A second-order filter, by the pitch and sharpness of its analogue model.
class Biquad {
public:
    static Biquad highShelf(double pitch, double sharpness, double gain) {
        const double k = std::tan(std::numbers::pi * pitch / rate);
        const double high = std::pow(10, gain / 20);
        const double middle = std::sqrt(high);
        const double a = 1 + k / sharpness + k * k;
        return {(high + middle * k / sharpness + k * k) / a, 2 * (k * k - high) / a,
                (high - middle * k / sharpness + k * k) / a, 2 * (k * k - 1) / a,
                (1 - k / sharpness + k * k) / a};
    }
    static Biquad highPass(double pitch, double sharpness) {
        const double k = std::tan(std::numbers::pi * pitch / rate);
        const double a = 1 + k / sharpness + k * k;
        return {1 / a, -2 / a, 1 / a, 2 * (k * k - 1) / a, (1 - k / sharpness + k * k) / a};
    }
    double next(double x) {
        const double y = m_b0 * x + m_s1;
        m_s1 = m_b1 * x - m_a1 * y + m_s2;
        m_s2 = m_b2 * x - m_a2 * y;
        return y;
    }

private:
    Biquad(double b0, double b1, double b2, double a1, double a2)
        : m_b0(b0)
        , m_b1(b1)
        , m_b2(b2)
        , m_a1(a1)
        , m_a2(a2) {}

    double m_b0, m_b1, m_b2, m_a1, m_a2;
    double m_s1 = 0;
    double m_s2 = 0;
};

/// Power as it is felt: the lowest pitches hardly count, the upper ones more; in loudness units of full
/// scale.
double loudness(const std::vector<SoundFrame>& frames) {
    double power = 0;
    for (const auto channel : {&SoundFrame::left, &SoundFrame::right}) {
        Biquad shelf = Biquad::highShelf(1682, 0.707, 4);
        Biquad high = Biquad::highPass(38, 0.5);
        for (const SoundFrame& frame : frames) {
            const double felt = high.next(shelf.next(static_cast<double>(frame.*channel)));
            power += felt * felt;
        }
    }
    return decibels(power / static_cast<double>(frames.size())) - 0.691;
}

/// Power around a pitch, in equal widths.
double powerAt(const Samples& samples, double pitch) {
    constexpr size_t window = 8192;
    double power = 0;
    for (size_t start = 0; start + window <= samples.size(); start += window) {
        std::complex<double> sum;
        const std::complex<double> turn = std::polar(1.0, -2 * std::numbers::pi * pitch / rate);
        std::complex<double> point = 1;
        for (size_t i = 0; i < window; ++i) {
            const double bell = 0.5 - 0.5 * std::cos(2 * std::numbers::pi * static_cast<double>(i) / window);
            sum += bell * static_cast<double>(samples[start + i]) * point;
            point *= turn;
        }
        power += std::norm(sum);
    }
    return power;
}

/// Decibels an octave, over pitches an octave apart.
double slope(const Samples& samples, double lowest, int octaves) {
    std::vector<double> levels;
    for (int octave = 0; octave <= octaves; ++octave) {
        double sum = 0;
        for (const double part : {0.85, 0.95, 1.05, 1.15})
            sum += powerAt(samples, lowest * std::exp2(octave) * part);
        levels.push_back(decibels(sum));
    }
    const double middle = octaves / 2.0;
    double numerator = 0;
    double denominator = 0;
    for (int octave = 0; octave <= octaves; ++octave) {
        numerator += (octave - middle) * levels[static_cast<size_t>(octave)];
        denominator += (octave - middle) * (octave - middle);
    }
    return numerator / denominator;
}

} // namespace

class AmbientGeneratorTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void soundsAreAsLoudAsEachOtherAndClean_data() { allSounds(); }
    void soundsAreAsLoudAsEachOtherAndClean();
    void nothingComesRoundAgainWithinAMinute_data() { allSounds(); }
    void nothingComesRoundAgainWithinAMinute();
    void noisesHaveTheirColours();
    void bothEarsHearTheSameTones();

private:
    static void allSounds() {
        QTest::addColumn<AmbientSound>("sound");
        for (const AmbientSound sound : allAmbientSounds())
            QTest::newRow(qPrintable(rawValue(sound))) << sound;
    }
    /// More than a minute of it.
    const std::vector<SoundFrame>& taken(AmbientSound sound) {
        auto& frames = m_taken[sound];
        if (frames.empty())
            frames = render(sound, 66, 7);
        return frames;
    }

    std::map<AmbientSound, std::vector<SoundFrame>> m_taken;
};

void AmbientGeneratorTest::soundsAreAsLoudAsEachOtherAndClean() {
    QFETCH(AmbientSound, sound);
    const std::vector<SoundFrame>& frames = taken(sound);
    const double loud = loudness(frames);
    QVERIFY2(loud > -28.5 && loud < -23.5, qPrintable(QString::number(loud)));

    float peak = 0;
    double sum = 0;
    double power = 0;
    for (const SoundFrame& frame : frames) {
        peak = std::max({peak, std::abs(frame.left), std::abs(frame.right)});
        sum += static_cast<double>(frame.left);
        power += static_cast<double>(frame.left) * static_cast<double>(frame.left);
    }
    QVERIFY2(peak < 0.9F, qPrintable(QString::number(static_cast<double>(peak))));
    const auto count = static_cast<double>(frames.size());
    QVERIFY2(std::abs(sum / count) < 0.02 * std::sqrt(power / count), "nothing steady is in it");

    // Where one block meets the next, the sound goes on as it does within them.
    double within = 0;
    double between = 0;
    for (size_t i = 2; i < frames.size(); ++i) {
        const auto bend = static_cast<double>(frames[i].left - 2 * frames[i - 1].left + frames[i - 2].left);
        (i % AmbientGenerator::blockFrames < 2 ? between : within) += bend * bend;
    }
    between /= 2;
    within /= AmbientGenerator::blockFrames - 2;
    QVERIFY2(std::abs(decibels(between / within)) < 0.5,
             qPrintable(QString::number(decibels(between / within))));
}

void AmbientGeneratorTest::nothingComesRoundAgainWithinAMinute() {
    QFETCH(AmbientSound, sound);
    // A part of it is looked for in all that follows, at a small part of the rate.
    constexpr size_t thinned = 32;
    Samples thin;
    const std::vector<SoundFrame>& frames = taken(sound);
    for (size_t i = 0; i + thinned <= frames.size(); i += thinned) {
        float sum = 0;
        for (size_t j = i; j < i + thinned; ++j)
            sum += frames[j].left;
        thin.push_back(sum);
    }
    constexpr size_t length = 2 * rate / thinned;
    constexpr size_t start = rate / thinned;
    const auto power = [&thin](size_t from) {
        double sum = 0;
        for (size_t i = from; i < from + length; ++i)
            sum += static_cast<double>(thin[i]) * static_cast<double>(thin[i]);
        return sum;
    };
    const double own = power(start);
    double there = power(start + length);
    double best = 0;
    for (size_t from = start + length; from + length < thin.size(); ++from) {
        float product = 0;
        for (size_t i = 0; i < length; i += 2)
            product += thin[start + i] * thin[from + i];
        best = std::max(best, 2 * static_cast<double>(product) / std::sqrt(own * there));
        there += static_cast<double>(thin[from + length] * thin[from + length] - thin[from] * thin[from]);
    }
    QVERIFY2(best < 0.97, qPrintable(QString::number(best)));
    QVERIFY2(render(sound, 1, 7) != render(sound, 1, 8), "another time is another course");
}

void AmbientGeneratorTest::noisesHaveTheirColours() {
    for (const auto& [sound, expected] : {std::pair{AmbientSound::whiteNoise, 0.0},
                                          {AmbientSound::pinkNoise, -3.01},
                                          {AmbientSound::brownNoise, -6.02}}) {
        const double found = slope(leftOf(taken(sound)), 125, 6);
        QVERIFY2(std::abs(found - expected) < 0.5,
                 qPrintable(rawValue(sound) + u' ' + QString::number(found)));
    }
    const Samples grey = leftOf(taken(AmbientSound::greyNoise));
    QVERIFY(powerAt(grey, 60) > 4 * powerAt(grey, 1000));
    QVERIFY(powerAt(grey, 3500) < powerAt(grey, 1000));
    QVERIFY(powerAt(grey, 12000) > powerAt(grey, 3500));
}

// Different pitches left and right would beat in the head.
void AmbientGeneratorTest::bothEarsHearTheSameTones() {
    for (const AmbientSound sound :
         {AmbientSound::lowDrone, AmbientSound::softPads, AmbientSound::singingBowls}) {
        const std::vector<SoundFrame>& frames = taken(sound);
        double both = 0;
        double left = 0;
        double right = 0;
        for (const SoundFrame& frame : frames) {
            both += static_cast<double>(frame.left * frame.right);
            left += static_cast<double>(frame.left * frame.left);
            right += static_cast<double>(frame.right * frame.right);
        }
        QVERIFY2(both / std::sqrt(left * right) > 0.8, qPrintable(rawValue(sound)));
    }
}

QTEST_GUILESS_MAIN(AmbientGeneratorTest)
#include "tst_AmbientGenerator.moc"
