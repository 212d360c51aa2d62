pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A line across the page that says what the user should know now.
Rectangle {
    id: root

    required property string text
    property string symbol: "exclamationmark.triangle"
    property color foreground: Theme.amber
    /// Label of a button; none while empty.
    property string actionText: ""
    property bool isDismissible: false

    signal actionChosen
    signal dismissed

    implicitHeight: row.implicitHeight + 2 * Theme.gap3
    radius: Theme.radius
    color: Theme.amberSurface
    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.text

    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: Theme.gap4
        anchors.rightMargin: Theme.gap4
        spacing: Theme.gap3

        Symbol {
            name: root.symbol
            color: root.foreground
        }

        ThemedText {
            Layout.fillWidth: true
            text: root.text
            wrapMode: Text.WordWrap
            Accessible.ignored: true
        }

        PushButton {
            visible: root.actionText.length > 0
            text: root.actionText
            onClicked: root.actionChosen()
        }

        IconButton {
            visible: root.isDismissible
            symbol: "xmark"
            text: qsTrId("notice_close_button")
            onClicked: root.dismissed()
        }
    }
}
