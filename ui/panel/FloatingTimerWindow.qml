pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The time left, over whatever else is on the screen.
OverlayWindow {
    id: root

    required property DeepWorkScreen deepWork
    required property FloatingTimer floatingTimer
    readonly property bool isPaused: root.deepWork.state === "paused"

    title: qsTrId("floating_timer")
    width: Math.ceil(row.implicitWidth) + Theme.gap3 + Theme.gap2
    height: 48
    card: Qt.rect(0, 0, root.width, root.height)
    cardRadius: Theme.radius

    Rectangle {
        anchors.fill: parent
        radius: root.cardRadius
        color: Theme.surface
        border.width: 1
        border.color: grip.isDragged ? Theme.accent : Theme.outline
        Accessible.role: Accessible.Pane
        Accessible.name: qsTrId("floating_timer")

        WindowGrip {
            id: grip

            objectName: "floatingGrip"
            anchors.fill: parent
            onPressed: root.floatingTimer.beginDrag()
            onDragged: (right, down) => root.floatingTimer.dragTo(right, down)
            onReleased: root.floatingTimer.endDrag()
        }

        RowLayout {
            id: row

            anchors.fill: parent
            anchors.leftMargin: Theme.gap3
            anchors.rightMargin: Theme.gap2
            spacing: Theme.gap2

            Symbol {
                name: root.deepWork.phaseSymbol
                color: root.isPaused ? Theme.amber : Theme.phaseColor(root.deepWork.phase)
                size: 22
            }

            Digits {
                objectName: "floatingTime"
                pixelSize: 22
                text: root.deepWork.timeText
                color: root.isPaused ? Theme.textMuted : Theme.text
                Accessible.name: Localization.formats.minutes(root.deepWork.minutes)
            }

            Item {
                implicitWidth: 0
            }

            FloatingTimerButton {
                objectName: "floatingToggle"
                symbol: root.isPaused ? "play" : "pause"
                text: root.isPaused ? qsTrId("resume_button") : qsTrId("pause_button")
                onClicked: root.isPaused ? root.deepWork.resume() : root.deepWork.pause()
            }

            FloatingTimerButton {
                objectName: "floatingClose"
                symbol: "xmark"
                text: qsTrId("floating_timer_close")
                onClicked: root.floatingTimer.isEnabled = false
            }
        }
    }
}
