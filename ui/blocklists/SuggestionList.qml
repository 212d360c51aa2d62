pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// What might be worth listing, in groups. Space or a click chooses.
ListView {
    id: root

    required property BlockListSuggestions suggestions

    clip: true
    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    model: root.suggestions
    Accessible.role: Accessible.List
    Accessible.name: qsTrId("suggestions_tab")

    T.ScrollBar.vertical: ScrollBarThin {}

    onActiveFocusChanged: {
        if (root.activeFocus && root.currentIndex < 0)
            root.currentIndex = 0;
    }

    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Space || event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        if (event.accepted)
            root.suggestions.toggle(root.currentIndex);
    }

    delegate: SuggestionToggle {
        width: root.width - Theme.gap3
        hasKeyboard: root.activeFocus
        onClicked: {
            root.currentIndex = index;
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.suggestions.toggle(index);
        }
    }
}
