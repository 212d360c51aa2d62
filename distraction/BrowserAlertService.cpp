#include "distraction/BrowserAlertService.h"

#include "platform/AlertOverlay.h"
#include "platform/UserNotifications.h"

namespace norvin {

BrowserAlertService::BrowserAlertService(AlertOverlay& overlay, UserNotifications& notifications,
                                         QObject* parent)
    : QObject(parent)
    , m_overlay(overlay)
    , m_notifications(notifications) {}

BrowserAlertService::~BrowserAlertService() {
    dismiss();
}

void BrowserAlertService::show(const QString& domain) {
    const bool isShownAlready = m_shownDomain == domain;
    m_model.setDomain(domain);
    if (isShownAlready)
        return;
    m_shownDomain = domain;
    if (m_overlay.availability().isAvailable())
        m_overlay.present();
    else
        m_notifications.post(qtTrId("alert_stay_focused"),
                             qtTrId("alert_non_legitimate_site") + QLatin1Char('\n') + domain);
}

void BrowserAlertService::dismiss() {
    if (!m_shownDomain)
        return;
    m_shownDomain.reset();
    m_overlay.dismiss();
}

} // namespace norvin
