pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A day of the strip.
T.RadioButton {
    id: root

    required property int index
    required property string weekday
    required property int day
    required property string month
    required property string name
    required property bool isSelected
    required property bool isToday
    readonly property color ink: root.isSelected ? Theme.accentInk : Theme.text
    readonly property color mutedInk: root.isSelected ? Theme.accentInk : root.isToday ? Theme.accentText : Theme.textMuted

    implicitWidth: 64
    implicitHeight: 80
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    checked: root.isSelected
    Accessible.name: root.isToday ? qsTrId("today") + ", " + root.name : root.name

    contentItem: Column {
        topPadding: 10
        spacing: 0

        ThemedText {
            width: parent.width
            text: root.weekday
            color: root.mutedInk
            font.pixelSize: Theme.caption
            font.weight: root.isToday ? Font.DemiBold : Font.Normal
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        ThemedText {
            width: parent.width
            text: String(root.day)
            color: root.ink
            font.pixelSize: 22
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignHCenter
            Accessible.ignored: true
        }

        ThemedText {
            width: parent.width
            text: root.month
            color: root.mutedInk
            font.pixelSize: Theme.caption
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }

    background: Rectangle {
        radius: Theme.radius
        color: root.isSelected ? Theme.accent : root.hovered ? Theme.surfaceHover : Theme.surface
        border.width: root.isToday && !root.isSelected ? 1 : 0
        border.color: Theme.accentText
    }
}
