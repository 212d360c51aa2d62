pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The intervals of one application in their order; more are read while the list is gone through.
FocusScope {
    id: root

    required property UsageIntervalRows intervals

    function focusStart(): void {
        list.currentIndex = 0;
        list.forceActiveFocus(Qt.TabFocusReason);
    }

    ListView {
        id: list

        objectName: "explanationIntervals"
        anchors.fill: parent
        clip: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        reuseItems: true
        model: root.intervals
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("explain_intervals_name")

        T.ScrollBar.vertical: ScrollBarThin {}

        Keys.onPressed: event => {
            event.accepted = list.count > 0;
            const page = Math.max(1, Math.floor(list.height / 36) - 1);
            if (event.key === Qt.Key_Home)
                list.currentIndex = 0;
            else if (event.key === Qt.Key_End)
                list.currentIndex = list.count - 1;
            else if (event.key === Qt.Key_PageDown)
                list.currentIndex = Math.min(list.count - 1, list.currentIndex + page);
            else if (event.key === Qt.Key_PageUp)
                list.currentIndex = Math.max(0, list.currentIndex - page);
            else
                event.accepted = false;
        }

        delegate: Item {
            id: row

            required property int index
            required property int number
            required property string start
            required property string duration

            width: list.width - (list.contentHeight > list.height ? Theme.gap3 : 0)
            height: 36
            Accessible.role: Accessible.ListItem
            Accessible.name: row.number + ", " + row.start + ", " + row.duration

            RowLayout {
                anchors.fill: parent
                anchors.leftMargin: Theme.gap3
                anchors.rightMargin: Theme.gap3
                spacing: Theme.gap3

                ThemedText {
                    Layout.preferredWidth: 56
                    text: row.number
                    color: Theme.textFaint
                    font.pixelSize: Theme.caption
                    horizontalAlignment: Text.AlignRight
                    Accessible.ignored: true
                }

                ThemedText {
                    Layout.fillWidth: true
                    text: row.start
                    color: Theme.textMuted
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }

                ThemedText {
                    text: row.duration
                    Accessible.ignored: true
                }
            }

            FocusRing {
                shown: row.ListView.isCurrentItem && list.activeFocus
                distance: -2
            }
        }
    }

    ThemedText {
        objectName: "explanationState"
        anchors.centerIn: parent
        width: Math.min(parent.width, 420)
        visible: text.length > 0
        text: (root.intervals?.isWaiting ?? false) ? qsTrId("explain_waiting") : problem.length > 0 ? qsTrId("explain_read_problem").arg(problem) : ""
        color: (root.intervals?.isWaiting ?? false) ? Theme.textMuted : Theme.amber
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.AlertMessage

        readonly property string problem: root.intervals?.problem ?? ""
    }
}
