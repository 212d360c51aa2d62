pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// A field that stands in a list for as long as something is typed there. Enter accepts the text; Escape, Enter with
/// no text, and going elsewhere leave it.
EntryField {
    id: root

    property string initialText: ""
    /// Whether more can be typed after the first text.
    property bool keepsOpen: false
    property bool isLeaving: false

    signal acceptedText(string text)
    signal exited

    function leave(): void {
        if (root.isLeaving)
            return;
        root.isLeaving = true;
        root.exited();
    }

    objectName: "inlineField"
    implicitHeight: Theme.controlHeightSmall + 4
    maximumLength: 500

    Component.onCompleted: {
        root.text = root.initialText;
        root.forceActiveFocus(Qt.TabFocusReason);
        root.selectAll();
    }

    onAccepted: {
        const text = root.text.trim();
        if (text.length > 0)
            root.acceptedText(text);
        if (root.keepsOpen && text.length > 0)
            root.clear();
        else
            root.leave();
    }

    // The list below must not hear the keys that were meant for the field.
    Keys.priority: Keys.AfterItem
    Keys.onEscapePressed: root.leave()
    Keys.onReturnPressed: event => event.accepted = true
    Keys.onEnterPressed: event => event.accepted = true
}
