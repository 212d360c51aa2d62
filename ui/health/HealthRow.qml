pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// One check with its outcome.
Card {
    id: root

    required property string capability
    required property bool isAvailable
    required property string reason
    required property string remedy
    required property string detail
    required property list<string> actions
    /// Not every desktop has it, so it is no fault where it is missing.
    required property bool isOptional
    required property bool hasKeyboard

    signal actionChosen(action: int)

    function outcome(): string {
        if (root.isAvailable)
            return qsTrId("health_works");
        return root.isOptional ? qsTrId("health_absent") : qsTrId("health_fails");
    }

    function outcomeColor(): color {
        if (root.isAvailable)
            return Theme.legitimate;
        return root.isOptional ? Theme.textMuted : Theme.amber;
    }

    implicitHeight: Math.max(row.implicitHeight + 2 * Theme.gap3, 52)
    radius: Theme.radius
    Accessible.role: Accessible.ListItem
    Accessible.name: root.capability + ", " + root.outcome()
    Accessible.description: root.isAvailable ? "" : root.reason + " " + root.remedy

    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: Theme.gap5
        anchors.rightMargin: Theme.gap5
        anchors.topMargin: Theme.gap3
        anchors.bottomMargin: Theme.gap3
        spacing: Theme.gap4

        Symbol {
            Layout.alignment: root.isAvailable ? Qt.AlignVCenter : Qt.AlignTop
            name: root.isAvailable ? "checkmark.circle.fill" : root.isOptional ? "circle" : "exclamationmark.triangle"
            color: root.outcomeColor()
            size: 20
        }

        ColumnLayout {
            Layout.fillWidth: true
            Layout.alignment: root.isAvailable ? Qt.AlignVCenter : Qt.AlignTop
            spacing: Theme.gap1

            ThemedText {
                Layout.fillWidth: true
                text: root.capability
                font.weight: Font.DemiBold
                wrapMode: Text.WordWrap
                Accessible.ignored: true
            }

            ThemedText {
                Layout.fillWidth: true
                visible: !root.isAvailable
                text: root.reason
                color: Theme.textMuted
                wrapMode: Text.WordWrap
                Accessible.ignored: true
            }

            ThemedText {
                Layout.fillWidth: true
                visible: !root.isAvailable
                text: root.remedy
                wrapMode: Text.WordWrap
                Accessible.ignored: true
            }

            ThemedText {
                Layout.fillWidth: true
                visible: !root.isAvailable && root.detail.length > 0
                text: root.detail
                color: Theme.textFaint
                font.pixelSize: Theme.caption
                wrapMode: Text.WrapAnywhere
            }
        }

        ColumnLayout {
            Layout.fillWidth: false
            Layout.alignment: root.isAvailable ? Qt.AlignVCenter : Qt.AlignTop
            spacing: Theme.gap2

            Repeater {
                model: root.actions

                PushButton {
                    required property string modelData
                    required property int index

                    Layout.fillWidth: true
                    text: modelData
                    onClicked: root.actionChosen(index)
                }
            }
        }

        ThemedText {
            Layout.alignment: root.isAvailable ? Qt.AlignVCenter : Qt.AlignTop
            text: root.outcome()
            color: root.outcomeColor()
            Accessible.ignored: true
        }
    }

    FocusRing {
        shown: root.hasKeyboard && root.ListView.isCurrentItem
        distance: -1
        innerRadius: Theme.radius
    }
}
