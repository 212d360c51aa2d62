#include "platform/linux/settings/IniPreferences.h"

#include "platform/Log.h"

#include <QFile>
#include <QSettings>
#include <QStandardPaths>

namespace norvin {

namespace {

// What a power cut may leave of a file; QSettings would read it as an empty one.
bool holdsZeros(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readAll().contains('\0');
}

} // namespace

QString IniPreferences::defaultPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/norvin-focus/preferences.ini");
}

IniPreferences::IniPreferences(const QString& path, QObject* parent)
    : Preferences(parent)
    , m_path(path) {
    if (holdsZeros(m_path))
        setDamagedFileAside();
    open();
    if (m_settings->status() == QSettings::FormatError) {
        setDamagedFileAside();
        open();
        // QSettings remembers what it could read of the file that was there.
        m_settings->clear();
    } else if (m_settings->status() == QSettings::AccessError) {
        logLine(QStringLiteral("IniPreferences: Cannot read %1").arg(m_path));
        setAvailability(Availability::unavailable(QStringLiteral("health_preferences_unwritable"), m_path));
    }
}

IniPreferences::~IniPreferences() = default;

void IniPreferences::open() {
    m_settings = std::make_unique<QSettings>(m_path, QSettings::IniFormat);
    m_settings->setFallbacksEnabled(false);
    // Sections are parsed when they are first asked for; errors show only then.
    static_cast<void>(m_settings->allKeys());
}

void IniPreferences::setDamagedFileAside() {
    m_settings.reset();
    QString aside = m_path + QStringLiteral(".damaged");
    for (int number = 2; QFile::exists(aside); ++number)
        aside = QStringLiteral("%1.damaged.%2").arg(m_path).arg(number);
    const bool isAside = QFile::rename(m_path, aside);
    setAvailability(
        Availability::unavailable(QStringLiteral("health_preferences_damaged"), isAside ? aside : m_path));
    if (isAside)
        logLine(QStringLiteral("IniPreferences: %1 is damaged; kept as %2, starting with defaults")
                    .arg(m_path, aside));
    else
        logLine(QStringLiteral("IniPreferences: %1 is damaged and cannot be set aside").arg(m_path));
}

std::optional<QVariant> IniPreferences::value(const QString& key) const {
    if (!m_settings->contains(key))
        return std::nullopt;
    return m_settings->value(key);
}

void IniPreferences::setValue(const QString& key, const QVariant& value) {
    m_settings->setValue(key, value);
    write();
    Q_EMIT changed(key);
}

void IniPreferences::remove(const QString& key) {
    if (!m_settings->contains(key))
        return;
    m_settings->remove(key);
    write();
    Q_EMIT changed(key);
}

void IniPreferences::clear() {
    const QStringList keys = m_settings->allKeys();
    m_settings->clear();
    write();
    for (const QString& key : keys)
        Q_EMIT changed(key);
}

void IniPreferences::write() {
    // A QSettings keeps its first error for good. A second object over the same file takes over what the
    // first could not write, as long as both exist for a moment, and starts with a clean status.
    if (m_settings->status() != QSettings::NoError) {
        auto fresh = std::make_unique<QSettings>(m_path, QSettings::IniFormat);
        fresh->setFallbacksEnabled(false);
        m_settings = std::move(fresh);
    }
    m_settings->sync();
    const bool failed = m_settings->status() != QSettings::NoError;
    if (failed && !m_writeFailureLogged)
        logLine(QStringLiteral("IniPreferences: Cannot write %1; settings are kept in memory").arg(m_path));
    m_writeFailureLogged = failed;
    setAvailability(failed
                        ? Availability::unavailable(QStringLiteral("health_preferences_unwritable"), m_path)
                        : Availability::available());
}

void IniPreferences::setAvailability(const Availability& availability) {
    if (availability == m_availability)
        return;
    m_availability = availability;
    Q_EMIT availabilityChanged();
}

} // namespace norvin
