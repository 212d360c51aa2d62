pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The days to choose from: those that are meant most often, and a month of the calendar. Open as long as it is there.
Item {
    id: root

    required property TaskSheet sheet
    /// "plannedDate" or "dueDate".
    required property string field

    signal exited

    function take(days: int): void {
        root.sheet.setDaysFromToday(root.field, days);
        popup.close();
    }

    Connections {
        target: root.sheet.calendar

        function onChosen(): void {
            popup.close();
        }
    }

    T.Popup {
        id: popup

        objectName: "dayChoices"
        y: Theme.controlHeight + Theme.gap1
        x: root.parent ? root.parent.width - width : 0
        margins: Theme.gap3
        padding: Theme.gap3
        implicitWidth: choices.implicitWidth + leftPadding + rightPadding
        implicitHeight: choices.implicitHeight + topPadding + bottomPadding
        modal: true
        dim: false
        focus: true
        visible: true
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

        onOpened: month.forceActiveFocus(Qt.TabFocusReason)
        onClosed: {
            root.sheet.calendar.close();
            root.exited();
        }

        ColumnLayout {
            id: choices

            width: popup.availableWidth
            spacing: Theme.gap3

            RowLayout {
                spacing: Theme.gap2

                PushButton {
                    Layout.fillWidth: true
                    implicitHeight: Theme.controlHeightSmall
                    text: qsTrId("today")
                    onClicked: root.take(0)
                }

                PushButton {
                    Layout.fillWidth: true
                    implicitHeight: Theme.controlHeightSmall
                    text: qsTrId("tomorrow")
                    onClicked: root.take(1)
                }

                PushButton {
                    Layout.fillWidth: true
                    implicitHeight: Theme.controlHeightSmall
                    text: qsTrId("day_in_a_week")
                    onClicked: root.take(7)
                }
            }

            MonthGrid {
                id: month

                Layout.alignment: Qt.AlignHCenter
                calendar: root.sheet.calendar
            }
        }

        background: Rectangle {
            radius: Theme.radiusLarge
            color: Theme.surface
            border.width: 1
            border.color: Theme.outline
        }
    }
}
