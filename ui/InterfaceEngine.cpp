#include "ui/InterfaceEngine.h"

#include "platform/Log.h"
#include "ui/ForeignTypes.h"
#include "ui/ImageProviders.h"
#include "ui/alert/OverlayWindow.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QLibrary>
#include <QLibraryInfo>
#include <QQmlComponent>
#include <QQuickWindow>
#include <QThread>
#include <QThreadPool>
#include <QUrl>

#include <cmath>

// The module is linked in, not loaded from a plugin, so its types are registered by hand.
extern void qml_register_types_NorvinFocus_Ui();

namespace norvin {

namespace {

QUrl addressOf(const char* file) {
    return QUrl(QStringLiteral("qrc:/NorvinFocus/Ui/") + QLatin1String(file));
}

} // namespace

InterfaceEngine::InterfaceEngine()
    : m_appIcons(new AppIconProvider)
    , m_symbols(new SymbolProvider) {
    // The first text that is laid out waits for the list of the machine's fonts, which is long in the making.
    QThreadPool::globalInstance()->start([] { static_cast<void>(QFontDatabase::families()); });
    qml_register_types_NorvinFocus_Ui();
    m_engine.addImportPath(QStringLiteral("qrc:/"));
    m_engine.addImageProvider(QStringLiteral("appicon"), m_appIcons);
    m_engine.addImageProvider(QStringLiteral("symbol"), m_symbols);
    compileMeanwhile("shell/Main.qml");
}

InterfaceEngine::~InterfaceEngine() = default;

std::jthread InterfaceEngine::readLibrariesAhead() {
    // Qt takes the first thread that it meets for the main one.
    static_cast<void>(QThread::currentThread());
    return std::jthread([] {
        const QString folder = QLibraryInfo::path(QLibraryInfo::QmlImportsPath);
        // Where one of them is missing, the engine will say so.
        for (const char* plugin :
             {"/QtQuick/libqtquick2plugin.so", "/QtQuick/Templates/libqtquicktemplates2plugin.so",
              "/QtQuick/Layouts/libqquicklayoutsplugin.so", "/QtQml/libqmlplugin.so",
              "/QtQml/Models/libmodelsplugin.so", "/QtQml/WorkerScript/libworkerscriptplugin.so"})
            QLibrary(folder + QLatin1String(plugin)).load();
    });
}

void InterfaceEngine::prepareFirstPicture() {
    struct Type {
        int pixelSize;
        QFont::Weight weight;
    };
    // As Theme.qml has them; one that is missing here is only loaded later.
    QFont font = QGuiApplication::font();
    for (const Type type : {Type{14, QFont::Normal}, Type{14, QFont::DemiBold}, Type{16, QFont::Normal},
                            Type{16, QFont::DemiBold}, Type{24, QFont::DemiBold}, Type{12, QFont::Normal},
                            Type{75, QFont::DemiBold}}) {
        font.setPixelSize(type.pixelSize);
        font.setWeight(type.weight);
        static_cast<void>(QFontMetricsF(font).horizontalAdvance(QLatin1Char('0')));
    }
    struct Sign {
        const char* name;
        int size;
    };
    const double ratio = qGuiApp->devicePixelRatio();
    for (const Sign sign : {Sign{"brain", 28}, Sign{"timer", 20}, Sign{"calendar", 20}, Sign{"folder", 20},
                            Sign{"chart.bar", 20}, Sign{"hand.raised", 20}, Sign{"waveform.path.ecg", 20},
                            Sign{"gearshape", 20}, Sign{"brain", 36}, Sign{"play", 18},
                            Sign{"metronome.slash", 24}, Sign{"headphones", 24}})
        m_symbols->prepare(QLatin1String(sign.name), static_cast<int>(std::lround(sign.size * ratio)));
}

void InterfaceEngine::setApplications(const ApplicationCatalog& catalog) {
    m_appIcons->setCatalog(catalog);
}

void InterfaceEngine::setSingletons(Localization& localization, MotionPreference& motion) {
    m_engine.setProperty(qml::LocalizationType::engineProperty, QVariant::fromValue(&localization));
    m_engine.setProperty(qml::MotionPreferenceType::engineProperty, QVariant::fromValue(&motion));
}

void InterfaceEngine::compileMeanwhile(const char* file) {
    m_compiling = std::make_unique<QQmlComponent>(&m_engine, addressOf(file), QQmlComponent::Asynchronous);
}

void InterfaceEngine::finishCompiling() {
    if (m_window)
        return;
    // Another component of the same file, wanted at once, waits for what the first one began.
    m_window = std::make_unique<QQmlComponent>(&m_engine, m_compiling->url());
    compileMeanwhile("deepwork/TaskPanel.qml");
}

std::unique_ptr<QObject> InterfaceEngine::createWindow(const QVariantMap& properties) {
    finishCompiling();
    std::unique_ptr<QObject> object;
    if (m_window->isReady())
        object.reset(m_window->createWithInitialProperties(properties));
    if (!object)
        logLine(
            QStringLiteral("InterfaceEngine: The window cannot be built: %1").arg(m_window->errorString()));
    return object;
}

std::unique_ptr<QQuickWindow> InterfaceEngine::createWindow(const char* file, const QVariantMap& properties) {
    QQmlComponent component(&m_engine, addressOf(file));
    std::unique_ptr<QObject> object(component.createWithInitialProperties(properties));
    std::unique_ptr<QQuickWindow> window(qobject_cast<QQuickWindow*>(object.get()));
    if (!window) {
        logLine(QStringLiteral("InterfaceEngine: %1 cannot be built: %2")
                    .arg(QLatin1String(file), component.errorString()));
        return nullptr;
    }
    static_cast<void>(object.release()); // the same object as window
    return window;
}

std::unique_ptr<OverlayWindow> InterfaceEngine::createOverlay(const char* file,
                                                              const QVariantMap& properties) {
    std::unique_ptr<QQuickWindow> window = createWindow(file, properties);
    auto* overlay = qobject_cast<OverlayWindow*>(window.get());
    if (overlay)
        static_cast<void>(window.release()); // the same object as overlay
    return std::unique_ptr<OverlayWindow>(overlay);
}

} // namespace norvin
