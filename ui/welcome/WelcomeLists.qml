pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// Which applications belong to work, and which are to stay out of it.
WelcomeStep {
    id: root

    symbol: "hand.raised"
    title: qsTrId("welcome_lists_title")
    message: qsTrId("welcome_lists_subtitle")
    wantsKeyboard: root.screen.suggestions.suggestionCount > 0
    onKeyboardGiven: list.forceActiveFocus(Qt.TabFocusReason)

    SuggestionList {
        id: list

        objectName: "welcomeSuggestions"
        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: root.screen.suggestions.suggestionCount > 0
        suggestions: root.screen.suggestions
    }

    EmptyState {
        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: root.screen.suggestions.suggestionCount === 0
        symbol: "app"
        title: qsTrId("welcome_lists_empty_title")
        message: qsTrId("welcome_lists_empty_subtitle")
    }
}
