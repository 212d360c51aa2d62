pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The language of the program.
WelcomeStep {
    id: root

    symbol: "brain"
    title: qsTrId("welcome_title")
    message: qsTrId("welcome_subtitle")
    wantsKeyboard: true
    onKeyboardGiven: choice.forceActiveFocus(Qt.TabFocusReason)

    ThemedText {
        text: qsTrId("language_label")
        font.weight: Font.DemiBold
    }

    SegmentedChoice {
        id: choice

        objectName: "welcomeLanguage"
        segmentHeight: Theme.controlHeight
        segmentPadding: Theme.gap6
        name: qsTrId("language_label")
        values: Localization.languages
        labels: Localization.languageNames
        value: Localization.language
        onChosen: value => Localization.language = value
        Keys.onReturnPressed: root.screen.next()
        Keys.onEnterPressed: root.screen.next()
    }

    Item {
        Layout.fillHeight: true
    }
}
