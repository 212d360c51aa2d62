pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The floating timer's switch, and the way to the main window.
ColumnLayout {
    id: root

    required property FloatingTimer floatingTimer
    required property TrayPanel panel
    readonly property int step: 16

    spacing: Theme.gap3

    Rectangle {
        Layout.fillWidth: true
        implicitHeight: 1
        color: Theme.surfaceHover
    }

    RowLayout {
        spacing: Theme.gap2

        ColumnLayout {
            spacing: 0

            ThemedText {
                Layout.fillWidth: true
                text: qsTrId("floating_timer")
                color: root.floatingTimer.isAvailable ? Theme.text : Theme.textFaint
                wrapMode: Text.WordWrap
                Accessible.ignored: true
            }

            ThemedText {
                objectName: "floatingTimerProblem"
                Layout.fillWidth: true
                visible: text.length > 0
                text: root.floatingTimer.problem
                color: Theme.textMuted
                font.pixelSize: Theme.caption
                wrapMode: Text.WordWrap
            }
        }

        IconButton {
            objectName: "floatingTimerMover"
            visible: root.floatingTimer.isShown
            symbol: "arrow.up.and.down.and.arrow.left.and.right"
            text: qsTrId("floating_timer_move")
            Keys.onLeftPressed: root.floatingTimer.moveBy(-root.step, 0)
            Keys.onRightPressed: root.floatingTimer.moveBy(root.step, 0)
            Keys.onUpPressed: root.floatingTimer.moveBy(0, -root.step)
            Keys.onDownPressed: root.floatingTimer.moveBy(0, root.step)
        }

        ToggleSwitch {
            id: toggle

            objectName: "floatingTimerSwitch"
            text: qsTrId("floating_timer")
            enabled: root.floatingTimer.isAvailable
            checked: root.floatingTimer.isEnabled && root.floatingTimer.isAvailable
            onToggled: root.floatingTimer.isEnabled = toggle.checked
        }
    }

    PushButton {
        objectName: "panelToWindow"
        Layout.fillWidth: true
        symbol: "arrow.up.right.square"
        text: qsTrId("panel_open_window")
        onClicked: root.panel.leaveForWindow()
    }
}
