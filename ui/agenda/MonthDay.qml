pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A day of a month, with a dot for each of its tasks, or from four on their number.
T.RadioButton {
    id: root

    required property int index
    required property int day
    required property bool isInMonth
    required property bool isToday
    required property bool isSelected
    required property int taskCount
    required property string name
    required property bool hasCursor
    readonly property color ink: root.isSelected ? Theme.accentInk : root.isToday ? Theme.accentText : root.isInMonth ? Theme.text : Theme.textFaint

    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    checked: root.isSelected
    Accessible.name: root.name

    contentItem: Item {
        ThemedText {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 8
            text: String(root.day)
            color: root.ink
            font.weight: root.isToday || root.isSelected ? Font.Bold : Font.Normal
            Accessible.ignored: true
        }

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 29
            spacing: 3

            Repeater {
                model: root.taskCount <= 3 ? root.taskCount : 0

                Rectangle {
                    width: 5
                    height: 5
                    radius: 2.5
                    color: root.isSelected ? Theme.accentInk : Theme.accentText
                    opacity: root.isInMonth ? 1 : 0.6
                }
            }
        }

        ThemedText {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 25
            visible: root.taskCount > 3
            text: String(root.taskCount)
            color: root.isSelected ? Theme.accentInk : Theme.accentText
            font.pixelSize: 10
            font.weight: Font.Bold
            Accessible.ignored: true
        }
    }

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.margins: 2
            radius: Theme.radiusSmall
            color: root.isSelected ? Theme.accent : root.down ? Theme.surfacePressed : root.hovered ? Theme.surfaceHover : "transparent"
            border.width: root.isToday && !root.isSelected ? 1 : 0
            border.color: Theme.accentText
        }

        FocusRing {
            shown: root.hasCursor
            distance: 0
        }
    }
}
