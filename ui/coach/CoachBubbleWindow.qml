pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The coach's latest message over whatever else is on the screen. A click takes it away.
OverlayWindow {
    id: root

    required property AICoachService coach

    title: "Norvin Focus"
    width: 360
    height: Math.max(Math.ceil(message.implicitHeight) + 2 * Theme.gap4, 64)
    card: Qt.rect(0, 0, root.width, root.height)
    cardRadius: Theme.radiusLarge

    Rectangle {
        anchors.fill: parent
        radius: root.cardRadius
        color: area.containsMouse ? Theme.surfaceRaised : Theme.surface
        border.width: 1
        border.color: Theme.accent
        Accessible.role: Accessible.AlertMessage
        Accessible.name: root.coach.latestText

        MouseArea {
            id: area

            anchors.fill: parent
            hoverEnabled: true
            cursorShape: Qt.PointingHandCursor
            onClicked: root.coach.dismissMessage()
        }

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.gap4
            anchors.rightMargin: Theme.gap4
            spacing: Theme.gap3

            Symbol {
                name: "brain.head.profile"
                color: Theme.accentText
                size: 24
            }

            ThemedText {
                id: message

                Layout.fillWidth: true
                text: root.coach.latestText
                wrapMode: Text.WordWrap
                Accessible.ignored: true
            }

            Symbol {
                Layout.alignment: Qt.AlignTop
                Layout.topMargin: Theme.gap4
                name: "xmark"
                color: area.containsMouse ? Theme.text : Theme.textFaint
                size: 14
            }
        }
    }
}
