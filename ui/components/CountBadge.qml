pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// A small number that asks for attention. Whoever shows it says it to a screen reader.
Rectangle {
    id: root

    required property int count

    implicitWidth: Math.max(20, number.implicitWidth + 12)
    implicitHeight: 20
    radius: 10
    color: Theme.amber

    ThemedText {
        id: number

        anchors.centerIn: parent
        text: String(root.count)
        color: Theme.background
        font.pixelSize: Theme.caption
        font.weight: Font.Bold
        Accessible.ignored: true
    }
}
