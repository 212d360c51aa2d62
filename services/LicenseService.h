#pragma once

#include "platform/SharedInstance.h"
#include "services/LicenseFile.h"

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

namespace norvin {

class Clock;
class Preferences;

/// Whether the program may be used, by a licence or a trial of 14 days. Everything is decided on this
/// machine; nobody is asked. A program that was built without a key needs no licence and keeps nothing.
/// Main thread only.
///
/// The trial begins with the first launch, or with the oldest record of the store where that is older. Days
/// count by the latest day that was ever seen, so that a clock set back makes it no longer. A licence counts
/// by the clock alone.
class LicenseService final : public QObject {
    Q_OBJECT
    /// "free" (built without a key), "licensed", "trial", "expired" (trial or licence), or "invalid" (what is
    /// installed is no licence).
    Q_PROPERTY(QString kind READ kind NOTIFY changed)
    /// Whether sessions may begin.
    Q_PROPERTY(bool isUseAllowed READ isUseAllowed NOTIFY changed)
    /// Days of the trial that are left, today included; 0 where it is over, or there is none.
    Q_PROPERTY(int trialDaysLeft READ trialDaysLeft NOTIFY changed)
    /// Whose licence it is; empty without one.
    Q_PROPERTY(QString holder READ holder NOTIFY changed)
    Q_PROPERTY(QString email READ email NOTIFY changed)
    /// The last day of the licence; invalid where it has no end or there is none.
    Q_PROPERTY(QDate expiry READ expiry NOTIFY changed)
    /// Localisation key of why what is installed, or was offered last, is no licence; empty for neither.
    Q_PROPERTY(QString problemKey READ problemKey NOTIFY changed)
    /// Whether the way to a licence is shown over the page.
    Q_PROPERTY(bool isPresented READ isPresented NOTIFY isPresentedChanged)
    /// Where a licence that was received most likely lies.
    Q_PROPERTY(QUrl fileFolder READ fileFolder CONSTANT)
public:
    static constexpr int trialDays = 14;
    static constexpr auto firstLaunchKey = "trial_first_launch";
    static constexpr auto latestDayKey = "trial_latest_day";

    struct Collaborators {
        Preferences& preferences;
        Clock& clock;
        /// Where the licence is kept; its directory is made when there is one to keep.
        QString file;
        /// When the oldest session of the store began; none for an empty store. Called once at most, where
        /// there is no licence; may be empty.
        std::function<std::optional<QDateTime>()> oldestRecord;
    };

    [[nodiscard]] static LicenseService& shared() { return SharedInstance<LicenseService>::get(); }

    /// $XDG_DATA_HOME/norvin-focus/licence.txt, or the same under ~/.local/share.
    [[nodiscard]] static QString defaultFile();
    /// The key that this program was built with; empty for none.
    [[nodiscard]] static QByteArray builtInKey();

    /// @param publicKey 32 bytes, or empty for a program that needs no licence
    /// @param collaborators must outlive this
    LicenseService(const QByteArray& publicKey, Collaborators collaborators, QObject* parent = nullptr);
    ~LicenseService() override;

    [[nodiscard]] QString kind() const;
    [[nodiscard]] bool isUseAllowed() const;
    [[nodiscard]] int trialDaysLeft() const { return m_trialDaysLeft; }
    [[nodiscard]] QString holder() const { return m_license ? m_license->name : QString(); }
    [[nodiscard]] QString email() const { return m_license ? m_license->email : QString(); }
    [[nodiscard]] QDate expiry() const;
    [[nodiscard]] QString problemKey() const;
    [[nodiscard]] bool isPresented() const { return m_isPresented; }
    [[nodiscard]] static QUrl fileFolder();
    /// The day of expiry in words of that language ("fr"); empty where it is invalid.
    Q_INVOKABLE [[nodiscard]] QString expiryText(const QString& language) const;

    /// Why no session may begin now, as the localisation key of a sentence; none while one may.
    [[nodiscard]] std::optional<QString> refusal();

    /// Looks at the day again; to be called when one may have passed.
    void refresh();

    /// Takes a licence over and keeps it. One that cannot be read or verified, or is over, changes nothing
    /// but problemKey. @return whether it was taken
    Q_INVOKABLE bool installText(const QString& text);
    Q_INVOKABLE bool installFile(const QUrl& file);
    Q_INVOKABLE void present();
    Q_INVOKABLE void dismiss();
    /// Forgets what was wrong with the licence that was offered last.
    Q_INVOKABLE void forgetProblem();

Q_SIGNALS:
    void changed();
    void isPresentedChanged();

private:
    bool install(const QByteArray& text);
    bool refuse(const QString& reasonKey);
    void readInstalled();
    void countTrial();
    [[nodiscard]] bool isLicenseOver(const License& license) const;
    [[nodiscard]] QDate storedDay(const char* key) const;

    QByteArray m_key;
    Collaborators m_collaborators;
    std::optional<License> m_license;
    std::optional<QDateTime> m_oldestRecord;
    QString m_installedProblem;
    QString m_offeredProblem;
    bool m_isLicenseOver = false;
    bool m_isPresented = false;
    int m_trialDaysLeft = 0;
};

} // namespace norvin
