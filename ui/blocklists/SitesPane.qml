pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The sites of one browser at a time, and what they come to for a given address.
FocusScope {
    id: root

    required property BlockListsScreen screen

    function focusStart(): void {
        browsers.forceActiveFocus(Qt.TabFocusReason);
    }

    RowLayout {
        anchors.fill: parent
        spacing: Theme.gap4

        ColumnLayout {
            Layout.preferredWidth: 196
            Layout.maximumWidth: 196
            Layout.fillHeight: true
            spacing: Theme.gap2

            BrowserList {
                id: browsers

                Layout.fillWidth: true
                Layout.fillHeight: true
                screen: root.screen
            }

            PushButton {
                objectName: "copySites"
                Layout.fillWidth: true
                kind: PushButton.Kind.Quiet
                font.weight: Font.Normal
                enabled: root.screen.canCopySites
                symbol: "doc.on.doc"
                text: qsTrId("sites_copy_button")
                Accessible.name: qsTrId("sites_copy_name").arg(root.screen.browserName)
                onClicked: root.screen.copySites()
            }

            PushButton {
                objectName: "allBrowsers"
                Layout.fillWidth: true
                kind: PushButton.Kind.Quiet
                font.weight: Font.Normal
                symbol: root.screen.browsers.showsAll ? "chevron.up" : "chevron.down"
                text: root.screen.browsers.showsAll ? qsTrId("browsers_fewer_button") : qsTrId("browsers_all_button")
                onClicked: root.screen.browsers.showsAll = !root.screen.browsers.showsAll
            }
        }

        ColumnLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: Theme.gap3

            BrowserNote {
                Layout.fillWidth: true
                visible: root.screen.browserList !== "whitelisted"
                screen: root.screen
                onActed: browsers.forceActiveFocus(Qt.TabFocusReason)
            }

            RowLayout {
                Layout.fillHeight: true
                spacing: Theme.gap3

                SitePanel {
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    Layout.preferredWidth: 1
                    objectName: "whitelistPanel"
                    screen: root.screen
                    list: "whitelisted"
                    model: root.screen.whitelistedSites
                    report: root.screen.whitelistReport
                }

                SitePanel {
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    Layout.preferredWidth: 1
                    objectName: "blockedPanel"
                    screen: root.screen
                    list: "blocked"
                    model: root.screen.blockedSites
                    report: root.screen.blockedReport
                }
            }

            SiteTest {
                Layout.fillWidth: true
                screen: root.screen
            }
        }
    }
}
