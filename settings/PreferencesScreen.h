#pragma once

#include "services/OutsideServices.h"
#include "settings/DataSettings.h"
#include "sound/AmbientSoundService.h"
#include "sound/ImmersionService.h"
#include "sound/TickSoundSettings.h"

#include <QList>
#include <QLocale>
#include <QObject>
#include <QString>

namespace norvin {

class Autostart;
class OverlaySupport;
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
    /// Localisation key of why this desktop shows none, empty where it does. The key with "_remedy" appended
    /// says what to do.
    Q_PROPERTY(QString floatingTimerProblemKey READ floatingTimerProblemKey CONSTANT)
    /// Whether the program starts, hidden, when the user logs in.
    Q_PROPERTY(bool startsAtLogin READ startsAtLogin WRITE setStartsAtLogin NOTIFY autostartChanged)
    /// Localisation key of why that cannot be decided, empty while it can. The key with "_remedy" appended
    /// says what to do.
    Q_PROPERTY(QString autostartProblemKey READ autostartProblemKey NOTIFY autostartChanged)
    Q_PROPERTY(norvin::TickSoundSettings* tickSounds READ tickSounds CONSTANT)
    // Each of these may be null.
    Q_PROPERTY(norvin::AmbientSoundService* ambientSounds READ ambientSounds CONSTANT)
    Q_PROPERTY(norvin::ImmersionService* immersion READ immersion CONSTANT)
    Q_PROPERTY(norvin::OutsideServices* outside READ outside CONSTANT)
    Q_PROPERTY(norvin::DataSettings* data READ data CONSTANT)
public:
    /// What the page shows besides; all of it must outlive the page.
    struct Companions {
        Autostart* autostart = nullptr;
        /// What the floating timer needs.
        const OverlaySupport* overlays = nullptr;
        AmbientSoundService* ambientSounds = nullptr;
        ImmersionService* immersion = nullptr;
        OutsideServices* outside = nullptr;
        DataSettings* data = nullptr;
    };
    static constexpr auto profileNameKey = "profile_name";
    static constexpr auto floatingTimerKey = "floating_timer_enabled";

    /// Both must outlive this.
    PreferencesScreen(Preferences& preferences, TickSoundSettings& tickSounds, QObject* parent = nullptr);
    ~PreferencesScreen() override;

    /// To be called before the page is shown.
    void setCompanions(const Companions& companions);

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
    [[nodiscard]] QString floatingTimerProblemKey() const;
    [[nodiscard]] bool startsAtLogin() const;
    void setStartsAtLogin(bool starts);
    [[nodiscard]] QString autostartProblemKey() const;
    [[nodiscard]] TickSoundSettings* tickSounds() const { return &m_tickSounds; }
    [[nodiscard]] AmbientSoundService* ambientSounds() const { return m_with.ambientSounds; }
    [[nodiscard]] ImmersionService* immersion() const { return m_with.immersion; }
    [[nodiscard]] OutsideServices* outside() const { return m_with.outside; }
    [[nodiscard]] DataSettings* data() const { return m_with.data; }

    /// The page came to the front: looks again at what changes by itself.
    Q_INVOKABLE void open();
    /// Words what is kept anew, also of companions that come later.
    void retranslate(const QLocale& locale);

Q_SIGNALS:
    void profileNameChanged();
    void inactivityChanged();
    void floatingTimerChanged();
    void autostartChanged();
    /// The user wants the welcome once more.
    void welcomeWanted();
    /// The user wants to see the block lists.
    void blockListsWanted();

private:
    void handleChange(const QString& key);

    Preferences& m_preferences;
    TickSoundSettings& m_tickSounds;
    Companions m_with;
    QLocale m_locale;
};

} // namespace norvin
