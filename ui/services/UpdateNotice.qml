pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Tells in the window what a look for updates found, until the user has seen it.
Banner {
    id: root

    required property UpdaterService model
    readonly property UpdateText words: UpdateText {
        updater: root.model
    }

    objectName: "updateNotice"
    text: root.words.text
    symbol: root.words.symbol
    foreground: root.words.color
    color: root.words.isFailure ? Theme.amberSurface : root.words.isUpdate ? Theme.accentSurface : Theme.legitimateSurface
    actionText: root.model.canOpenSoftwareCentre ? qsTrId("update_open_centre_button") : ""
    isDismissible: true
    onActionChosen: root.model.openSoftwareCentre()
    onDismissed: root.model.dismissNotice()
}
