pragma ComponentBehavior: Bound

import QtQuick

/// One sheet at a time: loaded when it is wanted, gone when it is closed, and the keyboard is back where it was.
Loader {
    id: root

    property Item keyboardBefore: null

    /// To be called before a sheet is loaded. Returns whether there is none yet.
    function begin(): bool {
        if (root.item)
            return false;
        root.keyboardBefore = root.Window.activeFocusItem;
        return true;
    }

    onItemChanged: {
        if (!root.item && root.keyboardBefore)
            root.keyboardBefore.forceActiveFocus(Qt.PopupFocusReason);
    }
}
