#pragma once

#include "platform/Workspace.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>

namespace norvin {

class Clock;
class DesktopEntrySource;

/// Closes browsers as a logout does, and opens them again the way they were started. A browser that does not
/// end is never forced to. Main thread only; nothing waits.
class BrowserRestarter final : public QObject {
    Q_OBJECT
public:
    enum class Outcome {
        opened,
        notClosed, ///< it still runs, as it did
        notOpened, ///< it has ended
    };

    /// Opens the desktop entry of that id apart from this program; false where that failed.
    using LaunchEntry = std::function<bool(const QString& desktopId)>;

    /// All references must outlive this.
    BrowserRestarter(Clock& clock, const DesktopEntrySource& entries, LaunchEntry launchEntry);
    ~BrowserRestarter() override;

    /// Follows with finished(), at the earliest from the event loop. Does nothing while that process is
    /// already being closed.
    /// @param moreArguments for a browser that is opened by its command line rather than its desktop entry
    void restart(const RunningApplication& browser, const QStringList& moreArguments);

Q_SIGNALS:
    void finished(const QString& bundleIdentifier, norvin::BrowserRestarter::Outcome outcome);

private:
    struct Closing;
    void open(qint64 processId);
    void giveUp(qint64 processId);
    [[nodiscard]] QString findEntry(const RunningApplication& browser, const QStringList& arguments) const;
    void finishSoon(const QString& bundleIdentifier, Outcome outcome);

    Clock& m_clock;
    const DesktopEntrySource& m_entries;
    LaunchEntry m_launchEntry;
    std::map<qint64, std::unique_ptr<Closing>> m_closing; // by process
};

} // namespace norvin
