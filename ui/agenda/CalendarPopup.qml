pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A month that opens beside what it is put into, or in the middle of the window where it has a title. Open as long
/// as it is there.
Item {
    id: root

    required property AgendaCalendarPopover calendar
    property string title: ""

    signal closed

    Connections {
        target: root.calendar

        // Closing gives the keyboard back, which being thrown away does not.
        function onChosen(): void {
            popup.close();
        }
    }

    // Only when whoever asked has heard of the day.
    Timer {
        id: afterChoice

        interval: 0
        onTriggered: root.closed()
    }

    T.Popup {
        id: popup

        function host(): Item {
            if (root.title.length > 0)
                return T.Overlay.overlay;
            return root;
        }

        objectName: "calendarPopup"
        parent: popup.host()
        x: root.title.length > 0 ? Math.round((parent.width - width) / 2) : root.width - width
        y: root.title.length > 0 ? Math.round((parent.height - height) / 2) : root.height + Theme.gap1
        margins: Theme.gap3
        implicitWidth: content.implicitWidth + leftPadding + rightPadding
        implicitHeight: content.implicitHeight + topPadding + bottomPadding
        padding: Theme.gap4
        modal: true
        dim: root.title.length > 0
        focus: true
        visible: true
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

        onOpened: month.forceActiveFocus(Qt.TabFocusReason)
        onClosed: afterChoice.start()

        T.Overlay.modal: Rectangle {
            color: popup.dim ? Theme.shade : "transparent"
        }

        ColumnLayout {
            id: content

            spacing: Theme.gap3

            ThemedText {
                Layout.fillWidth: true
                Layout.maximumWidth: month.implicitWidth
                visible: root.title.length > 0
                text: root.title
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
                maximumLineCount: 2
                elide: Text.ElideRight
                Accessible.role: Accessible.Heading
            }

            MonthGrid {
                id: month

                calendar: root.calendar
            }

            PushButton {
                objectName: "calendarToday"
                Layout.fillWidth: true
                text: qsTrId("today")
                onClicked: root.calendar.chooseToday()
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
