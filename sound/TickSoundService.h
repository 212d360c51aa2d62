#pragma once

#include "sound/TickPlayer.h"
#include "sound/TickSoundType.h"

#include <QObject>

#include <vector>

namespace norvin {

class AudioOutput;
class Preferences;

/// The ticking of a running session: short bursts of a sine, made when they are played. Settings are stored
/// as soon as they change. Main thread only.
class TickSoundService final : public QObject, public TickPlayer {
    Q_OBJECT
public:
    static constexpr double sampleRate = 44100; ///< frames a second of every buffer
    static constexpr TickSoundType defaultType = TickSoundType::clock;
    static constexpr bool isEnabledByDefault = true;
    static constexpr double defaultVolume = 0.5;

    /// Takes up the stored settings; one that is missing or makes no sense is the default.
    /// @param output at sampleRate; must outlive the service, as must the preferences
    TickSoundService(AudioOutput& output, Preferences& preferences, QObject* parent = nullptr);
    ~TickSoundService() override;

    [[nodiscard]] TickSoundType selectedType() const { return m_selectedType; }
    void setSelectedType(TickSoundType type);
    [[nodiscard]] bool isEnabled() const { return m_isEnabled; }
    void setEnabled(bool enabled);
    /// 0.0 (silent) to 1.0.
    [[nodiscard]] double volume() const { return m_volume; }
    /// @param volume brought into its range; applies from the next tick on
    void setVolume(double volume);
    /// Ticks asked for while enabled.
    [[nodiscard]] int tickCount() const { return m_tickCount; }

    /// Plays the next tick, tick and tock in turn; does nothing while disabled.
    void play() override;
    /// Plays a tick to judge the settings by, disabled or not; the turn of the session's ticks stays.
    void playSample();

    /// One tick, ready to be played.
    /// @param isOdd whether it is the tick of tick and tock
    [[nodiscard]] std::vector<float> generateBuffer(TickSoundType type, bool isOdd) const;

Q_SIGNALS:
    void selectedTypeChanged();
    void isEnabledChanged();
    void volumeChanged();

private:
    AudioOutput& m_output;
    Preferences& m_preferences;
    TickSoundType m_selectedType = defaultType;
    bool m_isEnabled = isEnabledByDefault;
    double m_volume = defaultVolume;
    int m_tickCount = 0;
    int m_sampleCount = 0;
};

} // namespace norvin
