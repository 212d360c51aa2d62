#include "platform/linux/gio/GioApplicationCatalog.h"

#include "platform/linux/identity/BundleIdentifiers.h"

#include <QCollator>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace norvin {

namespace {

InstalledApplication installedApplication(const DesktopEntry& entry) {
    InstalledApplication application;
    application.bundleIdentifier = bundleIdentifierForDesktopId(entry.id);
    application.name = entry.name;
    application.iconName = entry.iconName;
    application.declaredCategory = declaredCategoryForCategories(entry.categories);
    return application;
}

} // namespace

GioApplicationCatalog::GioApplicationCatalog(const DesktopEntrySource& entries, QString executable)
    : m_entries(entries)
    , m_executable(std::move(executable)) {}

std::vector<InstalledApplication> GioApplicationCatalog::installedApplications() const {
    std::vector<InstalledApplication> result;
    QSet<QString> seen;
    for (const DesktopEntry& entry : m_entries.entries()) {
        if (!entry.shown)
            continue;
        InstalledApplication application = installedApplication(entry);
        if (seen.contains(application.bundleIdentifier))
            continue;
        seen.insert(application.bundleIdentifier);
        result.push_back(std::move(application));
    }
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(result.begin(), result.end(),
              [&](const auto& a, const auto& b) { return collator.compare(a.name, b.name) < 0; });
    return result;
}

std::optional<InstalledApplication>
GioApplicationCatalog::application(const QString& bundleIdentifier) const {
    const DesktopEntry* found = nullptr;
    for (const DesktopEntry& entry : m_entries.entries()) {
        if (bundleIdentifierForDesktopId(entry.id) == bundleIdentifier && (!found || !found->shown))
            found = &entry;
    }
    return found ? std::optional(installedApplication(*found)) : std::nullopt;
}

bool GioApplicationCatalog::isOwnApplicationInstalled() const {
    const QString folder = QFileInfo(m_executable).canonicalPath();
    const QString bin = QStringLiteral("/bin");
    if (!folder.endsWith(bin))
        return false;
    const QString entry = QStringLiteral("%1/share/applications/%2.desktop")
                              .arg(folder.chopped(bin.size()), QLatin1String(ownBundleIdentifier));
    return QFileInfo::exists(entry);
}

} // namespace norvin
