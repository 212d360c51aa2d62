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
    /// Glyphs this large are drawn from their outlines each time, and fitting those to the pixels takes long and
    /// changes nothing that can be seen.
    readonly property int hinting: root.pixelSize < 48 ? Font.PreferDefaultHinting : Font.PreferNoHinting
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
        font.hintingPreference: root.hinting
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
                font.hintingPreference: root.hinting
                Accessible.ignored: true
            }
        }
    }
}
