pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// An application and the list that it is on.
Rectangle {
    id: root

    required property string bundleId
    required property string name
    required property string iconName
    required property bool isRunning
    required property string list
    /// Whether the list that the row is in has the keyboard.
    required property bool hasKeyboard
    readonly property list<string> lists: ["none", "blocked", "whitelisted"]

    signal listChosen(string bundleId, string listName)

    function step(places: int): void {
        const next = root.lists.indexOf(root.list) + places;
        if (next >= 0 && next < root.lists.length)
            root.listChosen(root.bundleId, root.lists[next]);
    }

    implicitHeight: 60
    radius: Theme.radius
    color: Theme.surface
    Accessible.role: Accessible.ListItem
    Accessible.name: root.isRunning ? qsTrId("application_running_name").arg(root.name) : root.name

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.gap4
        anchors.rightMargin: Theme.gap3
        spacing: Theme.gap4

        Image {
            Layout.preferredWidth: 32
            Layout.preferredHeight: 32
            sourceSize.width: Math.round(32 * Screen.devicePixelRatio)
            sourceSize.height: Math.round(32 * Screen.devicePixelRatio)
            source: "image://appicon/" + encodeURIComponent(root.iconName)
            fillMode: Image.PreserveAspectFit
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2

            RowLayout {
                spacing: Theme.gap2

                ThemedText {
                    Layout.fillWidth: false
                    Layout.maximumWidth: 300
                    text: root.name
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }

                Rectangle {
                    implicitWidth: 6
                    implicitHeight: 6
                    radius: 3
                    visible: root.isRunning
                    color: Theme.legitimate
                }

                ThemedText {
                    visible: root.isRunning
                    text: qsTrId("application_running")
                    color: Theme.textMuted
                    font.pixelSize: Theme.caption
                    Accessible.ignored: true
                }
            }

            ThemedText {
                Layout.fillWidth: true
                text: root.bundleId
                color: Theme.textFaint
                font.pixelSize: Theme.caption
                elide: Text.ElideMiddle
            }
        }

        SegmentedChoice {
            name: root.name
            activeFocusOnTab: false
            values: root.lists
            labels: [qsTrId("list_none"), qsTrId("list_blocked"), qsTrId("list_whitelisted")]
            chosenColors: [Theme.surfacePressed, Theme.danger, Theme.legitimateStrong]
            chosenInks: [Theme.text, Theme.dangerInk, Theme.legitimateInk]
            value: root.list
            onChosen: value => root.listChosen(root.bundleId, value)
        }
    }

    FocusRing {
        shown: root.hasKeyboard && root.ListView.isCurrentItem
        distance: -1
        innerRadius: Theme.radius
    }
}
