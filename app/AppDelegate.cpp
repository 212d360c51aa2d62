#include "app/AppDelegate.h"

#include "platform/AccessibilityTrust.h"
#include "platform/ApplicationCatalog.h"
#include "platform/Log.h"

#include <QGuiApplication>

namespace norvin {

AppDelegate::AppDelegate(AccessibilityTrust& accessibility)
    : m_accessibility(accessibility) {}

void AppDelegate::applicationDidFinishLaunching() {
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Norvin Focus"));
    QGuiApplication::setDesktopFileName(QLatin1String(ownBundleIdentifier));
    m_accessibility.query([](bool isTrusted) {
        logLine(QStringLiteral("NorvinPlannerApp: Accessibility permissions granted: ") +
                (isTrusted ? QStringLiteral("true") : QStringLiteral("false")));
    });
}

} // namespace norvin
