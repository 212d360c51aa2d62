pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A site on a list.
Item {
    id: root

    required property int index
    required property string name
    required property bool isOnOtherList
    required property string coveredBy
    readonly property bool isCurrent: root.ListView.isCurrentItem && root.ListView.view.activeFocus
    readonly property bool isReached: hover.hovered || root.isCurrent
    readonly property string remark: root.isOnOtherList ? qsTrId("site_on_both_lists") : root.coveredBy.length > 0 ? qsTrId("site_covered").arg(root.coveredBy) : ""

    signal removed(int row)
    signal moved(int row)
    signal pressed(int row)

    implicitHeight: Math.max(36, words.implicitHeight + 2 * Theme.gap2)
    Accessible.role: Accessible.ListItem
    Accessible.name: root.remark.length > 0 ? root.name + ", " + root.remark : root.name

    Rectangle {
        anchors.fill: parent
        radius: Theme.radiusSmall
        color: root.isReached ? Theme.surfaceRaised : "transparent"

        HoverHandler {
            id: hover
        }

        TapHandler {
            onTapped: root.pressed(root.index)
        }

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.gap3
            anchors.rightMargin: Theme.gap1
            spacing: 0

            ColumnLayout {
                id: words

                Layout.fillWidth: true
                spacing: 1

                ThemedText {
                    Layout.fillWidth: true
                    text: root.name
                    wrapMode: Text.WrapAnywhere
                    maximumLineCount: 2
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }

                ThemedText {
                    Layout.fillWidth: true
                    visible: root.remark.length > 0
                    text: root.remark
                    color: root.isOnOtherList ? Theme.amber : Theme.textFaint
                    font.pixelSize: Theme.caption
                    wrapMode: Text.WordWrap
                    Accessible.ignored: true
                }
            }

            // Keeps its place while it is not shown, so that the words stay where they are.
            IconButton {
                enabled: root.isReached
                opacity: root.isReached ? 1 : 0
                Accessible.ignored: !root.isReached
                symbol: "arrow.left.arrow.right"
                symbolSize: 16
                text: qsTrId("site_move").arg(root.name)
                onClicked: root.moved(root.index)
            }

            IconButton {
                enabled: root.isReached
                opacity: root.isReached ? 1 : 0
                Accessible.ignored: !root.isReached
                symbol: "xmark"
                symbolSize: 16
                text: qsTrId("site_remove").arg(root.name)
                onClicked: root.removed(root.index)
            }
        }

        FocusRing {
            shown: root.isCurrent
            distance: -1
        }
    }
}
