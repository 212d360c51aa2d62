#pragma once

#include "ui/welcome/WelcomeScreen.h"

#include <QQmlEngine>

namespace norvin::qml {

struct WelcomeScreenType {
    Q_GADGET
    QML_FOREIGN(norvin::WelcomeScreen)
    QML_NAMED_ELEMENT(WelcomeScreen)
    QML_UNCREATABLE("Handed to the window")
};

} // namespace norvin::qml
