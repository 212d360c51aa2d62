pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The program itself: its version, its licence, and the way to those who make it.
ColumnLayout {
    id: root

    required property OutsideServices outside

    spacing: Theme.gap4

    SettingsCard {
        title: qsTrId("preferences_updates_title")

        UpdateSection {
            Layout.fillWidth: true
            updater: root.outside.updater
        }
    }

    SettingsCard {
        title: qsTrId("preferences_licence_title")

        LicenceSection {
            Layout.fillWidth: true
            license: root.outside.license
        }
    }

    SettingsCard {
        visible: root.outside.feedback.isAvailable
        title: qsTrId("preferences_feedback_title")

        FeedbackSection {
            Layout.fillWidth: true
            form: root.outside.feedback
        }
    }
}
