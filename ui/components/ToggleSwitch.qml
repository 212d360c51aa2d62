pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// Switches one thing on and off. Its text is its name; what shows it stands beside it.
T.Switch {
    id: root

    implicitWidth: 48
    implicitHeight: Theme.controlHeightSmall
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.name: root.text

    Keys.onReturnPressed: {
        root.toggle();
        root.toggled();
    }
    Keys.onEnterPressed: {
        root.toggle();
        root.toggled();
    }

    indicator: Rectangle {
        y: Math.round((root.height - height) / 2)
        width: root.width
        height: 28
        radius: height / 2
        color: root.checked ? root.hovered ? Theme.accentHover : Theme.accent : root.hovered ? Theme.outline : Theme.surfacePressed

        Rectangle {
            x: root.checked ? parent.width - width - Theme.gap1 : Theme.gap1
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            radius: 10
            color: root.checked ? Theme.accentInk : Theme.textMuted

            Behavior on x {
                NumberAnimation {
                    duration: Theme.motionFast
                }
            }
        }

        FocusRing {
            shown: root.visualFocus
            innerRadius: parent.height / 2
        }
    }
}
