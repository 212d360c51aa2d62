pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// Why the sites of a browser do not come into play, with the remedy.
Rectangle {
    id: root

    required property BlockListsScreen screen

    /// The note has done its work and goes.
    signal acted

    implicitHeight: row.implicitHeight + 2 * Theme.gap3
    radius: Theme.radius
    color: Theme.amberSurface

    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: Theme.gap4
        anchors.rightMargin: Theme.gap3
        anchors.topMargin: Theme.gap3
        anchors.bottomMargin: Theme.gap3
        spacing: Theme.gap3

        Symbol {
            name: "exclamationmark.triangle"
            color: Theme.amber
        }

        ThemedText {
            Layout.fillWidth: true
            text: (root.screen.browserList === "blocked" ? qsTrId("browser_blocked_note") : qsTrId("browser_not_whitelisted_note")).arg(root.screen.browserName)
            wrapMode: Text.WordWrap
        }

        PushButton {
            objectName: "whitelistBrowser"
            text: qsTrId("browser_whitelist_button")
            onClicked: {
                root.acted();
                root.screen.whitelistBrowser();
            }
        }
    }
}
