pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A suggestion, or the heading over a group of them, which chooses them all.
T.CheckBox {
    id: root

    required property int index
    required property bool isHeading
    required property string name
    required property string iconName
    required property bool isSite
    required property bool isBlocked
    required property bool isChosen
    /// Whether the list that the row is in has the keyboard.
    required property bool hasKeyboard
    readonly property string listName: root.isBlocked ? qsTrId("list_blocked") : qsTrId("list_whitelisted")

    implicitHeight: root.isHeading ? 56 : 44
    topPadding: root.isHeading ? Theme.gap3 : 0
    text: root.name
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    Accessible.name: root.isHeading ? qsTrId("suggestions_group_name").arg(root.name).arg(root.listName) : root.name
    checked: root.isChosen
    nextCheckState: () => root.checkState

    contentItem: Item {
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: root.isHeading ? Theme.gap3 : Theme.gap6
            anchors.rightMargin: Theme.gap3
            spacing: Theme.gap3

            Symbol {
                name: root.isChosen ? "checkmark.circle.fill" : "circle"
                color: root.isChosen ? Theme.accentText : root.hovered ? Theme.text : Theme.textFaint
            }

            Image {
                Layout.preferredWidth: 24
                Layout.preferredHeight: 24
                visible: !root.isHeading && !root.isSite
                sourceSize.width: Math.round(24 * Screen.devicePixelRatio)
                sourceSize.height: Math.round(24 * Screen.devicePixelRatio)
                source: visible ? "image://appicon/" + encodeURIComponent(root.iconName) : ""
                fillMode: Image.PreserveAspectFit
            }

            Symbol {
                visible: root.isSite && !root.isHeading
                name: "globe"
                color: Theme.textFaint
                size: 24
            }

            ThemedText {
                Layout.fillWidth: true
                text: root.name
                font.pixelSize: root.isHeading ? Theme.bodyLarge : Theme.body
                font.weight: root.isHeading ? Font.DemiBold : Font.Normal
                elide: Text.ElideRight
                Accessible.ignored: true
            }

            CountChip {
                visible: root.isHeading
                isSilent: true
                symbol: root.isBlocked ? "hand.raised" : "checkmark.shield"
                color: root.isBlocked ? Theme.distracted : Theme.legitimate
                text: root.listName
            }
        }
    }

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.topMargin: root.topPadding
            radius: Theme.radius
            color: root.hovered ? Theme.surfaceRaised : root.isHeading ? "transparent" : Theme.surface

            FocusRing {
                shown: root.hasKeyboard && root.ListView.isCurrentItem
                distance: -1
                innerRadius: Theme.radius
            }
        }
    }
}
