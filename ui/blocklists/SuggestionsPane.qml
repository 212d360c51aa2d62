pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What might be worth listing. Space or a click chooses; nothing is listed before the button is pressed.
FocusScope {
    id: root

    required property BlockListsScreen screen
    readonly property BlockListSuggestions suggestions: root.screen.suggestions

    function focusStart(): void {
        list.forceActiveFocus(Qt.TabFocusReason);
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: Theme.gap3

        SuggestionList {
            id: list

            objectName: "suggestionList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            suggestions: root.suggestions
        }

        RowLayout {
            spacing: Theme.gap3

            PushButton {
                objectName: "dismissSuggestions"
                kind: PushButton.Kind.Quiet
                implicitHeight: Theme.controlHeightLarge
                text: qsTrId("suggestions_dismiss_button")
                onClicked: root.screen.dismissSuggestions()
            }

            Item {
                Layout.fillWidth: true
            }

            PushButton {
                objectName: "addSuggestions"
                kind: PushButton.Kind.Primary
                enabled: root.suggestions.chosenCount > 0
                text: root.suggestions.chosenCount > 0 ? qsTrId("suggestions_add_button", root.suggestions.chosenCount) : qsTrId("suggestions_add_none_button")
                onClicked: root.screen.addChosenSuggestions()
            }
        }
    }
}
