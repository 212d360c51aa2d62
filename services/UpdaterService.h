#pragma once

#include "platform/SharedInstance.h"
#include "platform/UpdateSource.h"

#include <QObject>
#include <QString>

namespace norvin {

/// The look for a newer version of the program, and what it found. It begins only when somebody asks for it.
/// Main thread only.
class UpdaterService final : public QObject {
    Q_OBJECT
    /// Whether a look can begin, as the source says; false until its first word has been delivered.
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates NOTIFY canCheckForUpdatesChanged)
    Q_PROPERTY(bool isChecking READ isChecking NOTIFY isCheckingChanged)
    /// Localisation key of what is known, empty while nothing has been looked for. Where messageArgument is
    /// not empty, the text takes it.
    Q_PROPERTY(QString messageKey READ messageKey NOTIFY resultChanged)
    Q_PROPERTY(QString messageArgument READ messageArgument NOTIFY resultChanged)
    /// "none", "up_to_date", "available" or "failed".
    Q_PROPERTY(QString outcome READ outcome NOTIFY resultChanged)
    /// Whether the window tells of it, which it does from the end of a look until the user has seen it.
    Q_PROPERTY(bool isNoticeShown READ isNoticeShown NOTIFY isNoticeShownChanged)
    /// Whether there is an update, and a program of the desktop's that shows it.
    Q_PROPERTY(bool canOpenSoftwareCentre READ canOpenSoftwareCentre NOTIFY resultChanged)
    /// Localisation key of why no look can ever begin here, empty while one can. The key with "_remedy"
    /// appended says what to do.
    Q_PROPERTY(QString unavailableKey READ unavailableKey NOTIFY availabilityChanged)
public:
    [[nodiscard]] static UpdaterService& shared() { return SharedInstance<UpdaterService>::get(); }

    /// @param source must outlive this
    explicit UpdaterService(UpdateSource& source, QObject* parent = nullptr);
    ~UpdaterService() override;

    [[nodiscard]] bool canCheckForUpdates() const { return m_canCheckForUpdates; }
    [[nodiscard]] bool isChecking() const { return m_isChecking; }
    [[nodiscard]] QString messageKey() const;
    [[nodiscard]] QString messageArgument() const;
    [[nodiscard]] QString outcome() const;
    [[nodiscard]] bool isNoticeShown() const { return m_isNoticeShown; }
    [[nodiscard]] bool canOpenSoftwareCentre() const { return m_canOpenSoftwareCentre; }
    [[nodiscard]] QString unavailableKey() const;

    /// Begins a look; does nothing while canCheckForUpdates is false.
    Q_INVOKABLE void checkForUpdates();
    /// Does nothing where canOpenSoftwareCentre is false.
    Q_INVOKABLE void openSoftwareCentre();
    Q_INVOKABLE void dismissNotice();

Q_SIGNALS:
    void canCheckForUpdatesChanged();
    void isCheckingChanged();
    void resultChanged();
    void isNoticeShownChanged();
    void availabilityChanged();

private:
    void followSource();
    void take(const UpdateResult& result);
    void setChecking(bool isChecking);
    void setNoticeShown(bool isShown);

    UpdateSource& m_source;
    bool m_canCheckForUpdates = false;
    bool m_isChecking = false;
    bool m_hasResult = false;
    UpdateResult m_result;
    bool m_isNoticeShown = false;
    bool m_canOpenSoftwareCentre = false;
};

} // namespace norvin
