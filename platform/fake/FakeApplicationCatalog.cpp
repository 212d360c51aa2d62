#include "platform/fake/FakeApplicationCatalog.h"

#include <algorithm>

namespace norvin {

std::vector<InstalledApplication> FakeApplicationCatalog::installedApplications() const {
    std::vector<InstalledApplication> result = m_applications;
    std::sort(result.begin(), result.end(),
              [](const auto& a, const auto& b) { return QString::localeAwareCompare(a.name, b.name) < 0; });
    return result;
}

std::optional<InstalledApplication>
FakeApplicationCatalog::application(const QString& bundleIdentifier) const {
    const auto it = std::find_if(m_applications.begin(), m_applications.end(), [&](const auto& candidate) {
        return candidate.bundleIdentifier == bundleIdentifier;
    });
    return it == m_applications.end() ? std::nullopt : std::optional(*it);
}

void FakeApplicationCatalog::install(const InstalledApplication& application) {
    uninstall(application.bundleIdentifier);
    m_applications.push_back(application);
}

void FakeApplicationCatalog::uninstall(const QString& bundleIdentifier) {
    std::erase_if(m_applications,
                  [&](const auto& candidate) { return candidate.bundleIdentifier == bundleIdentifier; });
}

} // namespace norvin
