pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

/// A sheet or bar that is loaded while it is wanted.
Loader {
    id: root

    required property bool wanted
    required property string file
    /// What is shown.
    required property QtObject model

    /// Whether it has the keyboard while it is there, and gives it back.
    property bool takesKeyboard: true
    /// What had the keyboard before the sheet.
    property Item asker: null

    function follow(): void {
        if (root.wanted) {
            root.asker = root.Window.activeFocusItem;
            root.setSource(root.file, {
                model: root.model
            });
            return;
        }
        (root.item as T.Popup)?.close();
        root.setSource("");
        if (root.takesKeyboard && root.asker?.visible)
            root.asker.forceActiveFocus(Qt.PopupFocusReason);
        root.asker = null;
    }

    onWantedChanged: root.follow()
    Component.onCompleted: root.follow()
}
