pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Shapes
import NorvinFocus.Ui

/// A dashed line across a chart at a value that is worth a mark, with its name above it.
Shape {
    id: root

    required property string name

    ShapePath {
        strokeColor: Theme.amber
        strokeWidth: 1
        strokeStyle: ShapePath.DashLine
        dashPattern: [5, 4]
        fillColor: "transparent"

        PathLine {
            x: root.width
            y: 0
        }
    }

    ThemedText {
        anchors.right: parent.right
        y: -height - 2
        text: root.name
        color: Theme.amber
        font.pixelSize: Theme.caption
        Accessible.ignored: true
    }
}
