#pragma once

#include "settings/PreferencesScreen.h"

#include <QQmlEngine>

namespace norvin::qml {

// The classes behind the preferences, under the names that QML knows them by.

struct PreferencesScreenType {
    Q_GADGET
    QML_FOREIGN(norvin::PreferencesScreen)
    QML_NAMED_ELEMENT(PreferencesScreen)
    QML_UNCREATABLE("Handed to the window")
};

} // namespace norvin::qml
