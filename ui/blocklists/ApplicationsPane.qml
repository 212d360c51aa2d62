pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The applications with the list that each is on.
FocusScope {
    id: root

    required property ApplicationListModel model

    function focusStart(): void {
        search.forceActiveFocus(Qt.OtherFocusReason);
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: Theme.gap4

        EntryField {
            id: search

            objectName: "applicationSearch"
            Layout.fillWidth: true
            symbol: "magnifyingglass"
            placeholderText: qsTrId("application_search_placeholder")
            onTextEdited: root.model.filterText = search.text

            Keys.onEscapePressed: {
                search.clear();
                root.model.filterText = "";
            }
            Keys.onDownPressed: list.forceActiveFocus(Qt.TabFocusReason)
        }

        ListView {
            id: list

            Layout.fillWidth: true
            Layout.fillHeight: true
            objectName: "applicationList"
            visible: list.count > 0
            clip: true
            spacing: 2
            reuseItems: true
            activeFocusOnTab: true
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0
            model: root.model
            Accessible.role: Accessible.List
            Accessible.name: qsTrId("applications_tab")

            T.ScrollBar.vertical: ScrollBarThin {}

            onActiveFocusChanged: {
                list.forceLayout();
                if (list.currentIndex < 0)
                    list.currentIndex = 0;
            }

            Keys.onPressed: event => {
                const row = list.currentItem as ApplicationRow;
                event.accepted = row !== null && (event.key === Qt.Key_Left || event.key === Qt.Key_Right);
                if (event.accepted)
                    row.step(event.key === Qt.Key_Right ? 1 : -1);
            }

            delegate: ApplicationRow {
                width: list.width - Theme.gap3
                hasKeyboard: list.activeFocus
                onListChosen: (bundleId, listName) => root.model.setList(bundleId, listName)
            }
        }

        EmptyState {
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: list.count === 0
            symbol: "magnifyingglass"
            title: qsTrId("applications_empty_title")
            message: root.model.filterText.length > 0 ? qsTrId("applications_no_match_subtitle") : qsTrId("applications_empty_subtitle")
        }
    }
}
