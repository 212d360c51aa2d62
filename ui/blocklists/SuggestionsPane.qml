pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
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

        ListView {
            id: list

            objectName: "suggestionList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            activeFocusOnTab: true
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0
            model: root.suggestions
            Accessible.role: Accessible.List
            Accessible.name: qsTrId("suggestions_tab")

            T.ScrollBar.vertical: ScrollBarThin {}

            onActiveFocusChanged: {
                if (list.activeFocus && list.currentIndex < 0)
                    list.currentIndex = 0;
            }

            Keys.onPressed: event => {
                event.accepted = event.key === Qt.Key_Space || event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
                if (event.accepted)
                    root.suggestions.toggle(list.currentIndex);
            }

            delegate: SuggestionToggle {
                width: list.width - Theme.gap3
                hasKeyboard: list.activeFocus
                onClicked: {
                    list.currentIndex = index;
                    list.forceActiveFocus(Qt.MouseFocusReason);
                    root.suggestions.toggle(index);
                }
            }
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
