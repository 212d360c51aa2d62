pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// One backup.
Rectangle {
    id: root

    required property string file
    required property string when
    required property string kind
    required property string contents
    required property string size
    required property bool isUsable
    required property bool hasKeyboard
    /// Whether the store may be replaced now.
    required property bool canRestore

    signal restoreChosen

    implicitHeight: 56
    radius: Theme.radius
    color: Theme.surfaceRaised
    Accessible.role: Accessible.ListItem
    Accessible.name: root.when + ", " + root.kind
    Accessible.description: root.contents + ", " + root.size

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.gap4
        anchors.rightMargin: Theme.gap2
        spacing: Theme.gap4

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2

            RowLayout {
                spacing: Theme.gap2

                ThemedText {
                    text: root.when
                    Accessible.ignored: true
                }

                ThemedText {
                    Layout.fillWidth: true
                    text: root.kind
                    color: Theme.textFaint
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }
            }

            ThemedText {
                Layout.fillWidth: true
                text: root.contents
                color: root.isUsable ? Theme.textMuted : Theme.dangerText
                font.pixelSize: Theme.caption
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }

        ThemedText {
            text: root.size
            color: Theme.textMuted
            Accessible.ignored: true
        }

        PushButton {
            objectName: "restoreButton"
            enabled: root.canRestore && root.isUsable
            // The list has the keyboard, and Enter does the same.
            focusPolicy: Qt.NoFocus
            implicitHeight: Theme.controlHeightSmall + 4
            symbol: "clock.arrow.circlepath"
            text: qsTrId("restore_open_button")
            onClicked: root.restoreChosen()
        }
    }

    FocusRing {
        shown: root.hasKeyboard && root.ListView.isCurrentItem
        distance: -1
        innerRadius: Theme.radius
    }
}
