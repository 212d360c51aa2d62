#include "platform/linux/OwnWindows.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>

namespace norvin {

std::vector<QWindow*> presentOwnWindows() {
    std::vector<QWindow*> windows;
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        const bool ordinary = window->type() == Qt::Window || window->type() == Qt::Dialog;
        if (ordinary && !window->flags().testFlag(Qt::BypassWindowManagerHint))
            windows.push_back(window);
    }
    if (std::any_of(windows.begin(), windows.end(),
                    [](const QWindow* window) { return window->isVisible(); }))
        std::erase_if(windows, [](const QWindow* window) { return !window->isVisible(); });
    else
        std::erase_if(windows, [](const QWindow* window) {
            return window->type() != Qt::Window || window->transientParent();
        });
    for (QWindow* window : windows) {
        window->setVisible(true);
        window->setWindowStates(window->windowStates() & ~Qt::WindowMinimized);
        window->raise();
    }
    if (!windows.empty())
        windows.back()->requestActivate();
    return windows;
}

} // namespace norvin
