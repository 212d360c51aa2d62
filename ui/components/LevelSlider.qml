pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// Sets a level of 0 to 100 per cent; the arrow keys by fives.
T.Slider {
    id: root

    /// What is being set, for a screen reader.
    required property string name

    from: 0
    to: 100
    stepSize: 5
    implicitWidth: 200
    implicitHeight: Theme.controlHeightSmall
    leftPadding: 10
    rightPadding: 10
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.name: root.name

    background: Rectangle {
        x: root.leftPadding - 2
        y: Math.round((root.height - height) / 2)
        width: root.availableWidth + 4
        height: 6
        radius: 3
        color: Theme.surfacePressed

        Rectangle {
            width: root.visualPosition * parent.width
            height: parent.height
            radius: parent.radius
            color: Theme.accentBright
        }
    }

    handle: Rectangle {
        x: root.leftPadding + Math.round(root.visualPosition * root.availableWidth) - 10
        y: Math.round((root.height - height) / 2)
        width: 20
        height: 20
        radius: 10
        color: root.pressed || root.hovered || root.visualFocus ? Theme.accentInk : Theme.text

        FocusRing {
            shown: root.visualFocus
            innerRadius: 10
            distance: 3
        }
    }
}
