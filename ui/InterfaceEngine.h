#pragma once

#include <QtQml/QQmlEngine>

#include <memory>
#include <thread>

class QQmlComponent;
class QQuickWindow;

namespace norvin {

class AppIconProvider;
class ApplicationCatalog;
class Localization;
class MotionPreference;
class OverlayWindow;
class SymbolProvider;

/// Compiles the window's QML, which takes longer than anything else at the start: it begins when this is
/// made, on a thread of its own, so that whatever the window is to show can be put together meanwhile. Needs
/// a QGuiApplication. Main thread only.
class InterfaceEngine final {
public:
    InterfaceEngine();
    InterfaceEngine(const InterfaceEngine&) = delete;
    InterfaceEngine& operator=(const InterfaceEngine&) = delete;
    ~InterfaceEngine();

    /// What the QML singletons of these names are. Both must outlive the engine.
    void setSingletons(Localization& localization, MotionPreference& motion);
    /// Where the icons of applications come from. @param catalog must outlive the engine
    void setApplications(const ApplicationCatalog& catalog);
    /// To be called on the main thread before there is a QGuiApplication: reads the libraries that the
    /// window's QML will ask for, on the thread that is returned, while the connection to the display is
    /// made.
    [[nodiscard]] static std::jthread readLibrariesAhead();
    /// Makes fonts and symbols of the first picture ready: what to do while the window is compiled.
    void prepareFirstPicture();
    /// Waits until the main window is compiled, and lets what follows its first picture be compiled next.
    void finishCompiling();
    /// Makes the main window with these properties, hidden.
    /// @return null where it cannot be made; the reason is logged
    [[nodiscard]] std::unique_ptr<QObject> createWindow(const QVariantMap& properties);
    /// Makes another window from its file, with these properties, hidden.
    /// @return null where it cannot be made; the reason is logged
    [[nodiscard]] std::unique_ptr<QQuickWindow> createWindow(const char* file, const QVariantMap& properties);
    /// Makes an overlay from its file, with these properties, hidden.
    /// @return null where it cannot be made; the reason is logged
    [[nodiscard]] std::unique_ptr<OverlayWindow> createOverlay(const char* file,
                                                               const QVariantMap& properties);
    /// Evaluates all texts anew, after the language changed.
    void retranslate() { m_engine.retranslate(); }

private:
    void compileMeanwhile(const char* file);

    QQmlEngine m_engine;
    /// Belongs to the engine.
    AppIconProvider* m_appIcons;
    SymbolProvider* m_symbols;
    std::unique_ptr<QQmlComponent> m_compiling;
    std::unique_ptr<QQmlComponent> m_window;
};

} // namespace norvin
