#pragma once

#include "sound/AmbientGenerator.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <cstdint>
#include <numbers>
#include <vector>

// What ambient sounds are put together from. Times are in seconds, pitches in Hz; a block is one of
// AmbientGenerator's.
namespace norvin::ambient {

inline constexpr float rate = AmbientGenerator::sampleRate;
inline constexpr float blockSeconds = AmbientGenerator::blockFrames / rate;
inline constexpr float turn = 2 * std::numbers::pi_v<float>;

/// Random numbers: white noise, and everything that is left to chance.
class Random final {
public:
    explicit Random(std::uint64_t seed)
        // Also seeds that lie close together give courses that have nothing in common.
        : m_state((seed + 1) * 0x9E3779B97F4A7C15U) {
        for (int i = 0; i < 4; ++i)
            static_cast<void>(bits());
    }

    /// -1 to 1.
    float signedUnit() { return static_cast<float>(static_cast<std::int32_t>(bits())) * 0x1p-31F; }
    /// 0 to 1, never 0.
    float unit() { return (static_cast<float>(bits() >> 8) + 1) * 0x1p-24F; }
    float between(float low, float high) { return low + (high - low) * unit(); }
    /// Between pitches: each octave is as likely as every other.
    float pitchBetween(float low, float high) { return low * std::pow(high / low, unit()); }
    /// Frames until something that happens so many times a second happens next.
    int framesUntil(float timesASecond) {
        return 1 + static_cast<int>(std::min(-std::log(unit()) * rate / timesASecond, 1e8F));
    }
    /// -1 or 1.
    float sign() { return (bits() & 1) != 0 ? 1.0F : -1.0F; }
    size_t below(size_t count) { return bits() % count; }

private:
    std::uint32_t bits() {
        m_state ^= m_state >> 12;
        m_state ^= m_state << 25;
        m_state ^= m_state >> 27;
        return static_cast<std::uint32_t>((m_state * 0x2545F4914F6CDD1DU) >> 32);
    }

    std::uint64_t m_state;
};

/// Lets through what lies below a pitch, 6 dB an octave less above it.
class LowPass final {
public:
    explicit LowPass(float pitch = 1000) { setPitch(pitch); }
    void setPitch(float pitch) { m_share = 1 - std::exp(-turn * pitch / rate); }
    float next(float sample) { return m_value += m_share * (sample - m_value); }

private:
    float m_share = 0;
    float m_value = 0;
};

/// Lets through what lies above a pitch, and thereby no steady part.
class HighPass final {
public:
    explicit HighPass(float pitch)
        : m_low(pitch) {}
    float next(float sample) { return sample - m_low.next(sample); }

private:
    LowPass m_low;
};

/// Makes white noise lose 3 dB an octave, from 15 Hz up: low passes two octaves apart, each half as strong as
/// the one below.
class PinkFilter final {
public:
    float next(float white) {
        float sum = 0;
        float weight = 1;
        for (LowPass& low : m_lows) {
            sum += weight * low.next(white);
            weight /= 2;
        }
        return sum + weight * white;
    }

private:
    std::array<LowPass, 6> m_lows{LowPass(8),   LowPass(32),   LowPass(128),
                                  LowPass(512), LowPass(2048), LowPass(8192)};
};

/// A state-variable filter: what lies around a pitch, and what lies below it. Its pitch may be moved while it
/// works.
class BandFilter final {
public:
    /// @param sharpness about the pitch by the width of the band; 0.5 and more
    BandFilter(float pitch, float sharpness)
        : m_damping(1 / sharpness) {
        setPitch(pitch);
    }
    void setPitch(float pitch) {
        m_g = std::tan(std::numbers::pi_v<float> * std::min(pitch, 0.45F * rate) / rate);
        m_a = 1 / (1 + m_g * (m_g + m_damping));
    }
    /// What lies around the pitch; at the pitch itself as strong as it comes in.
    float band(float sample) {
        advance(sample);
        return m_band * m_damping;
    }
    float low(float sample) {
        advance(sample);
        return m_low;
    }

private:
    void advance(float sample) {
        const float rest = sample - m_lowState;
        m_band = m_a * (m_bandState + m_g * rest);
        m_low = m_lowState + m_g * m_band;
        m_bandState = 2 * m_band - m_bandState;
        m_lowState = 2 * m_low - m_lowState;
    }

    float m_damping;
    float m_g = 0;
    float m_a = 0;
    float m_bandState = 0;
    float m_lowState = 0;
    float m_band = 0;
    float m_low = 0;
};

/// A value that wanders between two limits, smoothly and without aim.
class Drift final {
public:
    /// @param shortest, longest how long it is on its way from one turn to the next
    Drift(Random& random, float low, float high, float shortest, float longest)
        : m_random(random)
        , m_low(low)
        , m_high(high)
        , m_shortest(shortest)
        , m_longest(longest)
        , m_from(random.between(low, high))
        , m_to(random.between(low, high))
        , m_step(blockSeconds / random.between(shortest, longest))
        , m_way(random.unit()) {}

    /// To be called once a block.
    float next() {
        m_way += m_step;
        if (m_way >= 1) {
            m_way = 0;
            m_from = m_to;
            m_to = m_random.between(m_low, m_high);
            m_step = blockSeconds / m_random.between(m_shortest, m_longest);
        }
        return m_from + (m_to - m_from) * m_way * m_way * (3 - 2 * m_way);
    }

private:
    Random& m_random;
    float m_low;
    float m_high;
    float m_shortest;
    float m_longest;
    float m_from;
    float m_to;
    float m_step;
    float m_way;
};

/// A value for every frame that reaches another by the end of each block.
class Glide final {
public:
    explicit Glide(float value = 0)
        : m_value(value) {}
    /// To be called once a block.
    void towards(float value) { m_step = (value - m_value) / AmbientGenerator::blockFrames; }
    float next() { return m_value += m_step; }
    [[nodiscard]] float value() const { return m_value; }

private:
    float m_value;
    float m_step = 0;
};

/// Where something stands between left and right: the shares of both channels, equally loud everywhere.
struct Place {
    float left = std::numbers::sqrt2_v<float> / 2;
    float right = std::numbers::sqrt2_v<float> / 2;

    /// @param side -1 (left) to 1
    static Place at(float side) {
        const float angle = (side + 1) * std::numbers::pi_v<float> / 4;
        return {std::cos(angle), std::sin(angle)};
    }
};

/// A tone that goes on for ever.
class Tone final {
public:
    Tone(float pitch, Random& random)
        : m_turn(std::polar(1.0F, turn * pitch / rate))
        , m_point(std::polar(1.0F, turn * random.unit())) {}

    void setPitch(float pitch) { m_turn = std::polar(1.0F, turn * pitch / rate); }
    /// To be called once a block: rounding would let the tone swell or fade.
    void settle() { m_point /= std::abs(m_point); }
    float next() {
        m_point = {m_point.real() * m_turn.real() - m_point.imag() * m_turn.imag(),
                   m_point.real() * m_turn.imag() + m_point.imag() * m_turn.real()};
        return m_point.imag();
    }

private:
    std::complex<float> m_turn;
    std::complex<float> m_point;
};

/// Things that are struck and ring out: drops, bubbles, crackles, bowls.
class Strikes final {
public:
    struct Strike {
        float pitch = 1000;
        float decay = 0.01F; ///< until a third is left
        float level = 1;
        Place place = {};
        float rise = 1; ///< what the pitch is multiplied by in a second
    };

    /// @param most that ring at a time; with more, the quietest one is given up
    explicit Strikes(size_t most)
        : m_voices(most) {}

    /// @param offset frames after the beginning of the next block, below its length
    void strike(const Strike& strike, int offset);
    /// Adds the next block of all that rings.
    void addTo(AmbientGenerator::Block block);

private:
    struct Voice {
        std::complex<float> turn;
        std::complex<float> point;
        std::complex<float> bend; // of the turn, in a block
        Place place;
        int offset = 0;
        bool rings = false;
    };

    std::vector<Voice> m_voices;
};

/// Tells when something happens that happens so many times a second on average.
class Chance final {
public:
    Chance(Random& random, float timesASecond)
        : m_random(random)
        , m_timesASecond(timesASecond)
        , m_rest(random.framesUntil(timesASecond)) {}

    /// Calls `happen` with every frame of the next block in which it happens.
    template <typename Happen>
    void inBlock(Happen happen) {
        while (m_rest < AmbientGenerator::blockFrames) {
            happen(m_rest);
            m_rest += m_random.framesUntil(m_timesASecond);
        }
        m_rest -= AmbientGenerator::blockFrames;
    }
    void setTimesASecond(float timesASecond) { m_timesASecond = timesASecond; }

private:
    Random& m_random;
    float m_timesASecond;
    int m_rest;
};

} // namespace norvin::ambient
