pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// One of the program's own symbols, by name, in one colour.
Item {
    id: root

    required property string name
    property color color: Theme.text
    property int size: 20

    implicitWidth: root.size
    implicitHeight: root.size

    Image {
        anchors.centerIn: parent
        width: root.size
        height: root.size
        sourceSize.width: Math.round(root.size * Screen.devicePixelRatio)
        sourceSize.height: Math.round(root.size * Screen.devicePixelRatio)
        source: root.name.length > 0 ? "image://symbol/" + root.name + "/" + root.color.toString().substring(1) : ""
    }
}
