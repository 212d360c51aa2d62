#include "services/LicenseService.h"

#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/Preferences.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace norvin {

QString LicenseService::defaultFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/norvin-focus/licence.txt");
}

QByteArray LicenseService::builtInKey() {
    return parseLicenseKey(NORVIN_LICENSE_PUBLIC_KEY).value_or(QByteArray());
}

LicenseService::LicenseService(const QByteArray& publicKey, Collaborators collaborators, QObject* parent)
    : QObject(parent)
    , m_key(publicKey)
    , m_collaborators(std::move(collaborators)) {
    if (m_key.isEmpty())
        return;
    readInstalled();
    refresh();
}

LicenseService::~LicenseService() = default;

QString LicenseService::kind() const {
    if (m_key.isEmpty())
        return QStringLiteral("free");
    if (m_license && !m_isLicenseOver)
        return QStringLiteral("licensed");
    if (!m_installedProblem.isEmpty())
        return QStringLiteral("invalid");
    // A trial that still runs says nothing to somebody whose licence is over.
    return !m_license && m_trialDaysLeft > 0 ? QStringLiteral("trial") : QStringLiteral("expired");
}

bool LicenseService::isUseAllowed() const {
    return m_key.isEmpty() || (m_license && !m_isLicenseOver) || m_trialDaysLeft > 0;
}

QDate LicenseService::expiry() const {
    return m_license ? m_license->expires.value_or(QDate()) : QDate();
}

QUrl LicenseService::fileFolder() {
    return QUrl::fromLocalFile(QStandardPaths::writableLocation(QStandardPaths::DownloadLocation));
}

QString LicenseService::expiryText(const QString& language) const {
    return expiry().isValid() ? QLocale(language).toString(expiry(), QStringLiteral("d MMMM yyyy"))
                              : QString();
}

QString LicenseService::problemKey() const {
    return m_offeredProblem.isEmpty() ? m_installedProblem : m_offeredProblem;
}

std::optional<QString> LicenseService::refusal() {
    refresh();
    if (isUseAllowed())
        return std::nullopt;
    return m_license ? QStringLiteral("refused_licence_over") : QStringLiteral("refused_trial_over");
}

void LicenseService::refresh() {
    if (m_key.isEmpty())
        return;
    const auto before = std::pair(kind(), m_trialDaysLeft);
    m_isLicenseOver = m_license && isLicenseOver(*m_license);
    if (!m_license || m_isLicenseOver)
        countTrial();
    if (before != std::pair(kind(), m_trialDaysLeft))
        Q_EMIT changed();
}

bool LicenseService::isLicenseOver(const License& license) const {
    return license.expires && *license.expires < m_collaborators.clock.now().date();
}

void LicenseService::readInstalled() {
    QFile file(m_collaborators.file);
    if (!file.exists())
        return;
    if (!file.open(QIODevice::ReadOnly)) {
        logLine(QStringLiteral("LicenseService: %1: %2").arg(file.fileName(), file.errorString()));
        m_installedProblem = QStringLiteral("licence_unreadable");
        return;
    }
    const auto read = readLicense(file.read(largestLicense + 1), m_key);
    if (const auto* problem = std::get_if<LicenseProblem>(&read)) {
        m_installedProblem = problem->reasonKey;
        return;
    }
    m_license = std::get<License>(read);
    m_isLicenseOver = isLicenseOver(*m_license);
}

QDate LicenseService::storedDay(const char* key) const {
    const std::optional<QVariant> value = m_collaborators.preferences.value(QLatin1String(key));
    return value ? QDate::fromString(value->toString(), Qt::ISODate) : QDate();
}

void LicenseService::countTrial() {
    const QDate today = m_collaborators.clock.now().date();
    const QDate storedFirst = storedDay(firstLaunchKey);
    const QDate storedLatest = storedDay(latestDayKey);
    QDate first = storedFirst.isValid() ? std::min(storedFirst, today) : today;
    // What is recorded tells of a launch that the preferences have forgotten. Asked once: it may take a
    // while.
    if (const auto ask = std::exchange(m_collaborators.oldestRecord, {}))
        m_oldestRecord = ask();
    if (m_oldestRecord)
        first = std::min(first, m_oldestRecord->date());
    const QDate latest = storedLatest.isValid() ? std::max(storedLatest, today) : today;
    m_trialDaysLeft = static_cast<int>(std::clamp<qint64>(trialDays - first.daysTo(latest), 0, trialDays));
    for (const auto& [key, stored, day] :
         {std::tuple(firstLaunchKey, storedFirst, first), std::tuple(latestDayKey, storedLatest, latest)}) {
        if (stored != day)
            m_collaborators.preferences.setValue(QLatin1String(key), day.toString(Qt::ISODate));
    }
}

bool LicenseService::installText(const QString& text) {
    return install(text.toUtf8());
}

bool LicenseService::installFile(const QUrl& file) {
    QFile source(file.toLocalFile());
    if (!source.open(QIODevice::ReadOnly))
        return refuse(QStringLiteral("licence_unreadable"));
    return install(source.read(largestLicense + 1));
}

bool LicenseService::install(const QByteArray& text) {
    const auto read = readLicense(text, m_key);
    if (const auto* problem = std::get_if<LicenseProblem>(&read))
        return refuse(problem->reasonKey);
    const License& license = std::get<License>(read);
    if (isLicenseOver(license))
        return refuse(QStringLiteral("licence_over"));

    QDir().mkpath(QFileInfo(m_collaborators.file).path());
    QSaveFile kept(m_collaborators.file);
    if (!kept.open(QIODevice::WriteOnly) || kept.write(text) != text.size() || !kept.commit()) {
        logLine(QStringLiteral("LicenseService: %1: %2").arg(m_collaborators.file, kept.errorString()));
        return refuse(QStringLiteral("licence_not_written"));
    }
    m_license = license;
    m_isLicenseOver = false;
    m_installedProblem.clear();
    m_offeredProblem.clear();
    Q_EMIT changed();
    return true;
}

bool LicenseService::refuse(const QString& reasonKey) {
    m_offeredProblem = reasonKey;
    Q_EMIT changed();
    return false;
}

void LicenseService::present() {
    if (std::exchange(m_isPresented, true))
        return;
    Q_EMIT isPresentedChanged();
}

void LicenseService::dismiss() {
    if (!std::exchange(m_isPresented, false))
        return;
    forgetProblem();
    Q_EMIT isPresentedChanged();
}

void LicenseService::forgetProblem() {
    if (m_offeredProblem.isEmpty())
        return;
    m_offeredProblem.clear();
    Q_EMIT changed();
}

} // namespace norvin
