#pragma once

#include "platform/Workspace.h"
#include "platform/linux/identity/DesktopEntry.h"
#include "platform/linux/identity/ProcessFacts.h"

#include <QHash>

namespace norvin {

/// What a window tells about its application. Every field may be empty.
struct WindowClues {
    /// Application id that the window carries (Wayland app_id, _GTK_APPLICATION_ID).
    QString applicationId;
    /// Both parts of WM_CLASS.
    QString instanceName;
    QString className;
    /// 0 when unknown.
    qint64 processId = 0;
};

/// Finds the application behind a window, in this order: sandbox of its process, application id, the window
/// class that a desktop entry declares, desktop ids equal to the class, last segments of desktop ids, name of
/// the program, systemd unit. Without a desktop entry the identifier is made of the application id, the class
/// or the program's name; it is empty only when nothing at all is known. Main thread only.
class ApplicationIdentity final {
public:
    /// @param entries must outlive this object
    /// @param processRoot "/proc", or a directory made like it
    explicit ApplicationIdentity(const DesktopEntrySource& entries,
                                 QString processRoot = QStringLiteral("/proc"));

    [[nodiscard]] RunningApplication identify(const WindowClues& clues) const;

private:
    [[nodiscard]] const DesktopEntry* findEntry(const WindowClues& clues, const ProcessFacts& facts) const;
    [[nodiscard]] const DesktopEntry* lookUp(const QHash<QString, int>& names, const QString& name) const;
    void updateIndex() const;

    const DesktopEntrySource& m_entries;
    QString m_processRoot;
    // Positions in m_entries.entries() by lower-cased name; -1 where a name fits several entries.
    mutable QHash<QString, int> m_byId;
    mutable QHash<QString, int> m_byWindowClass;
    mutable QHash<QString, int> m_byLastSegment;
    mutable QHash<QString, int> m_byProgram;
    mutable std::optional<quint64> m_indexedGeneration;
};

} // namespace norvin
