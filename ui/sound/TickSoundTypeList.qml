pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The characters of a tick below each other, one of them chosen. The arrow keys choose; Tab goes past the whole
/// of it.
FocusScope {
    id: root

    required property TickSoundSettings settings
    readonly property list<string> types: root.settings.types
    readonly property int index: root.types.indexOf(root.settings.selectedType)

    function nameOf(type: string): string {
        switch (type) {
        case "clock":
            return qsTrId("tick_type_clock");
        case "digital":
            return qsTrId("tick_type_digital");
        case "soft":
            return qsTrId("tick_type_soft");
        default:
            return qsTrId("tick_type_metronome");
        }
    }

    function hintOf(type: string): string {
        switch (type) {
        case "clock":
            return qsTrId("tick_type_clock_hint");
        case "digital":
            return qsTrId("tick_type_digital_hint");
        case "soft":
            return qsTrId("tick_type_soft_hint");
        default:
            return qsTrId("tick_type_metronome_hint");
        }
    }

    function choose(position: int): void {
        root.settings.selectedType = root.types[Math.max(0, Math.min(position, root.types.length - 1))];
    }

    implicitHeight: column.implicitHeight
    activeFocusOnTab: true
    Accessible.role: Accessible.RadioButton
    Accessible.name: qsTrId("tick_sounds_type_label") + ", " + root.nameOf(root.settings.selectedType)
    Accessible.focusable: true

    Keys.onUpPressed: root.choose(root.index - 1)
    Keys.onDownPressed: root.choose(root.index + 1)
    Keys.onSpacePressed: root.settings.playSample()

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

    ColumnLayout {
        id: column

        anchors.left: parent.left
        anchors.right: parent.right
        spacing: 0

        Repeater {
            model: root.types

            T.RadioButton {
                id: row

                required property string modelData

                objectName: "tickType-" + row.modelData
                Layout.fillWidth: true
                implicitHeight: 52
                text: root.nameOf(row.modelData)
                checked: row.modelData === root.settings.selectedType
                hoverEnabled: true
                focusPolicy: Qt.NoFocus
                Accessible.name: row.text
                Accessible.description: root.hintOf(row.modelData)

                onClicked: {
                    root.forceActiveFocus(Qt.MouseFocusReason);
                    if (row.modelData === root.settings.selectedType)
                        root.settings.playSample();
                    else
                        root.settings.selectedType = row.modelData;
                }

                contentItem: RowLayout {
                    spacing: Theme.gap3

                    Rectangle {
                        Layout.leftMargin: Theme.gap4
                        implicitWidth: 20
                        implicitHeight: 20
                        radius: 10
                        color: "transparent"
                        border.width: row.checked ? 6 : 2
                        border.color: row.checked ? Theme.accentText : row.hovered ? Theme.textMuted : Theme.textFaint
                    }

                    ThemedText {
                        text: row.text
                        font.weight: row.checked ? Font.DemiBold : Font.Normal
                        Accessible.ignored: true
                    }

                    ThemedText {
                        Layout.fillWidth: true
                        Layout.rightMargin: Theme.gap4
                        text: root.hintOf(row.modelData)
                        color: Theme.textMuted
                        horizontalAlignment: Text.AlignRight
                        wrapMode: Text.WordWrap
                        Accessible.ignored: true
                    }
                }

                background: Rectangle {
                    radius: Theme.radius
                    color: row.checked ? Theme.accentSurface : row.hovered ? Theme.surfaceHover : "transparent"
                }
            }
        }
    }
}
