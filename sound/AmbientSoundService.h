#pragma once

#include "sound/AmbientMixer.h"
#include "sound/AmbientSound.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>
#include <optional>

namespace norvin {

class Clock;
class ClockTimer;
class Preferences;
class SoundStream;

/// The sound that lies under a session, made while it is played. It fades in with a running work phase, and
/// out when that pauses, ends or is stopped; breaks are silent. play() and stop() overrule that until the
/// session changes next. Choosing a sound while all is silent lets it be heard for a moment. Settings are
/// stored as soon as they change. Main thread only.
class AmbientSoundService final : public QObject {
    Q_OBJECT
    /// Raw values of the categories, in the order in which they are offered.
    Q_PROPERTY(QList<QString> categories READ categories CONSTANT)
    /// Raw value of the chosen sound; empty for none. Other texts change nothing.
    Q_PROPERTY(QString selectedSound READ selectedSound WRITE setSelectedSound NOTIFY selectedSoundChanged)
    /// Raw value of its category; empty for none.
    Q_PROPERTY(QString selectedCategory READ selectedCategory NOTIFY selectedSoundChanged)
    /// 0 to 100.
    Q_PROPERTY(int volumePercent READ volumePercent WRITE setVolumePercent NOTIFY volumeChanged)
    /// Whether there is to be sound now; whether it can be heard is the matter of problemKey.
    Q_PROPERTY(bool isPlaying READ isPlaying NOTIFY isPlayingChanged)
    /// Localisation key of why no sound can be heard, empty while one can. The key with "_remedy" appended
    /// says what to do.
    Q_PROPERTY(QString problemKey READ problemKey NOTIFY problemKeyChanged)
public:
    static constexpr double defaultVolume = 0.5;
    /// How long a sound is heard that is chosen in silence.
    static constexpr std::chrono::seconds previewLength{12};
    static constexpr std::chrono::milliseconds sessionFadeIn{3000};
    static constexpr std::chrono::milliseconds sessionFadeOut{1500};
    /// Of what the user asks for by hand, and from one sound to another.
    static constexpr std::chrono::milliseconds shortFade{900};

    /// Takes up the stored settings; one that is missing or makes no sense is the default: no sound, half
    /// volume.
    /// @param stream everything must outlive the service, and nothing else may be this stream's source
    AmbientSoundService(SoundStream& stream, Preferences& preferences, Clock& clock,
                        QObject* parent = nullptr);
    ~AmbientSoundService() override;

    [[nodiscard]] QList<QString> categories() const;
    /// Raw values of the sounds of a category, in the order in which they are offered.
    Q_INVOKABLE [[nodiscard]] QList<QString> soundsOf(const QString& category) const;
    /// An empty text for none, and the raw values of the sounds of a category.
    Q_INVOKABLE [[nodiscard]] QVariantList choicesOf(const QString& category) const;
    /// Chooses what stands so many places further among these, staying within them; from a sound of another
    /// category the first of this one.
    Q_INVOKABLE void chooseNext(const QString& category, int places);
    /// What a sound is called in the language of the window; of an empty text, what having none is called.
    Q_INVOKABLE [[nodiscard]] QString soundName(const QString& sound) const;
    /// None and all sounds, as maps with "id" and "name", and a "color" that is empty.
    Q_INVOKABLE [[nodiscard]] QVariantList choices() const;

    [[nodiscard]] QString selectedSound() const;
    void setSelectedSound(const QString& sound);
    [[nodiscard]] QString selectedCategory() const;
    /// 0.0 (silent) to 1.0, as it is felt rather than as an amplitude.
    [[nodiscard]] double volume() const { return m_volume; }
    /// @param volume brought into its range; heard at once
    void setVolume(double volume);
    [[nodiscard]] int volumePercent() const;
    void setVolumePercent(int percent);
    [[nodiscard]] bool isPlaying() const { return m_isPlaying; }
    [[nodiscard]] QString problemKey() const;

    /// Plays the chosen sound, the first of all where none is chosen, until stop() or the session's next
    /// change.
    Q_INVOKABLE void play();
    /// Silence until play() or the session's next change.
    Q_INVOKABLE void stop();
    Q_INVOKABLE void toggle();
    /// Nobody chooses any longer: what is only heard for that falls silent.
    Q_INVOKABLE void endPreview();

    /// Whether a work phase runs. Called with every change of the session, also one that leaves it as it is.
    void followSession(bool isWorkRunning);

Q_SIGNALS:
    void selectedSoundChanged();
    void volumeChanged();
    void isPlayingChanged();
    void problemKeyChanged();

private:
    void overrule(bool isPlaying);
    void update(std::chrono::milliseconds fadeIn, std::chrono::milliseconds fadeOut);

    SoundStream& m_stream;
    Preferences& m_preferences;
    Clock& m_clock;
    AmbientMixer m_mixer;
    std::optional<AmbientSound> m_selected;
    double m_volume = defaultVolume;
    bool m_isWorkRunning = false;
    /// What the user asked for by hand; none for what the session says.
    std::optional<bool> m_byHand;
    /// Runs while a sound is only heard because it was chosen.
    std::unique_ptr<ClockTimer> m_preview;
    bool m_isPlaying = false;
};

} // namespace norvin
