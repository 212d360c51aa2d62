pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// What happened to the store when the program started, and the way back where there is one.
Banner {
    id: root

    required property DataSettings settings

    objectName: "startNotice"
    symbol: root.settings.isStartNoticeProblem ? "exclamationmark.triangle" : "checkmark.circle.fill"
    foreground: root.settings.isStartNoticeProblem ? Theme.amber : Theme.legitimate
    color: root.settings.isStartNoticeProblem ? Theme.amberSurface : Theme.legitimateSurface
    text: root.settings.startNotice
    actionText: root.settings.startAction
    isDismissible: true
    onActionChosen: root.settings.act()
    onDismissed: root.settings.dismissStartNotice()
}
