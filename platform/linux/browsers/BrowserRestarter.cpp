#include "platform/linux/browsers/BrowserRestarter.h"

#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/linux/browsers/BrowserCommand.h"
#include "platform/linux/identity/BundleIdentifiers.h"
#include "platform/linux/identity/DesktopEntry.h"
#include "platform/linux/identity/ProcessFacts.h"

#include <QProcess>
#include <QSocketNotifier>

#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <iterator>
#include <utility>

namespace norvin {

namespace {

constexpr std::chrono::seconds longestClosing{20};

bool start(const BrowserCommand& command, const QStringList& moreArguments) {
    QProcess process;
    process.setProgram(command.program);
    QStringList arguments = command.arguments;
    std::copy_if(moreArguments.cbegin(), moreArguments.cend(), std::back_inserter(arguments),
                 [&command](const QString& word) { return !command.arguments.contains(word); });
    process.setArguments(arguments);
    process.setWorkingDirectory(command.directory);
    if (!command.environment.isEmpty())
        process.setProcessEnvironment(command.environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

} // namespace

// The process stays what it is for as long as its descriptor is open, whoever is given its number later.
struct BrowserRestarter::Closing {
    Closing(int descriptor, QObject* parent)
        : notifier(new QSocketNotifier(descriptor, QSocketNotifier::Read, parent)) {}
    Closing(const Closing&) = delete;
    Closing& operator=(const Closing&) = delete;
    ~Closing() {
        notifier->setEnabled(false);
        ::close(static_cast<int>(notifier->socket()));
        // It may be the one that calls.
        notifier->deleteLater();
    }

    QSocketNotifier* notifier;
    std::unique_ptr<ClockTimer> timeout;
    RunningApplication browser;
    QString desktopId; // empty for the command
    BrowserCommand command;
    QStringList moreArguments;
};

BrowserRestarter::BrowserRestarter(Clock& clock, const DesktopEntrySource& entries, LaunchEntry launchEntry)
    : m_clock(clock)
    , m_entries(entries)
    , m_launchEntry(std::move(launchEntry)) {}

BrowserRestarter::~BrowserRestarter() = default;

void BrowserRestarter::restart(const RunningApplication& browser, const QStringList& moreArguments) {
    const qint64 processId = browser.processId;
    if (m_closing.contains(processId))
        return;
    BrowserCommand command = readBrowserCommand(processId);
    QString desktopId = findEntry(browser, command.arguments);
    // What could not be opened again is better left open. Inside a sandbox the paths are others.
    const bool isSandboxed = !readProcessFacts(processId).sandboxId.isEmpty();
    const bool canOpen = !desktopId.isEmpty() || (!isSandboxed && !command.program.isEmpty());
    const auto descriptor = canOpen && processId > 1 && processId != ::getpid()
                                ? static_cast<int>(::syscall(SYS_pidfd_open, processId, 0))
                                : -1;
    if (descriptor < 0) {
        logLine(QStringLiteral("BrowserRestarter: do not know how to restart %1 (process %2)")
                    .arg(browser.bundleIdentifier)
                    .arg(processId));
        finishSoon(browser.bundleIdentifier, Outcome::notClosed);
        return;
    }
    auto closing = std::make_unique<Closing>(descriptor, this);
    closing->browser = browser;
    closing->desktopId = std::move(desktopId);
    closing->command = std::move(command);
    closing->moreArguments = moreArguments;
    connect(closing->notifier, &QSocketNotifier::activated, this, [this, processId] { open(processId); });
    closing->timeout = m_clock.after(longestClosing, [this, processId] { giveUp(processId); });
    m_closing.emplace(processId, std::move(closing));
    // One that has just ended by itself is opened again all the same.
    if (::syscall(SYS_pidfd_send_signal, descriptor, SIGTERM, nullptr, 0) != 0 && errno != ESRCH) {
        logLine(QStringLiteral("BrowserRestarter: cannot close %1: %2")
                    .arg(browser.bundleIdentifier, QString::fromLocal8Bit(std::strerror(errno))));
        m_closing.erase(processId);
        finishSoon(browser.bundleIdentifier, Outcome::notClosed);
    }
}

// The desktop entry says how a browser is started where it was given no options but the entry's, such as
// another profile. One in a sandbox is started by nothing else.
QString BrowserRestarter::findEntry(const RunningApplication& browser, const QStringList& arguments) const {
    const ProcessFacts facts = readProcessFacts(browser.processId);
    for (const DesktopEntry& entry : m_entries.entries()) {
        if (bundleIdentifierForDesktopId(entry.id) != browser.bundleIdentifier)
            continue;
        if (!facts.sandboxId.isEmpty()) {
            if (entry.id.compare(facts.sandboxId, Qt::CaseInsensitive) == 0)
                return entry.id;
            continue;
        }
        const bool saysAll =
            std::all_of(arguments.cbegin(), arguments.cend(),
                        [&entry](const QString& argument) { return entry.command.contains(argument); });
        if (saysAll && programNameOfCommand(entry.command) == facts.programName)
            return entry.id;
    }
    return {};
}

void BrowserRestarter::open(qint64 processId) {
    const auto node = m_closing.extract(processId);
    if (node.empty())
        return;
    const Closing& closing = *node.mapped();
    const bool isOpened = closing.desktopId.isEmpty() ? start(closing.command, closing.moreArguments)
                                                      : m_launchEntry(closing.desktopId);
    const QString& name = closing.browser.bundleIdentifier;
    logLine(isOpened ? QStringLiteral("BrowserRestarter: restarted %1").arg(name)
                     : QStringLiteral("BrowserRestarter: %1 has ended and cannot be opened").arg(name));
    Q_EMIT finished(name, isOpened ? Outcome::opened : Outcome::notOpened);
}

void BrowserRestarter::giveUp(qint64 processId) {
    const auto node = m_closing.extract(processId);
    if (node.empty())
        return;
    const QString& name = node.mapped()->browser.bundleIdentifier;
    logLine(QStringLiteral("BrowserRestarter: %1 has not ended within %2 s, left as it is")
                .arg(name)
                .arg(longestClosing.count()));
    Q_EMIT finished(name, Outcome::notClosed);
}

void BrowserRestarter::finishSoon(const QString& bundleIdentifier, Outcome outcome) {
    QMetaObject::invokeMethod(
        this, [this, bundleIdentifier, outcome] { Q_EMIT finished(bundleIdentifier, outcome); },
        Qt::QueuedConnection);
}

} // namespace norvin
