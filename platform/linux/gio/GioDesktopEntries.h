#pragma once

#include "platform/linux/identity/DesktopEntry.h"

#include <memory>

namespace norvin {

/// The desktop entries of XDG_DATA_HOME and XDG_DATA_DIRS, read through GIO on first use and again after one
/// was added, changed or removed. XDG variables are those of the start of the process.
class GioDesktopEntries final : public DesktopEntrySource {
public:
    GioDesktopEntries();
    ~GioDesktopEntries() override;

    [[nodiscard]] const std::vector<DesktopEntry>& entries() const override;
    [[nodiscard]] quint64 generation() const override;

    /// Opens the application of that desktop id, without files, in a session of its own: it outlives this
    /// program and the terminal this was started from. A failure is logged.
    [[nodiscard]] static bool launch(const QString& desktopId);

private:
    struct Monitor;
    std::unique_ptr<Monitor> m_monitor;
    mutable std::vector<DesktopEntry> m_entries;
    mutable quint64 m_generation = 0;
};

} // namespace norvin
