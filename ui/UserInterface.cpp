#include "ui/UserInterface.h"

#include "distraction/ApplicationListModel.h"
#include "distraction/TrackingHealthModel.h"
#include "focus/DeepWorkScreen.h"
#include "platform/Log.h"
#include "ui/ForeignTypes.h"
#include "ui/ImageProviders.h"
#include "ui/Localization.h"
#include "ui/MotionPreference.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QStyleHints>
#include <QUrl>

// The module is linked in, not loaded from a plugin, so its types are registered by hand.
extern void qml_register_types_NorvinFocus_Ui();

namespace norvin {

UserInterface::UserInterface(DeepWorkScreen& deepWork, ApplicationListModel& applications,
                             TrackingHealthModel& health, Localization& localization, QObject* parent)
    : QObject(parent)
    , m_deepWork(deepWork)
    , m_applications(applications)
    , m_health(health)
    , m_localization(localization)
    , m_motion(std::make_unique<MotionPreference>()) {
    connect(&localization, &Localization::languageChanged, this, [this] {
        m_health.retranslate();
        if (m_engine)
            m_engine->retranslate();
    });
}

UserInterface::~UserInterface() = default;

bool UserInterface::load() {
    // A blinking cursor would wake the program twice a second for as long as a field has the keyboard.
    QGuiApplication::styleHints()->setCursorFlashTime(0);
    qml_register_types_NorvinFocus_Ui();
    m_engine = std::make_unique<QQmlEngine>();
    m_engine->addImportPath(QStringLiteral("qrc:/"));
    m_engine->setProperty(qml::LocalizationType::engineProperty, QVariant::fromValue(&m_localization));
    m_engine->setProperty(qml::MotionPreferenceType::engineProperty, QVariant::fromValue(m_motion.get()));
    m_engine->addImageProvider(QStringLiteral("appicon"), new AppIconProvider);
    m_engine->addImageProvider(QStringLiteral("symbol"), new SymbolProvider);

    QQmlComponent component(m_engine.get(), QUrl(QStringLiteral("qrc:/NorvinFocus/Ui/shell/Main.qml")));
    std::unique_ptr<QObject> root;
    if (component.isReady())
        root.reset(component.createWithInitialProperties({
            {QStringLiteral("deepWork"), QVariant::fromValue(&m_deepWork)},
            {QStringLiteral("applications"), QVariant::fromValue(&m_applications)},
            {QStringLiteral("health"), QVariant::fromValue(&m_health)},
            {QStringLiteral("storeProblem"), m_storeProblem},
        }));
    m_window.reset(qobject_cast<QQuickWindow*>(root.get()));
    if (!m_window) {
        logLine(QStringLiteral("UserInterface: The window cannot be built: %1").arg(component.errorString()));
        return false;
    }
    static_cast<void>(root.release()); // the same object as m_window
    m_window->setIcon(QIcon(QStringLiteral(":/icons/com.norvin.Focus.svg")));
    m_window->installEventFilter(this);
    QCoreApplication::instance()->installEventFilter(this);
    connect(m_window.get(), SIGNAL(quitConfirmed()), this, SLOT(quit()));
    connect(
        m_window.get(), &QQuickWindow::frameSwapped, this,
        [this] {
            // Asked only now, so that a slow bus cannot hold up the first picture.
            m_motion->askDesktop();
            Q_EMIT firstFrameShown();
        },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    return true;
}

void UserInterface::showWindow() {
    if (!m_window)
        return;
    m_isQuitting = false;
    if (m_window->windowStates().testFlag(Qt::WindowMinimized))
        m_window->setWindowStates(m_window->windowStates() & ~Qt::WindowStates(Qt::WindowMinimized));
    m_window->show();
    m_window->raise();
    m_window->requestActivate();
}

void UserInterface::setStoreProblem(const QString& text) {
    if (text == m_storeProblem)
        return;
    m_storeProblem = text;
    if (m_window)
        m_window->setProperty("storeProblem", text);
    Q_EMIT storeProblemChanged();
}

bool UserInterface::isPhaseUnderWay() const {
    return m_deepWork.state() == QLatin1String("running") || m_deepWork.state() == QLatin1String("paused");
}

void UserInterface::quit() {
    m_isQuitting = true;
    Q_EMIT quitRequested();
}

bool UserInterface::eventFilter(QObject* watched, QEvent* event) {
    // The application closes its windows to quit, and gives up quitting when one of them refuses.
    if (watched == QCoreApplication::instance() && event->type() == QEvent::Quit)
        m_isQuitting = true;
    if (watched != m_window.get() || event->type() != QEvent::Close || m_isQuitting)
        return QObject::eventFilter(watched, event);
    if (!isPhaseUnderWay()) {
        quit();
        return false;
    }
    event->ignore();
    m_window->hide();
    Q_EMIT windowClosedWhileRunning();
    return true;
}

} // namespace norvin
