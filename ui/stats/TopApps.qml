pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The applications that were used most.
ColumnLayout {
    id: root

    required property AppTotalRows apps

    /// The records behind one are asked for, by its bundle identifier.
    signal explained(string key)

    Layout.fillWidth: true
    spacing: 0

    Repeater {
        model: root.apps

        AppProgressRow {
            id: row

            required property string name

            objectName: "appRow"
            Layout.fillWidth: true
            appName: row.name
            onExplained: root.explained(row.bundleID)
        }
    }
}
