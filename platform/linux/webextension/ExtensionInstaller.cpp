#include "platform/linux/webextension/ExtensionInstaller.h"

#include "platform/linux/webextension/ExtensionPackage.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace norvin {

namespace {

using State = ExtensionInstaller::State;
using Result = ExtensionInstaller::Result;

constexpr QLatin1String hostName("com.norvin.focus");
constexpr QLatin1String hostProgramName("norvin-focus-browser-host");

struct Family {
    ExtensionBrowser browser;
    const char* configuration; // below the configuration directory
    const char* extensionPage;
};

constexpr std::array families = {
    Family{ExtensionBrowser::chromium, "chromium", "chrome://extensions"},
    Family{ExtensionBrowser::chrome, "google-chrome", "chrome://extensions"},
    Family{ExtensionBrowser::edge, "microsoft-edge", "edge://extensions"},
    Family{ExtensionBrowser::brave, "BraveSoftware/Brave-Browser", "brave://extensions"},
    Family{ExtensionBrowser::vivaldi, "vivaldi", "vivaldi://extensions"},
    Family{ExtensionBrowser::opera, "opera", "opera://extensions"},
};

// Null for Firefox, which is no relative of theirs.
const Family* familyOf(ExtensionBrowser browser) {
    const auto* found = std::find_if(families.begin(), families.end(),
                                     [browser](const Family& family) { return family.browser == browser; });
    return found == families.end() ? nullptr : found;
}

QJsonObject readJson(const QString& path) {
    QFile file(path);
    constexpr qint64 largest = 64 * 1024;
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.read(largest)).object()
                                          : QJsonObject();
}

// What could not be written and why; none on success.
std::optional<Result> write(const QString& path, const QByteArray& content) {
    QSaveFile file(path);
    if (QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
        file.write(content) == content.size() && file.flush() && file.commit())
        return std::nullopt;
    return Result{State::failed,
                  QStringLiteral("extension_not_written"),
                  QStringLiteral("%1: %2").arg(path, file.errorString()),
                  {}};
}

std::optional<Result> write(const QString& path, const QJsonObject& content) {
    return write(path, QJsonDocument(content).toJson());
}

bool removeFile(const QString& path) {
    return !QFileInfo::exists(path) || QFile::remove(path);
}

bool isOurHostManifest(const QString& path) {
    const QJsonObject manifest = readJson(path);
    const QString program = manifest.value(QLatin1String("path")).toString();
    return manifest.value(QLatin1String("name")).toString() == hostName &&
           program.section(QLatin1Char('/'), -1) == hostProgramName;
}

QJsonObject extensionManifest() {
    for (const ExtensionFile& file : extensionFiles()) {
        if (file.path == QLatin1String("manifest.json"))
            return QJsonDocument::fromJson(file.content).object();
    }
    return {};
}

QString firefoxId() {
    return extensionManifest()
        .value(QLatin1String("browser_specific_settings"))
        .toObject()
        .value(QLatin1String("gecko"))
        .toObject()
        .value(QLatin1String("id"))
        .toString();
}

// The id of the extension where it is loaded from a directory, which its manifest's key decides.
QString unpackedId() {
    const QString key = extensionManifest().value(QLatin1String("key")).toString();
    return extensionIdOfKey(QByteArray::fromBase64(key.toLatin1()));
}

} // namespace

const QList<ExtensionBrowser>& extensionBrowsers() {
    static const QList<ExtensionBrowser> browsers = {
        ExtensionBrowser::firefox, ExtensionBrowser::chromium, ExtensionBrowser::chrome,
        ExtensionBrowser::edge,    ExtensionBrowser::brave,    ExtensionBrowser::vivaldi,
        ExtensionBrowser::opera,
    };
    return browsers;
}

ExtensionPlaces ExtensionPlaces::standard() {
    ExtensionPlaces places;
    places.home = QDir::homePath();
    places.configHome = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    places.packages = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                      QStringLiteral("/norvin-focus/extension");
    const QString programs = QCoreApplication::applicationDirPath();
    for (const QString& directory : {programs, programs + QStringLiteral("/../" NORVIN_LIBEXECDIR)}) {
        const QFileInfo program(directory + QLatin1Char('/') + hostProgramName);
        if (places.hostProgram.isEmpty() && program.isExecutable())
            places.hostProgram = program.canonicalFilePath();
    }
    for (const char* root : {"/usr/share", "/usr/lib", "/usr/lib64"})
        places.firefoxSystem.append(
            QLatin1String(root) +
            QStringLiteral("/mozilla/extensions/{ec8030f7-c20a-464f-9b0e-13a3a9e97384}"));
    return places;
}

ExtensionInstaller::ExtensionInstaller(ExtensionPlaces places)
    : m_places(std::move(places)) {}

QString ExtensionInstaller::hostManifest(ExtensionBrowser browser) const {
    const Family* family = familyOf(browser);
    const QString directory = family ? QStringLiteral("%1/%2/NativeMessagingHosts")
                                           .arg(m_places.configHome, QLatin1String(family->configuration))
                                     : m_places.home + QStringLiteral("/.mozilla/native-messaging-hosts");
    return QStringLiteral("%1/%2.json").arg(directory, hostName);
}

QString ExtensionInstaller::externalExtensions() const {
    return m_places.configHome + QStringLiteral("/chromium/External Extensions");
}

bool ExtensionInstaller::isInstalled(ExtensionBrowser browser) const {
    return isOurHostManifest(hostManifest(browser));
}

bool ExtensionInstaller::isBrowserPresent(ExtensionBrowser browser) const {
    if (const Family* family = familyOf(browser))
        return QFileInfo(m_places.configHome + QLatin1Char('/') + QLatin1String(family->configuration))
            .isDir();
    return QFileInfo(m_places.home + QStringLiteral("/.mozilla/firefox")).isDir() ||
           QFileInfo(m_places.configHome + QStringLiteral("/mozilla/firefox")).isDir();
}

Result ExtensionInstaller::install(ExtensionBrowser browser) {
    if (!QFileInfo(m_places.hostProgram).isExecutable())
        return {State::failed, QStringLiteral("extension_host_missing"), m_places.hostProgram, {}};
    const QString manifest = hostManifest(browser);
    if (QFileInfo::exists(manifest) && !isOurHostManifest(manifest))
        return {State::failed, QStringLiteral("extension_foreign_file"), manifest, {}};

    const bool wasInstalled = isInstalled(browser);
    const Result result = browser == ExtensionBrowser::firefox    ? installForFirefox()
                          : browser == ExtensionBrowser::chromium ? installForChromium()
                                                                  : installUnpacked(browser);
    if (result.state == State::failed && !wasInstalled)
        (void)remove(browser);
    return result;
}

// The manifest comes last: a browser that has it finds everything else in its place.
std::optional<Result> ExtensionInstaller::writeHostManifest(ExtensionBrowser browser,
                                                            const QString& packageId) const {
    QJsonObject manifest{
        {QStringLiteral("name"), hostName},
        {QStringLiteral("description"), QStringLiteral("Tells Norvin Focus the domain of the page in front")},
        {QStringLiteral("path"), m_places.hostProgram},
        {QStringLiteral("type"), QStringLiteral("stdio")},
    };
    if (familyOf(browser)) {
        QJsonArray origins;
        for (const QString& id : {packageId, unpackedId()}) {
            if (!id.isEmpty())
                origins.append(QStringLiteral("chrome-extension://%1/").arg(id));
        }
        manifest.insert(QStringLiteral("allowed_origins"), origins);
    } else {
        manifest.insert(QStringLiteral("allowed_extensions"), QJsonArray{packageId});
    }
    return write(hostManifest(browser), manifest);
}

Result ExtensionInstaller::installForFirefox() const {
    const QString id = firefoxId();
    const QString name = id + QStringLiteral(".xpi");
    const QString package = m_places.packages + QStringLiteral("/firefox/") + name;
    if (const auto failure = write(package, zipArchive(extensionFiles())))
        return *failure;
    if (const auto failure = writeHostManifest(ExtensionBrowser::firefox, id))
        return *failure;
    const bool isInSystem = std::any_of(
        m_places.firefoxSystem.begin(), m_places.firefoxSystem.end(),
        [&name](const QString& directory) { return QFileInfo::exists(directory + QLatin1Char('/') + name); });
    if (isInSystem)
        return {State::activeAfterRestart, QStringLiteral("extension_restart_browser"), {}, {}};
    return {State::needsStep, QStringLiteral("extension_firefox_system"), package,
            m_places.firefoxSystem.value(0)};
}

Result ExtensionInstaller::installForChromium() const {
    const QDir packages(m_places.packages + QStringLiteral("/chromium"));
    const QByteArray archive = zipArchive(extensionFiles());

    // A package of the same content is kept, and its id with it: the browser goes on with what it has.
    QString id;
    QString path;
    for (const QFileInfo& existing : packages.entryInfoList({QStringLiteral("*.crx")}, QDir::Files)) {
        QFile file(existing.filePath());
        if (file.open(QIODevice::ReadOnly) && file.readAll().endsWith(archive)) {
            id = existing.completeBaseName();
            path = existing.filePath();
        }
    }
    if (id.isEmpty()) {
        const std::optional<SignedPackage> package = signedPackage(archive);
        if (!package)
            return {State::failed, QStringLiteral("extension_not_written"), packages.path(), {}};
        if (!removeChromiumPackages())
            return {State::failed, QStringLiteral("extension_not_written"), packages.path(), {}};
        id = package->extensionId;
        path = packages.filePath(id + QStringLiteral(".crx"));
        if (const auto failure = write(path, package->content))
            return *failure;
    }

    const QJsonObject external{
        {QStringLiteral("external_crx"), path},
        {QStringLiteral("external_version"), extensionManifest().value(QLatin1String("version"))},
    };
    if (const auto failure = write(QStringLiteral("%1/%2.json").arg(externalExtensions(), id), external))
        return *failure;
    if (const auto failure = writeHostManifest(ExtensionBrowser::chromium, id))
        return *failure;
    return {State::activeAfterRestart, QStringLiteral("extension_restart_browser"), {}, {}};
}

Result ExtensionInstaller::installUnpacked(ExtensionBrowser browser) const {
    const QString directory = m_places.packages + QStringLiteral("/unpacked");
    for (const ExtensionFile& file : extensionFiles()) {
        if (const auto failure = write(directory + QLatin1Char('/') + file.path, file.content))
            return *failure;
    }
    if (const auto failure = writeHostManifest(browser, {}))
        return *failure;
    return {State::needsStep, QStringLiteral("extension_load_unpacked"), directory,
            QLatin1String(familyOf(browser)->extensionPage)};
}

// The browser takes the extension out when the file that names it is gone.
bool ExtensionInstaller::removeChromiumPackages() const {
    const QDir packages(m_places.packages + QStringLiteral("/chromium"));
    bool isDone = true;
    for (const QFileInfo& package : packages.entryInfoList({QStringLiteral("*.crx")}, QDir::Files)) {
        const QString external =
            QStringLiteral("%1/%2.json").arg(externalExtensions(), package.completeBaseName());
        const bool isOurs =
            readJson(external).value(QLatin1String("external_crx")).toString() == package.filePath();
        isDone = (!isOurs || removeFile(external)) && removeFile(package.filePath()) && isDone;
    }
    return isDone;
}

Result ExtensionInstaller::remove(ExtensionBrowser browser) {
    const QString manifest = hostManifest(browser);
    bool isDone = !isOurHostManifest(manifest) || removeFile(manifest);
    if (browser == ExtensionBrowser::firefox) {
        isDone = QDir(m_places.packages + QStringLiteral("/firefox")).removeRecursively() && isDone;
    } else if (browser == ExtensionBrowser::chromium) {
        isDone = removeChromiumPackages() && isDone;
        isDone = QDir(m_places.packages + QStringLiteral("/chromium")).removeRecursively() && isDone;
    } else {
        const bool isStillUsed = std::any_of(families.begin(), families.end(), [this](const Family& family) {
            return family.browser != ExtensionBrowser::chromium && isInstalled(family.browser);
        });
        if (!isStillUsed)
            isDone = QDir(m_places.packages + QStringLiteral("/unpacked")).removeRecursively() && isDone;
    }
    QDir().rmdir(m_places.packages);
    if (isDone)
        return {State::removed, QStringLiteral("extension_removed"), {}, {}};
    return {State::failed, QStringLiteral("extension_not_removed"), manifest, {}};
}

} // namespace norvin
