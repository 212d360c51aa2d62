pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// One task to begin with.
WelcomeStep {
    id: root

    symbol: "timer"
    title: qsTrId("welcome_task_title")
    message: qsTrId("welcome_task_subtitle")
    wantsKeyboard: true
    onKeyboardGiven: field.forceActiveFocus(Qt.TabFocusReason)

    EntryField {
        id: field

        objectName: "welcomeTask"
        Layout.fillWidth: true
        implicitHeight: Theme.controlHeightLarge
        symbol: "plus"
        placeholderText: qsTrId("welcome_task_placeholder")
        text: root.screen.taskTitle
        onTextEdited: root.screen.taskTitle = field.text
        onAccepted: root.screen.start()
    }

    WelcomePoint {
        Layout.fillWidth: true
        symbol: "magnifyingglass"
        text: qsTrId("welcome_task_palette")
    }

    Item {
        Layout.fillHeight: true
    }
}
