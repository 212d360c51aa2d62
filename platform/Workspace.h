#pragma once

#include "platform/Availability.h"

#include <QMetaType>
#include <QObject>
#include <QString>

#include <optional>
#include <vector>

namespace norvin {

/// An application that has at least one window on this desktop. A plain value, taken at one moment.
struct RunningApplication {
    /// Reverse-DNS identifier ("org.mozilla.firefox"); empty when the application could not be identified.
    QString bundleIdentifier;
    /// Name as the user knows it; empty when unknown.
    QString localizedName;
    /// Declared category name ("public.app-category.developer-tools"); none when nothing is declared.
    std::optional<QString> declaredCategory;
    /// Icon theme name or absolute path; empty when there is none.
    QString iconName;
    /// Process id; 0 when unknown (a remote client, say).
    qint64 processId = 0;

    bool operator==(const RunningApplication&) const = default;
};

/// The desktop as a set of applications. Main thread only; a call waits for the display server at most, never
/// for another program.
class Workspace : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Whether the frontmost application can be known here. While it cannot, the other calls answer and hide
    /// nothing; own windows are brought forward as far as the desktop lets them.
    [[nodiscard]] virtual Availability availability() const = 0;

    /// The application that has the keyboard; none when no window is in front or when it cannot be known.
    [[nodiscard]] virtual std::optional<RunningApplication> frontmostApplication() const = 0;

    /// Title of the window that has the keyboard; none when no window has it or when it cannot be known.
    [[nodiscard]] virtual std::optional<QString> frontmostWindowTitle() const = 0;

    /// The applications with ordinary windows, each once, in no particular order.
    [[nodiscard]] virtual std::vector<RunningApplication> runningApplications() const = 0;

    /// Takes all windows of the application off the screen without ending it. Returns at once; the desktop
    /// may take a moment, or refuse.
    virtual void hide(const RunningApplication& application) = 0;

    /// Brings all windows of this program to the front, opening them where they are closed or minimised.
    virtual void activateOwnApplication() = 0;

Q_SIGNALS:
    /// Another application came to the front, or the same one again after none was.
    void applicationActivated(const norvin::RunningApplication& application);
    /// No application has been in front for a moment (an empty desktop).
    void frontmostApplicationLost();
    /// The machine is about to be suspended; delivered before it is.
    void willSleep();
    /// The machine runs again.
    void didWake();
    void availabilityChanged();
};

} // namespace norvin

Q_DECLARE_METATYPE(norvin::RunningApplication)
