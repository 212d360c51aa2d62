pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// Whether the pages in browsers may be told apart, which needs the user's consent.
WelcomeStep {
    id: root

    readonly property string access: root.screen.pageAccess

    symbol: "globe"
    title: qsTrId("welcome_pages_title")
    message: qsTrId("welcome_pages_subtitle")
    wantsKeyboard: root.access === "off"
    onKeyboardGiven: allow.forceActiveFocus(Qt.TabFocusReason)

    WelcomePoint {
        Layout.fillWidth: true
        symbol: root.access === "on" ? "checkmark.circle.fill" : root.access === "off" ? "hand.raised" : "exclamationmark.triangle"
        symbolColor: root.access === "on" ? Theme.legitimate : root.access === "off" ? Theme.textMuted : Theme.amber
        text: root.access === "on" ? qsTrId("welcome_pages_on") : root.access === "off" ? qsTrId("welcome_pages_off") : qsTrId("welcome_pages_missing")
    }

    PushButton {
        id: allow

        objectName: "welcomeAllowPages"
        visible: root.access === "off"
        symbol: "checkmark"
        text: qsTrId("welcome_pages_allow_button")
        implicitHeight: Theme.controlHeightLarge
        onClicked: root.screen.allowPageAccess()
    }

    Item {
        Layout.fillHeight: true
    }
}
