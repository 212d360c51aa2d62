// Reads and closes browsers' tabs as its standard input says, and answers each line with one of JSON:
//   read PID TITLE | walk PID TITLE | close PID ADDRESS TITLE | state PID | switch | turn on|off |
//   measure COUNT PID TITLE
// The title is the rest of the line; a page is closed if its address begins with ADDRESS.

#include "platform/linux/SessionBus.h"
#include "platform/linux/atspi/AtspiBrowsers.h"
#include "platform/linux/clock/SystemClock.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSocketNotifier>

#include <unistd.h>

#include <cstdio>

using namespace norvin;

namespace {

QString nameOf(BrowserReadState state) {
    static const char* const names[] = {"unknown",  "readable", "serviceMissing", "accessibilityOff",
                                        "notOnBus", "noWindow", "noDocument",     "notAnswering"};
    return QString::fromLatin1(names[static_cast<int>(state)]);
}

QString nameOf(BrowserCloseResult result) {
    static const char* const names[] = {"closed", "otherPage", "notClosable", "failed"};
    return QString::fromLatin1(names[static_cast<int>(result)]);
}

// What a reader of elements finds first, depth first: the address of a document, or else an input field.
QJsonObject walk(AccessibilityElement& element, int depth, int& visited) {
    ++visited;
    QJsonObject found;
    if (depth > 24)
        return found;
    const auto role = element.text(QStringLiteral("AXRole"));
    if (role == QStringLiteral("AXWebArea"))
        found[QStringLiteral("url")] = element.text(QStringLiteral("AXURL")).value_or(QString());
    if (role == QStringLiteral("AXTextField")) {
        found[QStringLiteral("field")] = element.text(QStringLiteral("AXValue")).value_or(QString());
        found[QStringLiteral("identifier")] =
            element.text(QStringLiteral("AXIdentifier")).value_or(QString());
        found[QStringLiteral("subrole")] = element.text(QStringLiteral("AXSubrole")).value_or(QString());
    }
    const auto children =
        element.elements(QStringLiteral("AXChildren")).list.value_or(AccessibilityElement::List());
    for (const auto& child : children) {
        const QJsonObject below = walk(*child, depth + 1, visited);
        for (auto it = below.begin(); it != below.end(); ++it)
            if (!found.contains(it.key()))
                found.insert(it.key(), it.value());
    }
    return found;
}

class Driver final : public QObject {
public:
    Driver()
        : m_browsers(sessionBus(), m_clock) {
        connect(&m_input, &QSocketNotifier::activated, this, &Driver::readInput);
    }

private:
    void readInput() {
        char buffer[4096];
        const auto size = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (size <= 0) {
            QCoreApplication::quit();
            return;
        }
        m_pending.append(buffer, static_cast<qsizetype>(size));
        for (qsizetype end = m_pending.indexOf('\n'); end >= 0; end = m_pending.indexOf('\n')) {
            const QString line = QString::fromUtf8(m_pending.left(end));
            m_pending.remove(0, end + 1);
            QElapsedTimer timer;
            timer.start();
            QJsonObject answer = run(line);
            answer[QStringLiteral("ms")] = static_cast<double>(timer.nsecsElapsed()) / 1e6;
            std::puts(QJsonDocument(answer).toJson(QJsonDocument::Compact).constData());
            std::fflush(stdout);
        }
    }

    QJsonObject run(const QString& line) {
        const QString command = line.section(u' ', 0, 0);
        const qint64 pid = line.section(u' ', 1, 1).toLongLong();
        if (command == QLatin1String("read")) {
            const auto page = m_browsers.readFrontPage(pid, line.section(u' ', 2));
            return {{QStringLiteral("state"), nameOf(page.state)}, {QStringLiteral("url"), page.url}};
        }
        if (command == QLatin1String("close")) {
            const QString expected = line.section(u' ', 2, 2);
            const auto result = m_browsers.closeFrontTab(
                pid, line.section(u' ', 3), [&](const QString& url) { return url.startsWith(expected); });
            return {{QStringLiteral("result"), nameOf(result)},
                    {QStringLiteral("state"), nameOf(m_browsers.lastState(pid))}};
        }
        if (command == QLatin1String("walk")) {
            const auto application = m_browsers.applicationElement(pid, line.section(u' ', 2));
            application->set(QStringLiteral("AXManualAccessibility"), true);
            const auto windows = application->elements(QStringLiteral("AXWindows"));
            QJsonObject found;
            int visited = 0;
            if (windows.list && !windows.list->empty())
                found = walk(*windows.list->front(), 0, visited);
            found[QStringLiteral("errorCode")] = windows.errorCode;
            found[QStringLiteral("visited")] = visited;
            found[QStringLiteral("state")] = nameOf(m_browsers.lastState(pid));
            return found;
        }
        if (command == QLatin1String("state"))
            return {{QStringLiteral("state"), nameOf(m_browsers.lastState(pid))}};
        if (command == QLatin1String("turn"))
            m_browsers.setAccessibilityEnabled(line.endsWith(QLatin1String(" on")));
        if (command == QLatin1String("measure"))
            return measure(static_cast<int>(pid), line.section(u' ', 2, 2).toLongLong(),
                           line.section(u' ', 3));
        const auto enabled = m_browsers.isAccessibilityEnabled();
        return {{QStringLiteral("enabled"), enabled ? QJsonValue(*enabled) : QJsonValue()}};
    }

    // Reads, in turn with bare round trips to the same browser, so that what the machine does meets both.
    QJsonObject measure(int count, qint64 pid, const QString& title) {
        QJsonArray reads;
        QJsonArray trips;
        const QDBusConnection bus(QStringLiteral("norvin-accessibility-1"));
        const QString browser = serviceOf(bus, pid);
        QDBusMessage ping = QDBusMessage::createMethodCall(
            browser, QStringLiteral("/org/a11y/atspi/accessible/root"),
            QStringLiteral("org.a11y.atspi.Accessible"), QStringLiteral("GetRole"));
        for (int i = 0; i < count; ++i) {
            QElapsedTimer timer;
            timer.start();
            const auto page = m_browsers.readFrontPage(pid, title);
            reads.append(page.state == BrowserReadState::readable
                             ? static_cast<double>(timer.nsecsElapsed()) / 1e6
                             : -1);
            timer.start();
            static_cast<void>(bus.call(ping, QDBus::Block, 1000));
            trips.append(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        }
        return {{QStringLiteral("reads"), reads}, {QStringLiteral("trips"), trips}};
    }

    static QString serviceOf(const QDBusConnection& bus, qint64 pid) {
        const auto ask = [&](const char* member, const QVariantList& arguments) {
            QDBusMessage message = QDBusMessage::createMethodCall(
                QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                QStringLiteral("org.freedesktop.DBus"), QString::fromLatin1(member));
            message.setArguments(arguments);
            return bus.call(message, QDBus::Block, 1000).arguments().value(0);
        };
        const QStringList names = ask("ListNames", {}).toStringList();
        for (const QString& name : names)
            if (name.startsWith(u':') && ask("GetConnectionUnixProcessID", {name}).toLongLong() == pid)
                return name;
        return {};
    }

    SystemClock m_clock;
    AtspiBrowsers m_browsers;
    QSocketNotifier m_input{STDIN_FILENO, QSocketNotifier::Read};
    QByteArray m_pending;
};

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    Driver driver;
    return QCoreApplication::exec();
}
