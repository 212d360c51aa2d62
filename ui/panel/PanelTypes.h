#pragma once

#include "ui/panel/FloatingTimer.h"
#include "ui/panel/TrayPanel.h"

#include <QQmlEngine>

namespace norvin::qml {

struct FloatingTimerType {
    Q_GADGET
    QML_FOREIGN(norvin::FloatingTimer)
    QML_NAMED_ELEMENT(FloatingTimer)
    QML_UNCREATABLE("Handed to the windows that show it")
};

struct TrayPanelType {
    Q_GADGET
    QML_FOREIGN(norvin::TrayPanel)
    QML_NAMED_ELEMENT(TrayPanel)
    QML_UNCREATABLE("Handed to its window")
};

} // namespace norvin::qml
