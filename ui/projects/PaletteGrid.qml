pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// A choice of one out of a palette. The arrow keys choose; Tab goes past the whole of it.
FocusScope {
    id: root

    required property list<string> values
    required property string value
    required property int columns
    /// What is being chosen, and what the chosen one is called, for a screen reader.
    required property string name
    required property string valueName
    /// Whether the values are colours; otherwise they are emojis.
    property bool showsColors: false
    property int cellSize: 40
    readonly property int index: root.values.indexOf(root.value)

    signal chosen(string value)

    function choose(position: int): void {
        if (position >= 0 && position < root.values.length)
            root.chosen(root.values[position]);
    }

    implicitWidth: root.columns * root.cellSize
    implicitHeight: Math.ceil(root.values.length / root.columns) * root.cellSize
    activeFocusOnTab: true
    Accessible.role: Accessible.RadioButton
    Accessible.name: root.name + ", " + root.valueName
    Accessible.focusable: true

    Keys.onLeftPressed: root.choose(Math.max(root.index, 1) - 1)
    Keys.onRightPressed: root.choose(root.index + 1)
    Keys.onUpPressed: root.choose(root.index - root.columns)
    Keys.onDownPressed: root.choose(root.index < 0 ? 0 : root.index + root.columns)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
        if (event.accepted)
            root.choose(event.key === Qt.Key_Home ? 0 : root.values.length - 1);
    }

    Grid {
        columns: root.columns

        Repeater {
            model: root.values

            Item {
                id: cell

                required property int index
                required property string modelData
                readonly property bool isChosen: cell.index === root.index

                objectName: root.objectName + cell.index
                width: root.cellSize
                height: root.cellSize

                Rectangle {
                    anchors.fill: parent
                    anchors.margins: 2
                    radius: Theme.radiusSmall
                    color: cell.isChosen ? Theme.surfacePressed : hover.hovered ? Theme.surfaceHover : "transparent"
                }

                Rectangle {
                    anchors.centerIn: parent
                    visible: root.showsColors
                    width: 24
                    height: 24
                    radius: 12
                    color: root.showsColors ? cell.modelData : "transparent"

                    Symbol {
                        anchors.centerIn: parent
                        visible: cell.isChosen
                        name: "checkmark"
                        color: Theme.background
                        size: 16
                    }
                }

                Emoji {
                    anchors.fill: parent
                    visible: !root.showsColors
                    text: root.showsColors ? "" : cell.modelData
                }

                FocusRing {
                    shown: cell.isChosen && root.activeFocus
                    distance: -2
                    innerRadius: Theme.radiusSmall + 2
                }

                HoverHandler {
                    id: hover
                }

                MouseArea {
                    anchors.fill: parent
                    onPressed: {
                        root.forceActiveFocus(Qt.MouseFocusReason);
                        root.choose(cell.index);
                    }
                }
            }
        }
    }
}
