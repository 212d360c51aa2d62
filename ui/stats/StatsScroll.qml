pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// Sections one below the other that scroll as one, and follow the keyboard.
Flickable {
    id: root

    property alias column: column
    default property alias content: column.data
    readonly property Item focused: root.Window.activeFocusItem

    function scrollTo(place: real): void {
        root.contentY = Math.max(0, Math.min(place, root.contentHeight - root.height));
    }

    function isInside(item: Item): bool {
        for (let above = item; above; above = above.parent) {
            if (above === column)
                return true;
        }
        return false;
    }

    function follow(): void {
        if (!root.focused || !root.isInside(root.focused))
            return;
        const top = root.focused.mapToItem(column, 0, 0).y;
        // The heading of its section belongs to what is first in it.
        if (top - 72 < root.contentY)
            root.scrollTo(top - 72);
        else if (top + root.focused.height + Theme.gap6 > root.contentY + root.height)
            root.scrollTo(top + root.focused.height + Theme.gap6 - root.height);
    }

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    contentHeight: column.implicitHeight + Theme.gap1 + Theme.gap6

    onFocusedChanged: root.follow()

    Keys.onPressed: event => {
        const page = root.height - Theme.gap10;
        event.accepted = true;
        if (event.key === Qt.Key_PageDown)
            root.scrollTo(root.contentY + page);
        else if (event.key === Qt.Key_PageUp)
            root.scrollTo(root.contentY - page);
        else if (event.key === Qt.Key_Down)
            root.scrollTo(root.contentY + Theme.gap10);
        else if (event.key === Qt.Key_Up)
            root.scrollTo(root.contentY - Theme.gap10);
        else
            event.accepted = false;
    }

    T.ScrollBar.vertical: ScrollBarThin {}

    ColumnLayout {
        id: column

        // Room for the ring around what has the keyboard.
        x: Theme.gap1
        y: Theme.gap1
        width: root.width - Theme.gap1 - Theme.gap3
        spacing: Theme.gap4
    }
}
