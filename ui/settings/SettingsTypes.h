#pragma once

#include "settings/BackupListModel.h"
#include "settings/DataSettings.h"
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

struct DataSettingsType {
    Q_GADGET
    QML_FOREIGN(norvin::DataSettings)
    QML_NAMED_ELEMENT(DataSettings)
    QML_UNCREATABLE("Belongs to the preferences")
};

struct BackupListModelType {
    Q_GADGET
    QML_FOREIGN(norvin::BackupListModel)
    QML_NAMED_ELEMENT(BackupListModel)
    QML_UNCREATABLE("Belongs to the preferences")
};

} // namespace norvin::qml
