pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The sheet that puts tasks onto a day, over the page. It is there as long as the agenda shows it.
T.Popup {
    id: root

    required property DailyAgendaView model
    readonly property AgendaPlanningSheet sheet: root.model.planningSheet

    function focusTab(): void {
        if (root.sheet.tab === "quickAdd")
            quickAdd.focusStart();
        else
            pick.focusStart();
    }

    function otherTab(): void {
        root.sheet.tab = root.sheet.tab === "quickAdd" ? "pickExisting" : "quickAdd";
        root.focusTab();
    }

    objectName: "planningSheet"
    parent: T.Overlay.overlay
    anchors.centerIn: parent
    modal: true
    focus: true
    visible: true
    padding: Theme.gap6
    implicitWidth: 760
    implicitHeight: Math.min(parent ? parent.height - 2 * Theme.gap10 : 620, 620)
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    onOpened: root.focusTab()
    onClosed: root.model.showPlanningSheet = false

    T.Overlay.modal: Rectangle {
        color: Theme.shade
    }

    FocusScope {
        anchors.fill: parent
        focus: true

        Keys.onPressed: event => {
            event.accepted = (event.key === Qt.Key_Tab || event.key === Qt.Key_Backtab) && (event.modifiers & Qt.ControlModifier);
            if (event.accepted)
                root.otherTab();
        }

        ColumnLayout {
            anchors.fill: parent
            spacing: Theme.gap4
            Accessible.role: Accessible.Dialog
            Accessible.name: qsTrId("planning_sheet_title").arg(root.sheet.dateText)

            RowLayout {
                spacing: Theme.gap3

                ThemedText {
                    objectName: "planningSheetTitle"
                    Layout.fillWidth: true
                    text: qsTrId("planning_sheet_title").arg(root.sheet.dateText)
                    font.pixelSize: Theme.title
                    font.weight: Font.DemiBold
                    wrapMode: Text.WordWrap
                    Accessible.role: Accessible.Heading
                }

                IconButton {
                    objectName: "planningSheetClose"
                    symbol: "xmark"
                    text: qsTrId("sheet_close_button")
                    onClicked: root.close()
                }
            }

            SegmentedChoice {
                objectName: "planningTabs"
                name: qsTrId("planning_tabs_name")
                values: ["quickAdd", "pickExisting"]
                labels: [qsTrId("planning_tab_new"), qsTrId("planning_tab_existing")]
                value: root.sheet.tab
                onChosen: value => root.sheet.tab = value
            }

            QuickAddPane {
                id: quickAdd

                Layout.fillWidth: true
                Layout.fillHeight: true
                visible: root.sheet.tab === "quickAdd"
                focus: visible
                entry: root.sheet.quickAdd
            }

            PickPane {
                id: pick

                Layout.fillWidth: true
                Layout.fillHeight: true
                visible: root.sheet.tab === "pickExisting"
                focus: visible
                sheet: root.sheet
                onPlanned: root.close()
            }
        }
    }

    background: Rectangle {
        radius: Theme.radiusLarge
        color: Theme.surface
        border.width: 1
        border.color: Theme.outline
    }
}
