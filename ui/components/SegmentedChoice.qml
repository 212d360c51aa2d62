pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A choice of one among a few, side by side. The arrow keys choose; Tab goes past the whole of it.
FocusScope {
    id: root

    /// The values, and by the same index what each is called.
    required property list<string> values
    required property list<string> labels
    required property string value
    /// What is being chosen, for a screen reader.
    required property string name
    /// Names of the options for a screen reader, where the labels say too little; may be empty.
    property list<string> optionNames: []
    /// Colour behind each option while it is chosen, and of its text; the accent where there are none.
    property list<color> chosenColors: []
    property list<color> chosenInks: []
    property int segmentHeight: Theme.controlHeightSmall
    property int segmentPadding: Theme.gap3
    readonly property int index: root.values.indexOf(root.value)

    signal chosen(string value)

    function choose(position: int): void {
        if (position >= 0 && position < root.values.length && position !== root.index)
            root.chosen(root.values[position]);
    }

    implicitWidth: row.implicitWidth + 2 * Theme.gap1
    implicitHeight: root.segmentHeight + 2 * Theme.gap1
    activeFocusOnTab: true
    Accessible.role: Accessible.RadioButton
    Accessible.name: root.index >= 0 ? root.name + ", " + (root.optionNames.length > 0 ? root.optionNames : root.labels)[root.index] : root.name
    Accessible.focusable: true

    Keys.onLeftPressed: root.choose(Math.max(root.index, 1) - 1)
    Keys.onRightPressed: root.choose(root.index + 1)

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: Theme.surfaceRaised

        FocusRing {
            shown: root.activeFocus
            innerRadius: Theme.radius
            distance: 2
        }
    }

    Row {
        id: row

        x: Theme.gap1
        y: Theme.gap1

        Repeater {
            model: root.labels

            T.RadioButton {
                id: segment

                required property int index
                required property string modelData

                text: segment.modelData
                checked: segment.index === root.index
                // As wide as when it is chosen, so that nothing moves.
                implicitWidth: Math.max(chosenText.advanceWidth, 20) + 2 * root.segmentPadding
                implicitHeight: root.segmentHeight
                hoverEnabled: true
                focusPolicy: Qt.NoFocus
                Accessible.name: root.optionNames.length > segment.index ? root.optionNames[segment.index] : segment.text

                onClicked: {
                    root.forceActiveFocus(Qt.MouseFocusReason);
                    root.choose(segment.index);
                }

                TextMetrics {
                    id: chosenText

                    text: segment.text
                    font.pixelSize: Theme.body
                    font.weight: Font.DemiBold
                }

                contentItem: ThemedText {
                    text: segment.text
                    color: segment.checked ? (root.chosenInks[segment.index] ?? Theme.accentInk) : segment.hovered ? Theme.text : Theme.textMuted
                    font.weight: segment.checked ? Font.DemiBold : Font.Normal
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    Accessible.ignored: true
                }

                background: Rectangle {
                    radius: Theme.radiusSmall
                    color: segment.checked ? (root.chosenColors[segment.index] ?? Theme.accent) : segment.hovered ? Theme.surfaceHover : "transparent"
                }
            }
        }
    }
}
