pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A month of days to choose from, each with how many tasks stand on it. Arrow keys go from day to day, Page Up and
/// Page Down from month to month, with Shift from year to year, Home and End within the week; Enter or Space chooses.
FocusScope {
    id: root

    required property AgendaCalendarPopover calendar
    readonly property int cell: 42

    implicitWidth: column.implicitWidth
    implicitHeight: column.implicitHeight

    ColumnLayout {
        id: column

        anchors.fill: parent
        spacing: Theme.gap2

        RowLayout {
            spacing: 0

            IconButton {
                symbol: "chevron.left.2"
                text: qsTrId("calendar_previous_year")
                onClicked: root.calendar.moveMonths(-12)
            }

            IconButton {
                symbol: "chevron.left"
                text: qsTrId("calendar_previous_month")
                onClicked: root.calendar.moveMonths(-1)
            }

            ThemedText {
                objectName: "monthTitle"
                Layout.fillWidth: true
                text: root.calendar.monthTitle
                font.weight: Font.DemiBold
                font.capitalization: Font.Capitalize
                horizontalAlignment: Text.AlignHCenter
                Accessible.role: Accessible.Heading
            }

            IconButton {
                symbol: "chevron.right"
                text: qsTrId("calendar_next_month")
                onClicked: root.calendar.moveMonths(1)
            }

            IconButton {
                symbol: "chevron.right.2"
                text: qsTrId("calendar_next_year")
                onClicked: root.calendar.moveMonths(12)
            }
        }

        Row {
            Repeater {
                model: root.calendar.weekdayNames

                ThemedText {
                    id: weekday

                    required property string modelData
                    required property int index

                    width: root.cell
                    text: weekday.modelData
                    color: Theme.textFaint
                    font.pixelSize: Theme.caption
                    horizontalAlignment: Text.AlignHCenter
                    Accessible.name: root.calendar.longWeekdayNames[weekday.index]
                }
            }
        }

        Grid {
            id: grid

            objectName: "monthDays"
            columns: 7
            focus: true
            activeFocusOnTab: true
            Accessible.role: Accessible.Table
            Accessible.name: (days.itemAt(root.calendar.cursorRow) as MonthDay)?.name ?? root.calendar.monthTitle
            Accessible.focusable: true

            Keys.onPressed: event => {
                event.accepted = true;
                const pages = event.modifiers & Qt.ShiftModifier ? 12 : 1;
                if (event.key === Qt.Key_Left)
                    root.calendar.moveDays(-1);
                else if (event.key === Qt.Key_Right)
                    root.calendar.moveDays(1);
                else if (event.key === Qt.Key_Up)
                    root.calendar.moveDays(-7);
                else if (event.key === Qt.Key_Down)
                    root.calendar.moveDays(7);
                else if (event.key === Qt.Key_PageUp)
                    root.calendar.moveMonths(-pages);
                else if (event.key === Qt.Key_PageDown)
                    root.calendar.moveMonths(pages);
                else if (event.key === Qt.Key_Home)
                    root.calendar.moveToWeekStart();
                else if (event.key === Qt.Key_End)
                    root.calendar.moveToWeekEnd();
                else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space)
                    root.calendar.chooseCursor();
                else
                    event.accepted = false;
            }

            Repeater {
                id: days

                model: root.calendar

                MonthDay {
                    width: root.cell
                    height: root.cell
                    hasCursor: grid.activeFocus && root.calendar.cursorRow === index
                    onClicked: root.calendar.choose(index)
                }
            }
        }
    }
}
