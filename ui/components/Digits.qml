pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Text of digits whose places keep their width, so that nothing jumps when the digits change.
Item {
    id: root

    required property string text
    property int pixelSize: Theme.headline
    property int weight: Font.DemiBold
    property color color: Theme.text
    readonly property real cellWidth: Math.ceil(metrics.advanceWidth)

    implicitWidth: row.implicitWidth
    implicitHeight: Math.ceil(metrics.height)
    Accessible.role: Accessible.StaticText
    Accessible.name: root.text

    TextMetrics {
        id: metrics

        text: "0"
        font.pixelSize: root.pixelSize
        font.weight: root.weight
    }

    Row {
        id: row

        anchors.centerIn: parent

        Repeater {
            model: root.text.length

            ThemedText {
                required property int index
                readonly property string character: root.text.charAt(index)
                readonly property bool isDigit: character >= "0" && character <= "9"

                width: isDigit ? root.cellWidth : Math.ceil(implicitWidth)
                horizontalAlignment: Text.AlignHCenter
                text: character
                color: root.color
                font.pixelSize: root.pixelSize
                font.weight: root.weight
                Accessible.ignored: true
            }
        }
    }
}
