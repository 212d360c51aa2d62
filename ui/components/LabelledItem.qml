pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// A control with what it is for above it.
Item {
    id: root

    required property string label
    default property alias content: holder.data

    implicitHeight: caption.height + Theme.gap1 + holder.height
    implicitWidth: holder.childrenRect.width

    ThemedText {
        id: caption

        width: parent.width
        text: root.label
        color: Theme.textMuted
        font.pixelSize: Theme.caption
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    Item {
        id: holder

        y: caption.height + Theme.gap1
        width: parent.width
        height: childrenRect.height
    }
}
