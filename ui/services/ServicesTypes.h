#pragma once

#include "services/OutsideServices.h"

#include <QQmlEngine>

namespace norvin::qml {

// The classes behind updates, feedback and the licence, under the names that QML knows them by.

struct OutsideServicesType {
    Q_GADGET
    QML_FOREIGN(norvin::OutsideServices)
    QML_NAMED_ELEMENT(OutsideServices)
    QML_UNCREATABLE("Handed to the window")
};

struct UpdaterServiceType {
    Q_GADGET
    QML_FOREIGN(norvin::UpdaterService)
    QML_NAMED_ELEMENT(UpdaterService)
    QML_UNCREATABLE("Belongs to the outside services")
};

struct FeedbackFormType {
    Q_GADGET
    QML_FOREIGN(norvin::FeedbackForm)
    QML_NAMED_ELEMENT(FeedbackForm)
    QML_UNCREATABLE("Belongs to the outside services")
};

struct LicenseServiceType {
    Q_GADGET
    QML_FOREIGN(norvin::LicenseService)
    QML_NAMED_ELEMENT(LicenseService)
    QML_UNCREATABLE("Belongs to the outside services")
};

} // namespace norvin::qml
