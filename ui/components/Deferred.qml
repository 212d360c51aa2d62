pragma ComponentBehavior: Bound

import QtQuick

/// Makes what is put into it when it becomes active, and throws it away when it no longer is. (A Loader of
/// Qt 6.4 refuses components that are bound to their context.)
Item {
    id: root

    default property Component content: null
    property bool active: false
    property QtObject object: null
    readonly property Item item: root.object as Item

    function update(): void {
        if (root.active && !root.object) {
            root.object = root.content.createObject(root);
            if (root.item)
                root.item.width = Qt.binding(() => root.width);
        } else if (!root.active && root.object) {
            root.object.destroy();
            root.object = null;
        }
    }

    implicitHeight: root.item ? root.item.implicitHeight : 0

    Component.onCompleted: root.update()
    onActiveChanged: root.update()
}
