pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Chooses the phase whose tasks the board shows, or all of them. The arrow keys choose; Tab goes past the whole of
/// it.
FocusScope {
    id: root

    required property KanbanBoardView board

    function isChosen(phaseId: string): bool {
        return root.board.selectedPhaseID === phaseId;
    }

    function place(): int {
        for (let row = 0; row < tabs.count; ++row) {
            if (root.isChosen((tabs.itemAtIndex(row) as PhaseTabItem)?.phaseId ?? " "))
                return row;
        }
        return -1;
    }

    function step(by: int): void {
        const row = root.place() + by;
        if (row < -1 || row >= tabs.count)
            return;
        root.board.selectedPhaseID = row < 0 ? "" : (tabs.itemAtIndex(row) as PhaseTabItem).phaseId;
        tabs.positionViewAtIndex(Math.max(row, 0), ListView.Contain);
    }

    implicitHeight: Theme.controlHeightSmall + 2 * Theme.gap1
    activeFocusOnTab: true
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTrId("board_tabs_name")
    Accessible.focusable: true

    Keys.onLeftPressed: root.step(-1)
    Keys.onRightPressed: root.step(1)

    Rectangle {
        width: Math.min(parent.width, tabs.x + tabs.contentWidth + Theme.gap1)
        height: parent.height
        radius: Theme.radius
        color: Theme.surface

        FocusRing {
            shown: root.activeFocus
            innerRadius: Theme.radius
            distance: 2
        }
    }

    PhaseTab {
        id: all

        objectName: "overviewTab"
        x: Theme.gap1
        y: Theme.gap1
        text: qsTrId("overview_tab")
        taskCount: root.board.taskCount
        isChosen: root.board.selectedPhaseID.length === 0
        onClicked: {
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.board.selectedPhaseID = "";
        }
    }

    ListView {
        id: tabs

        objectName: "phaseTabs"
        x: all.x + all.width + Theme.gap1
        y: Theme.gap1
        width: root.width - x - Theme.gap1
        height: Theme.controlHeightSmall
        orientation: ListView.Horizontal
        spacing: Theme.gap1
        clip: true
        // Phases are few, and the arrow keys want to know each.
        cacheBuffer: 10000
        boundsBehavior: Flickable.StopAtBounds
        model: root.board.phases

        delegate: PhaseTabItem {
            isChosen: root.isChosen(phaseId)
            onClicked: {
                root.forceActiveFocus(Qt.MouseFocusReason);
                root.board.selectedPhaseID = phaseId;
            }
        }
    }
}
