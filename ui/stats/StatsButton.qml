pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A figure or row that tells where it comes from when it is asked: by a click, Enter or Space.
T.AbstractButton {
    id: root

    /// All of it in words.
    required property string words
    property color surface: "transparent"
    property int innerRadius: Theme.radiusSmall
    default property alias content: body.data

    /// The records behind it are asked for.
    signal explained

    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.name: root.words
    Accessible.description: qsTrId("stats_explain_hint")

    onClicked: root.explained()
    Keys.onReturnPressed: root.explained()
    Keys.onEnterPressed: root.explained()

    Item {
        id: body

        anchors.fill: parent
        anchors.margins: root.padding
    }

    background: Rectangle {
        radius: root.innerRadius
        color: root.down ? Theme.surfacePressed : root.hovered ? Theme.surfaceRaised : root.surface

        FocusRing {
            shown: root.visualFocus
            distance: 1
            innerRadius: root.innerRadius
        }
    }
}
