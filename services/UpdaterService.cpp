#include "services/UpdaterService.h"

#include <QMetaObject>

namespace norvin {

UpdaterService::UpdaterService(UpdateSource& source, QObject* parent)
    : QObject(parent)
    , m_source(source) {
    // By the event loop: a source may change in the midst of a call that somebody else makes.
    connect(&m_source, &UpdateSource::changed, this, &UpdaterService::followSource, Qt::QueuedConnection);
    connect(&m_source, &UpdateSource::checked, this, &UpdaterService::take);
    QMetaObject::invokeMethod(this, &UpdaterService::followSource, Qt::QueuedConnection);
}

UpdaterService::~UpdaterService() = default;

void UpdaterService::followSource() {
    const bool canCheck = m_source.canCheckForUpdates();
    if (canCheck != m_canCheckForUpdates) {
        m_canCheckForUpdates = canCheck;
        Q_EMIT canCheckForUpdatesChanged();
    }
    Q_EMIT availabilityChanged();
}

QString UpdaterService::unavailableKey() const {
    const Availability availability = m_source.availability();
    return availability.isAvailable() ? QString() : availability.reason()->reasonKey;
}

void UpdaterService::checkForUpdates() {
    if (!m_canCheckForUpdates || !m_source.canCheckForUpdates())
        return;
    setNoticeShown(false);
    setChecking(true);
    m_source.checkForUpdates();
    // Not by the event loop: nobody may ask for a second look meanwhile.
    followSource();
}

void UpdaterService::take(const UpdateResult& result) {
    m_result = result;
    m_hasResult = true;
    const bool hasUpdate = result.outcome == UpdateResult::Outcome::available;
    m_canOpenSoftwareCentre = hasUpdate && m_source.canOpenSoftwareCentre();
    setChecking(false);
    Q_EMIT resultChanged();
    setNoticeShown(true);
}

QString UpdaterService::outcome() const {
    if (!m_hasResult)
        return QStringLiteral("none");
    switch (m_result.outcome) {
    case UpdateResult::Outcome::upToDate:
    case UpdateResult::Outcome::noneAnnounced:
        return QStringLiteral("up_to_date");
    case UpdateResult::Outcome::available:
    case UpdateResult::Outcome::installed:
        return QStringLiteral("available");
    case UpdateResult::Outcome::failed:
        break;
    }
    return QStringLiteral("failed");
}

QString UpdaterService::messageKey() const {
    if (!m_hasResult)
        return {};
    switch (m_result.outcome) {
    case UpdateResult::Outcome::upToDate:
        return QStringLiteral("update_up_to_date");
    case UpdateResult::Outcome::noneAnnounced:
        return QStringLiteral("update_none_announced");
    case UpdateResult::Outcome::available:
        return m_result.version.isEmpty() ? QStringLiteral("update_available")
                                          : QStringLiteral("update_available_version");
    case UpdateResult::Outcome::installed:
        return QStringLiteral("update_installed");
    case UpdateResult::Outcome::failed:
        break;
    }
    return m_result.reasonKey;
}

QString UpdaterService::messageArgument() const {
    if (messageKey() == QLatin1String("update_available_version"))
        return m_result.version;
    return messageKey() == QLatin1String("update_failed") ? m_result.detail : QString();
}

void UpdaterService::openSoftwareCentre() {
    if (m_canOpenSoftwareCentre)
        m_source.openSoftwareCentre();
}

void UpdaterService::dismissNotice() {
    setNoticeShown(false);
}

void UpdaterService::setChecking(bool isChecking) {
    if (isChecking == m_isChecking)
        return;
    m_isChecking = isChecking;
    Q_EMIT isCheckingChanged();
}

void UpdaterService::setNoticeShown(bool isShown) {
    if (isShown == m_isNoticeShown)
        return;
    m_isNoticeShown = isShown;
    Q_EMIT isNoticeShownChanged();
}

} // namespace norvin
