#pragma once

#include "distraction/TrackingHealthModel.h"
#include "platform/BrowserAccess.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>

#include <utility>

namespace norvin {

class AppBlockerService;
class Preferences;

/// What stands between the user and pages that can be told apart: the checks of the tracking-health screen,
/// and the question that the block-list screen asks once. Main thread only.
class BrowserHealth final : public QObject {
    Q_OBJECT
    /// Whether something should be said over the block lists: a whitelisted browser cannot be looked into,
    /// and the user has not declined.
    Q_PROPERTY(bool hasBanner READ hasBanner NOTIFY bannerChanged)
    /// In the user's language; empty without a banner, as are the following.
    Q_PROPERTY(QString bannerText READ bannerText NOTIFY bannerChanged)
    /// What the button does.
    Q_PROPERTY(QString bannerActionText READ bannerActionText NOTIFY bannerChanged)
    /// Whether the button leads to the tracking-health screen, instead of doing something here.
    Q_PROPERTY(bool bannerLeadsToHealth READ bannerLeadsToHealth NOTIFY bannerChanged)
public:
    /// All must outlive this.
    BrowserHealth(BrowserAccess& access, AppBlockerService& blocker, Preferences& preferences,
                  QObject* parent = nullptr);
    ~BrowserHealth() override;

    /// The way to pages in general, and one check for each known browser that runs.
    [[nodiscard]] TrackingHealthModel::Check accessCheck();
    [[nodiscard]] QList<TrackingHealthModel::Check> browserChecks();

    [[nodiscard]] bool hasBanner() const { return !m_bannerReasonKey.isEmpty(); }
    [[nodiscard]] QString bannerText() const;
    [[nodiscard]] QString bannerActionText() const;
    [[nodiscard]] bool bannerLeadsToHealth() const;
    /// Does what bannerActionText says; nothing where that leads to another screen.
    Q_INVOKABLE void bannerAct();
    /// The user does not want to be asked for accessibility again, or not again about that browser until the
    /// program ends; the tracking-health screen still says what is missing.
    Q_INVOKABLE void declineBanner();
    /// Looks anew at what the banner has to say. May wait 300 ms for each browser that is new.
    Q_INVOKABLE void refreshBanner();
    /// Gives the texts anew, for another language.
    void retranslate() { Q_EMIT bannerChanged(); }

Q_SIGNALS:
    void bannerChanged();
    /// What the checks answer may have changed.
    void changed();
    /// There is something to say about an action of the checks, or nothing any more.
    void noticed(const norvin::TrackingHealthModel::Notice& notice);

private:
    [[nodiscard]] QList<TrackingHealthModel::Action> accessActions();
    [[nodiscard]] QList<TrackingHealthModel::Action> browserActions(const BrowserAccess::Browser& browser);
    [[nodiscard]] TrackingHealthModel::Action restartAction(const QString& bundleIdentifier,
                                                            const QString& name);
    void noteRestartEnd(const QString& bundleIdentifier, const QString& textKey);

    BrowserAccess& m_access;
    AppBlockerService& m_blocker;
    Preferences& m_preferences;
    QHash<QString, QString> m_restarting; // names of browsers, by identifier
    QString m_bannerReasonKey;
    QString m_bannerBrowser;
    QSet<std::pair<QString, QString>> m_declined; // reason and browser, until the program ends
};

} // namespace norvin
