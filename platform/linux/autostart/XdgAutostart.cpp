#include "platform/linux/autostart/XdgAutostart.h"

#include "platform/ApplicationCatalog.h"
#include "platform/Log.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <utility>

namespace norvin {

namespace {

// Quoted as the Exec key wants it, and escaped once more as every value of such a file.
QByteArray execArgument(const QString& argument) {
    QByteArray quoted = "\"";
    for (const char character : QFile::encodeName(argument)) {
        if (character == '\\')
            quoted += "\\\\\\\\";
        else if (character == '"' || character == '`' || character == '$')
            quoted += QByteArray("\\\\") + character;
        else if (character == '%')
            quoted += "%%";
        else
            quoted += character;
    }
    return quoted + '"';
}

// Whether an entry is started; none where there is no such file.
std::optional<bool> entryState(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    bool isInGroup = false;
    bool isStarted = true;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (line.startsWith('['))
            isInGroup = line == "[Desktop Entry]";
        const qsizetype equals = line.indexOf('=');
        if (!isInGroup || equals < 0)
            continue;
        const QByteArray key = line.left(equals).trimmed();
        const QByteArray value = line.mid(equals + 1).trimmed();
        if ((key == "Hidden" && value == "true") || (key == "X-GNOME-Autostart-enabled" && value == "false"))
            isStarted = false;
    }
    return isStarted;
}

} // namespace

XdgAutostart::Places XdgAutostart::ownPlaces() {
    const QString name = QStringLiteral("/autostart/%1.desktop").arg(QLatin1String(ownBundleIdentifier));
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    Places places;
    places.userEntry = folders.takeFirst() + name;
    for (const QString& folder : std::as_const(folders))
        places.systemEntries.append(folder + name);
    places.program = QCoreApplication::applicationFilePath();
    return places;
}

XdgAutostart::XdgAutostart(Places places, QObject* parent)
    : Autostart(parent)
    , m_places(std::move(places)) {}

std::optional<bool> XdgAutostart::systemState() const {
    for (const QString& entry : m_places.systemEntries) {
        if (const auto state = entryState(entry))
            return state;
    }
    return {};
}

bool XdgAutostart::isEnabled() const {
    const auto own = entryState(m_places.userEntry);
    return own ? *own : systemState().value_or(false);
}

void XdgAutostart::setEnabled(bool enabled) {
    const bool systemStarts = systemState().value_or(false);
    bool isDone = true;
    if (enabled || systemStarts)
        isDone = write(!enabled);
    else if (QFile::exists(m_places.userEntry))
        isDone = QFile::remove(m_places.userEntry);
    m_availability =
        isDone ? Availability::available()
               : Availability::unavailable(QStringLiteral("autostart_unwritable"), m_places.userEntry);
    if (!isDone)
        logLine(QStringLiteral("XdgAutostart: Cannot write %1").arg(m_places.userEntry));
    Q_EMIT changed();
}

bool XdgAutostart::write(bool isHidden) const {
    QDir().mkpath(QFileInfo(m_places.userEntry).path());
    QSaveFile file(m_places.userEntry);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write("[Desktop Entry]\nType=Application\nName=Norvin Focus\nIcon=com.norvin.Focus\nExec=" +
               execArgument(m_places.program) + " --hidden\nTerminal=false\n");
    if (isHidden)
        file.write("Hidden=true\n");
    return file.commit();
}

} // namespace norvin
