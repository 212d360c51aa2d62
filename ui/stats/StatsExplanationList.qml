pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The sessions, days or applications behind a figure. Arrow keys go through them, Enter opens one.
FocusScope {
    id: root

    required property StatsExplanation explanation

    function focusStart(): void {
        list.currentIndex = Math.min(root.explanation.place, list.count - 1);
        list.positionViewAtIndex(Math.max(list.currentIndex, 0), ListView.Contain);
        list.forceActiveFocus(Qt.TabFocusReason);
    }

    ListView {
        id: list

        objectName: "explanationList"
        anchors.fill: parent
        clip: true
        spacing: 2
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        reuseItems: true
        model: root.explanation?.records ?? null
        Accessible.role: Accessible.List
        Accessible.name: root.explanation?.title ?? ""

        T.ScrollBar.vertical: ScrollBarThin {}

        Keys.onPressed: event => {
            event.accepted = list.currentIndex >= 0;
            const page = Math.max(1, Math.floor(list.height / 54) - 1);
            if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space)
                root.explanation.open(list.currentIndex);
            else if (event.key === Qt.Key_Home)
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

        delegate: StatsExplanationRow {
            id: row

            width: list.width - (list.contentHeight > list.height ? Theme.gap3 : 0)
            onOpened: {
                list.currentIndex = row.index;
                root.explanation.open(row.index);
            }
        }
    }

    EmptyState {
        anchors.fill: parent
        visible: list.count === 0 && (root.explanation?.isComplete ?? false)
        symbol: "magnifyingglass"
        title: qsTrId("explain_none")
        message: ""
    }
}
