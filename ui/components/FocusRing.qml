pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The outline that shows where the keyboard is; fills the item that it belongs to.
Rectangle {
    id: root

    property bool shown: false
    property int distance: 3
    property int innerRadius: Theme.radiusSmall

    anchors.fill: parent
    anchors.margins: -root.distance
    radius: root.innerRadius + root.distance
    color: "transparent"
    border.width: 2
    border.color: Theme.focusRing
    visible: root.shown
}
