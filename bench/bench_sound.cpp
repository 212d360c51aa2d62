// How much faster than they are heard the ambient sounds are made: a tenth of a second of each at a time,
// with the fades of the mixer.

#include "sound/AmbientMixer.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

using namespace norvin;

constexpr int rate = 44100;

void makeSound(benchmark::State& state, AmbientSound sound) {
    AmbientMixer mixer(rate, 1);
    static_cast<void>(mixer.setSound(sound, std::chrono::milliseconds(0)));
    std::vector<SoundFrame> frames(rate / 10);
    std::int64_t made = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(mixer.fill(made, frames));
        made += static_cast<std::int64_t>(frames.size());
    }
    // Percent of a core while it is heard.
    state.counters["core_percent"] = benchmark::Counter(
        static_cast<double>(made) / rate / 100.0, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

} // namespace

int main(int argc, char** argv) {
    for (const AmbientSound sound : allAmbientSounds())
        benchmark::RegisterBenchmark(("makeSound/" + rawValue(sound).toStdString()).c_str(), makeSound,
                                     sound);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
