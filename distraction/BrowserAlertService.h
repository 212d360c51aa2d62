#pragma once

#include "distraction/BrowserAlertModel.h"
#include "platform/SharedInstance.h"

#include <QObject>
#include <QString>

#include <optional>

namespace norvin {

class AlertOverlay;
class UserNotifications;

/// Tells the user, over whatever is on the screen, that the page in front is a blocked site. Where the
/// desktop has no overlay for this, an ordinary notification says the same, once per site. Main thread only.
class BrowserAlertService final : public QObject {
    Q_OBJECT
public:
    /// Both must outlive this.
    BrowserAlertService(AlertOverlay& overlay, UserNotifications& notifications, QObject* parent = nullptr);
    ~BrowserAlertService() override;

    /// The process-wide instance, for start-up.
    [[nodiscard]] static BrowserAlertService& shared() { return SharedInstance<BrowserAlertService>::get(); }

    /// To be called for as long as the site is in front, as often as it is seen there: the alert enters once
    /// and then only follows the domain.
    void show(const QString& domain);
    /// The next show() presents the alert afresh; nothing where none is shown.
    void dismiss();

    [[nodiscard]] BrowserAlertModel& model() { return m_model; }
    /// None while no alert is shown.
    [[nodiscard]] const std::optional<QString>& shownDomain() const { return m_shownDomain; }

private:
    AlertOverlay& m_overlay;
    UserNotifications& m_notifications;
    BrowserAlertModel m_model{this};
    std::optional<QString> m_shownDomain;
};

} // namespace norvin
