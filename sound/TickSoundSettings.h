#pragma once

#include <QList>
#include <QObject>
#include <QString>

namespace norvin {

class AudioOutput;
class TickSoundService;

/// What the sheet with the settings of the ticks shows and does. Main thread only.
class TickSoundSettings final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isEnabled READ isEnabled WRITE setEnabled NOTIFY isEnabledChanged)
    /// Raw values of all characters, in the order in which they are offered.
    Q_PROPERTY(QList<QString> types READ types CONSTANT)
    /// Raw value. Choosing another one plays a tick of it.
    Q_PROPERTY(QString selectedType READ selectedType WRITE setSelectedType NOTIFY selectedTypeChanged)
    /// 0 to 100.
    Q_PROPERTY(int volumePercent READ volumePercent WRITE setVolumePercent NOTIFY volumePercentChanged)
    /// Localisation key of why no tick can be heard, empty while one can. The key with "_remedy" appended
    /// says what to do.
    Q_PROPERTY(QString problemKey READ problemKey NOTIFY problemKeyChanged)
public:
    /// Both must outlive this.
    TickSoundSettings(TickSoundService& service, const AudioOutput& output, QObject* parent = nullptr);
    ~TickSoundSettings() override;

    [[nodiscard]] bool isEnabled() const;
    void setEnabled(bool enabled);
    [[nodiscard]] QList<QString> types() const;
    [[nodiscard]] QString selectedType() const;
    /// A text that is no raw value changes nothing.
    void setSelectedType(const QString& type);
    [[nodiscard]] int volumePercent() const;
    void setVolumePercent(int percent);
    [[nodiscard]] QString problemKey() const;

    /// Plays one tick as the settings are, also while ticks are off.
    Q_INVOKABLE void playSample();

Q_SIGNALS:
    void isEnabledChanged();
    void selectedTypeChanged();
    void volumePercentChanged();
    void problemKeyChanged();

private:
    TickSoundService& m_service;
    const AudioOutput& m_output;
};

} // namespace norvin
