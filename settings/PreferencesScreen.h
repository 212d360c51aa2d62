#pragma once

#include "sound/TickSoundSettings.h"

#include <QList>
#include <QLocale>
#include <QObject>
#include <QString>

namespace norvin {

class Preferences;

/// The preferences page: what the user may decide, each stored as soon as it changes. What other parts of the
/// program bring along is handed in; what was not is null, and the page does without it. Main thread only.
class PreferencesScreen final : public QObject {
    Q_OBJECT
    /// The name to be greeted by; may be empty. Stored without blanks around it.
    Q_PROPERTY(QString profileName READ profileName WRITE setProfileName NOTIFY profileNameChanged)
    /// Whether a work phase notices that keyboard and pointer rest.
    Q_PROPERTY(
        bool detectsInactivity READ detectsInactivity WRITE setDetectsInactivity NOTIFY inactivityChanged)
    /// Minutes without input that count as inactive, 1 at least.
    Q_PROPERTY(
        int inactivityMinutes READ inactivityMinutes WRITE setInactivityMinutes NOTIFY inactivityChanged)
    /// Minutes to choose from, ascending; what is set is always one of them.
    Q_PROPERTY(QList<int> inactivityChoices READ inactivityChoices NOTIFY inactivityChanged)
    /// Lengths of the phases in minutes; that of work is what a session begins with unless told otherwise.
    Q_PROPERTY(int workMinutes READ workMinutes CONSTANT)
    Q_PROPERTY(int breakMinutes READ breakMinutes CONSTANT)
    Q_PROPERTY(int rearmingMinutes READ rearmingMinutes CONSTANT)
    /// Whether a small window shows the time while the main window is not in front.
    Q_PROPERTY(
        bool hasFloatingTimer READ hasFloatingTimer WRITE setHasFloatingTimer NOTIFY floatingTimerChanged)
    Q_PROPERTY(norvin::TickSoundSettings* tickSounds READ tickSounds CONSTANT)
public:
    static constexpr auto profileNameKey = "profile_name";
    static constexpr auto floatingTimerKey = "floating_timer_enabled";

    /// Both must outlive this.
    PreferencesScreen(Preferences& preferences, TickSoundSettings& tickSounds, QObject* parent = nullptr);
    ~PreferencesScreen() override;

    [[nodiscard]] QString profileName() const;
    void setProfileName(const QString& name);
    [[nodiscard]] bool detectsInactivity() const;
    void setDetectsInactivity(bool detects);
    [[nodiscard]] int inactivityMinutes() const;
    /// @param minutes below 1 changes nothing
    void setInactivityMinutes(int minutes);
    [[nodiscard]] QList<int> inactivityChoices() const;
    [[nodiscard]] int workMinutes() const;
    [[nodiscard]] int breakMinutes() const;
    [[nodiscard]] int rearmingMinutes() const;
    [[nodiscard]] bool hasFloatingTimer() const;
    void setHasFloatingTimer(bool wanted);
    [[nodiscard]] TickSoundSettings* tickSounds() const { return &m_tickSounds; }

    /// The page came to the front: looks again at what changes by itself.
    Q_INVOKABLE void open();
    /// Words what is kept anew.
    void retranslate(const QLocale& locale);

Q_SIGNALS:
    void profileNameChanged();
    void inactivityChanged();
    void floatingTimerChanged();
    /// The user wants the welcome once more.
    void welcomeWanted();
    /// The user wants to see the block lists.
    void blockListsWanted();

private:
    void handleChange(const QString& key);

    Preferences& m_preferences;
    TickSoundSettings& m_tickSounds;
};

} // namespace norvin
