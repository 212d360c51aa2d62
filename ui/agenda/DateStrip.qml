pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The days from today on, side by side. The arrow keys choose the day before and after, Home and End the first and
/// the last; the wheel scrolls.
ListView {
    id: root

    required property HorizontalDatePicker picker
    readonly property int selectedRow: root.picker.selectedRow

    function select(row: int): void {
        root.picker.select(Math.max(0, Math.min(row, root.count - 1)));
    }

    objectName: "dateStrip"
    orientation: ListView.Horizontal
    implicitHeight: 80
    clip: true
    spacing: 12
    activeFocusOnTab: true
    keyNavigationEnabled: false
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: Theme.motion
    currentIndex: root.selectedRow
    model: root.picker
    Accessible.role: Accessible.List
    Accessible.name: qsTrId("date_strip_name") + ", " + ((root.currentItem as DateCard)?.name ?? "")
    Accessible.focusable: true

    Keys.onLeftPressed: root.select(root.selectedRow - 1)
    Keys.onRightPressed: root.select(root.selectedRow + 1)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
        if (event.accepted)
            root.select(event.key === Qt.Key_Home ? 0 : root.count - 1);
    }

    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        orientation: Qt.Vertical
        target: null
        onWheel: event => root.contentX = Math.max(0, Math.min(root.contentWidth - root.width, root.contentX - event.angleDelta.y))
    }

    delegate: DateCard {
        id: card

        onClicked: {
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.picker.select(card.index);
        }

        FocusRing {
            shown: root.activeFocus && (card.isSelected || (root.selectedRow < 0 && card.index === 0))
            distance: -2
            innerRadius: Theme.radius
        }
    }
}
