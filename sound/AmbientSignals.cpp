#include "sound/AmbientSignals.h"

namespace norvin::ambient {

namespace {

// A hundredth of what the quietest strike begins with.
constexpr float inaudible = 1e-5F;

} // namespace

void Strikes::strike(const Strike& strike, int offset) {
    const auto quietest = std::ranges::min_element(
        m_voices, {}, [](const Voice& voice) { return voice.rings ? std::norm(voice.point) : -1.0F; });
    const float angle = turn * strike.pitch / rate;
    Voice& voice = *quietest;
    voice.turn = std::polar(std::exp(-1 / (strike.decay * rate)), angle);
    voice.bend = std::polar(1.0F, angle * (std::pow(strike.rise, blockSeconds) - 1));
    // The part that is heard begins at nothing, so that a strike is no click.
    voice.point = strike.level;
    voice.place = strike.place;
    voice.offset = offset;
    voice.rings = true;
}

void Strikes::addTo(AmbientGenerator::Block block) {
    for (Voice& voice : m_voices) {
        if (!voice.rings)
            continue;
        const auto begin = static_cast<size_t>(voice.offset);
        voice.offset = 0;
        std::complex<float> point = voice.point;
        for (SoundFrame& frame : block.subspan(begin)) {
            point = {point.real() * voice.turn.real() - point.imag() * voice.turn.imag(),
                     point.real() * voice.turn.imag() + point.imag() * voice.turn.real()};
            frame.left += point.imag() * voice.place.left;
            frame.right += point.imag() * voice.place.right;
        }
        voice.point = point;
        voice.turn *= voice.bend;
        voice.rings = std::norm(point) > inaudible * inaudible;
    }
}

} // namespace norvin::ambient
