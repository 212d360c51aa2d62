pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What stands where a list has nothing to show.
Item {
    id: root

    required property string symbol
    required property string title
    required property string message

    implicitHeight: column.implicitHeight

    ColumnLayout {
        id: column

        anchors.centerIn: parent
        width: Math.min(parent.width, 320)
        spacing: Theme.gap2

        Symbol {
            Layout.alignment: Qt.AlignHCenter
            Layout.bottomMargin: Theme.gap2
            name: root.symbol
            color: Theme.outline
            size: 48
        }

        ThemedText {
            Layout.fillWidth: true
            text: root.title
            font.pixelSize: Theme.bodyLarge
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
        }

        ThemedText {
            Layout.fillWidth: true
            text: root.message
            color: Theme.textMuted
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            lineHeight: 1.2
        }
    }
}
