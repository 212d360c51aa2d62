pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What the user may decide. Whatever is changed counts at once.
Page {
    id: root

    required property PreferencesScreen model

    heading: qsTrId("preferences_title")
    introduction: qsTrId("preferences_subtitle")

    onEntered: root.model.open()
}
