pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// A project's emoji on its colour.
Rectangle {
    id: root

    required property string emoji
    required property string colorHex
    readonly property color tint: root.colorHex.length > 0 ? root.colorHex : Theme.accent

    implicitWidth: 40
    implicitHeight: 40
    radius: Theme.radius
    color: Qt.rgba(root.tint.r, root.tint.g, root.tint.b, 0.28)

    Emoji {
        anchors.centerIn: parent
        visible: root.emoji.length > 0
        text: root.emoji
        size: Math.round(root.height / 2)
    }

    Symbol {
        anchors.centerIn: parent
        visible: root.emoji.length === 0
        name: "folder"
        color: Theme.text
    }
}
