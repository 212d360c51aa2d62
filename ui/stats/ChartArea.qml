pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// What all charts have in common: one place for Tab to stop, the arrow keys that go from point to point, the bubble
/// that says what a point is, and the whole of it in words. Enter and a click ask where a point comes from.
FocusScope {
    id: root

    required property ChartModel model
    required property string title
    /// Place of the point that the pointer is over; -1 for none.
    property int hovered: -1
    /// Place of the point that the keyboard is at; -1 before it was there.
    property int selected: -1
    readonly property int current: root.hovered >= 0 ? root.hovered : root.activeFocus ? root.selected : -1
    /// Whether the points stand one below the other.
    property bool isVertical: false
    /// What the bubble stands above, in the coordinates of this item.
    property real bubbleX: 0
    property real bubbleY: 0
    property bool hasBubble: true
    /// From 0 to 1 while the chart comes up.
    property real grown: 1
    default property alias content: body.data

    /// The records behind a point are asked for.
    signal explained(string key)

    function go(place: int): void {
        root.hovered = -1;
        root.selected = Math.max(0, Math.min(place, root.model.count - 1));
    }

    function explainAt(place: int): void {
        if (place >= 0 && place < root.model.count)
            root.explained(cursor.keyAt(place));
    }

    function take(place: int): void {
        root.forceActiveFocus(Qt.MouseFocusReason);
        root.selected = place;
        root.explainAt(place);
    }

    activeFocusOnTab: root.model.count > 0
    Accessible.role: Accessible.Chart
    Accessible.name: root.current >= 0 ? root.title + ", " + cursor.text : root.title
    Accessible.description: root.model.summary
    Accessible.focusable: true

    onActiveFocusChanged: {
        if (root.activeFocus && root.selected < 0)
            root.selected = cursor.first();
    }
    Component.onCompleted: growth.restart()

    Keys.onPressed: event => {
        const back = event.key === Qt.Key_Left || (root.isVertical && event.key === Qt.Key_Up);
        const on = event.key === Qt.Key_Right || (root.isVertical && event.key === Qt.Key_Down);
        event.accepted = true;
        if (back || on)
            root.go(root.selected + (on ? 1 : -1));
        else if (event.key === Qt.Key_Home)
            root.go(0);
        else if (event.key === Qt.Key_End)
            root.go(root.model.count - 1);
        else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space)
            root.explainAt(root.selected);
        else
            event.accepted = false;
    }

    Connections {
        target: root.model

        function onModelReset(): void {
            root.hovered = -1;
            root.selected = root.activeFocus ? cursor.first() : -1;
            growth.restart();
        }
    }

    ChartCursor {
        id: cursor

        model: root.model
        index: root.current
    }

    NumberAnimation {
        id: growth

        target: root
        property: "grown"
        from: 0
        to: 1
        duration: Theme.motion
        easing.type: Easing.OutCubic
    }

    Item {
        id: body

        anchors.fill: parent
    }

    FocusRing {
        shown: root.activeFocus
        distance: 10
        innerRadius: Theme.radiusSmall
    }

    Rectangle {
        id: bubble

        objectName: "chartBubble"
        visible: root.hasBubble && cursor.index >= 0
        width: Math.ceil(bubbleTexts.implicitWidth) + 2 * Theme.gap3
        height: bubbleTexts.implicitHeight + 2 * Theme.gap1
        x: Math.max(0, Math.min(Math.round(root.bubbleX - width / 2), root.width - width))
        y: Math.max(-Theme.gap4, Math.round(root.bubbleY - height - Theme.gap2))
        radius: Theme.radiusSmall
        color: Theme.surfacePressed
        border.width: 1
        border.color: Theme.outline

        Column {
            id: bubbleTexts

            anchors.centerIn: parent

            ThemedText {
                text: cursor.name
                color: Theme.textMuted
                font.pixelSize: Theme.caption
                Accessible.ignored: true
            }

            ThemedText {
                objectName: "chartBubbleValue"
                text: cursor.valueText
                font.weight: Font.DemiBold
                Accessible.ignored: true
            }
        }
    }
}
