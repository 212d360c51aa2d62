pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The coach's latest message, for as long as it is to be seen.
Rectangle {
    id: root

    required property AICoachService coach
    /// From 0, where nothing of the message is there, to 1.
    property real presence: root.hasEntered && root.coach.isVisible ? 1 : 0
    property bool hasEntered: false

    implicitHeight: Math.max(Math.ceil(message.implicitHeight) + 2 * Theme.gap4, 56)
    visible: root.presence > 0.01
    enabled: root.coach.isVisible
    opacity: Math.min(1, root.presence)
    radius: Theme.radiusLarge
    color: Theme.accentSurface
    border.width: 1
    border.color: Theme.accent
    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.coach.latestText

    transform: Translate {
        y: Math.round((1 - root.presence) * -Theme.gap6)
    }

    Component.onCompleted: root.hasEntered = true

    Behavior on presence {
        enabled: !MotionPreference.isReduced

        // A spring that would take 0.4 s for a swing, damped to 0.8 of what lets it swing no more.
        SpringAnimation {
            spring: 3.95
            damping: 0.402
            epsilon: 0.005
        }
    }

    // What lies below is not meant.
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.gap5
        anchors.rightMargin: Theme.gap3
        spacing: Theme.gap4

        Symbol {
            name: "brain.head.profile"
            color: Theme.accentText
            size: 24
        }

        ThemedText {
            id: message

            objectName: "coachMessage"
            Layout.fillWidth: true
            text: root.coach.latestText
            wrapMode: Text.WordWrap
            Accessible.ignored: true
        }

        IconButton {
            objectName: "coachDismiss"
            symbol: "xmark"
            text: qsTrId("coach_dismiss_button")
            symbolColor: Theme.text
            // A click here must not take the keyboard from where it is.
            focusPolicy: Qt.TabFocus
            onClicked: root.coach.dismissMessage()
        }
    }
}
