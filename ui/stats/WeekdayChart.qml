pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The days of the week side by side.
ChartArea {
    id: root

    readonly property real band: root.model.count > 0 ? root.width / root.model.count : 0

    implicitHeight: 200
    bubbleX: (root.current + 0.5) * root.band
    bubbleY: root.height * 0.4

    Repeater {
        model: root.model

        WeekdayBar {
            id: day

            required property int index
            required property real value

            x: day.index * root.band
            width: root.band
            height: root.height
            minutes: day.value
            maxMinutes: root.model.largest
            animate: true
            isCurrent: day.index === root.current

            HoverHandler {
                cursorShape: Qt.PointingHandCursor
                onHoveredChanged: root.hovered = hovered ? day.index : -1
            }

            TapHandler {
                onTapped: root.take(day.index)
            }
        }
    }
}
