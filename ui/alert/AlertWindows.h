#pragma once

#include "platform/AlertOverlay.h"

#include <QList>

#include <memory>
#include <unordered_map>

class QScreen;

namespace norvin {

class BrowserAlertModel;
class Clock;
class ClockTimer;
class InterfaceEngine;
class OverlaySupport;
class OverlayWindow;

/// The browser alert on every screen. Its windows are there only while it is shown: each holds a picture of
/// a whole screen. Main thread only.
class AlertWindows final : public AlertOverlay {
    Q_OBJECT
public:
    /// Both must outlive this.
    AlertWindows(const OverlaySupport& support, Clock& clock, QObject* parent = nullptr);
    ~AlertWindows() override;

    /// What the windows are made by, and what they show; both must outlive this or be taken back with null.
    /// Nothing is shown without.
    void setContent(InterfaceEngine* engine, BrowserAlertModel* model);

    [[nodiscard]] Availability availability() const override;
    void present() override;
    void dismiss() override;

    /// The windows that are there, in no particular order.
    [[nodiscard]] QList<OverlayWindow*> windows() const;

private:
    void cover(QScreen* screen);
    void uncover(QScreen* screen);
    void followBlending();

    const OverlaySupport& m_support;
    Clock& m_clock;
    InterfaceEngine* m_engine = nullptr;
    BrowserAlertModel* m_model = nullptr;
    std::unordered_map<QScreen*, std::unique_ptr<OverlayWindow>> m_windows;
    std::unique_ptr<ClockTimer> m_blendingTimer;
    bool m_isPresented = false;
};

} // namespace norvin
