pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A page with a heading; what is put into it stands below the heading.
FocusScope {
    id: root

    required property string heading
    required property string introduction
    /// Whether the heading is shown; a page may show it in a way of its own.
    property bool showsHeading: true
    property int maximumWidth: 880
    default property alias content: column.data
    property alias headingContent: headingRow.data

    /// The page came to the front.
    signal entered

    function enter(): void {
        root.entered();
    }

    ColumnLayout {
        id: column

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.topMargin: Theme.gap8
        width: Math.min(parent.width - 2 * Theme.gap8, root.maximumWidth)
        spacing: Theme.gap4

        RowLayout {
            id: headingRow

            visible: root.showsHeading
            spacing: Theme.gap3

            ThemedText {
                Layout.fillWidth: true
                text: root.heading
                font.pixelSize: Theme.headline
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }
        }

        ThemedText {
            Layout.fillWidth: true
            Layout.topMargin: -Theme.gap2
            visible: root.showsHeading
            text: root.introduction
            color: Theme.textMuted
            wrapMode: Text.WordWrap
            lineHeight: 1.2
        }
    }
}
