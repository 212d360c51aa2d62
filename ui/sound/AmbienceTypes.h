#pragma once

#include "sound/AmbientSoundService.h"
#include "sound/ImmersionService.h"

#include <QQmlEngine>

namespace norvin::qml {

// What lies under and over a session, under the names that QML knows it by.

struct AmbientSoundServiceType {
    Q_GADGET
    QML_FOREIGN(norvin::AmbientSoundService)
    QML_NAMED_ELEMENT(AmbientSoundService)
    QML_UNCREATABLE("Handed to the window")
};

struct ImmersionServiceType {
    Q_GADGET
    QML_FOREIGN(norvin::ImmersionService)
    QML_NAMED_ELEMENT(ImmersionService)
    QML_UNCREATABLE("Handed to the window")
};

} // namespace norvin::qml
