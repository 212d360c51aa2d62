pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The version that runs, and the look for a newer one.
ColumnLayout {
    id: root

    required property UpdaterService updater
    readonly property UpdateText words: UpdateText {
        updater: root.updater
    }
    readonly property bool isUnavailable: root.updater.unavailableKey.length > 0

    function stateText(): string {
        if (root.isUnavailable)
            return qsTrId(root.updater.unavailableKey);
        if (root.updater.isChecking)
            return qsTrId("update_checking");
        return root.words.text.length > 0 ? root.words.text : qsTrId("update_not_checked");
    }

    objectName: "updateSection"
    spacing: Theme.gap2

    RowLayout {
        Layout.fillWidth: true
        spacing: Theme.gap4

        ColumnLayout {
            Layout.fillWidth: true
            spacing: Theme.gap1

            ThemedText {
                Layout.fillWidth: true
                text: qsTrId("update_version").arg(Qt.application.version)
            }

            ThemedText {
                objectName: "updateState"
                Layout.fillWidth: true
                text: root.stateText()
                color: Theme.textMuted
                wrapMode: Text.WordWrap
            }
        }

        PushButton {
            objectName: "updateCentre"
            visible: root.updater.canOpenSoftwareCentre
            text: qsTrId("update_open_centre_button")
            onClicked: root.updater.openSoftwareCentre()
        }

        PushButton {
            objectName: "updateCheck"
            visible: !root.isUnavailable
            enabled: root.updater.canCheckForUpdates
            symbol: "arrow.clockwise"
            text: qsTrId("check_for_updates")
            onClicked: root.updater.checkForUpdates()
        }
    }

    ThemedText {
        Layout.fillWidth: true
        text: root.isUnavailable ? qsTrId(root.updater.unavailableKey + "_remedy") : qsTrId("update_explanation")
        color: Theme.textFaint
        font.pixelSize: Theme.caption
        wrapMode: Text.WordWrap
        lineHeight: 1.2
    }
}
