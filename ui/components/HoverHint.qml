pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A short text beside the item that it is put into, shown after a moment. Costs nothing until then.
Deferred {
    id: root

    required property string text
    required property bool shown

    anchors.fill: parent
    active: root.shown

    T.ToolTip {
        parent: root
        x: Math.round((root.width - width) / 2)
        y: root.height + Theme.gap1
        margins: Theme.gap2
        padding: Theme.gap2
        implicitWidth: implicitContentWidth + leftPadding + rightPadding
        implicitHeight: implicitContentHeight + topPadding + bottomPadding
        delay: Theme.hintDelay
        visible: root.shown
        closePolicy: T.Popup.NoAutoClose

        contentItem: ThemedText {
            text: root.text
            font.pixelSize: Theme.caption
        }

        background: Rectangle {
            radius: Theme.radiusSmall
            color: Theme.surfacePressed
        }
    }
}
