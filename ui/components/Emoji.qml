pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// One emoji, in colour where the machine has the font; other fonts have only outlines of some. Whoever shows it
/// says to a screen reader what it stands for.
Text {
    id: root

    /// Height of the emoji in pixels.
    property int size: 20

    font.family: "Noto Color Emoji"
    font.pixelSize: root.size
    color: Theme.text
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    Accessible.ignored: true
}
