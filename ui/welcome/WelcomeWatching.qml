pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What is watched while a work phase runs, and where that is kept.
WelcomeStep {
    id: root

    symbol: "scope"
    title: qsTrId("welcome_watching_title")
    message: qsTrId("welcome_watching_subtitle")

    WelcomePoint {
        Layout.fillWidth: true
        symbol: "app"
        text: qsTrId("welcome_watching_applications")
    }

    WelcomePoint {
        Layout.fillWidth: true
        symbol: "globe"
        text: qsTrId("welcome_watching_pages")
    }

    WelcomePoint {
        Layout.fillWidth: true
        symbol: "moon.zzz"
        text: qsTrId("welcome_watching_input")
    }

    WelcomePoint {
        Layout.fillWidth: true
        symbol: "checkmark.shield"
        text: qsTrId("welcome_watching_kept").arg(root.screen.storeFolder)
    }

    Item {
        Layout.fillHeight: true
    }
}
