pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What was used: at the left by category, at the right the applications that were used most.
RowLayout {
    id: root

    required property ChartModel categories
    required property AppTotalRows apps
    required property string categoriesTitle
    required property string appsTitle

    /// The records behind a slice or row are asked for.
    signal explained(string what, string key)

    Layout.fillWidth: true
    spacing: Theme.gap8

    ColumnLayout {
        Layout.fillWidth: false
        Layout.preferredWidth: root.width * 0.53
        Layout.alignment: Qt.AlignTop
        spacing: Theme.gap3

        ThemedText {
            Layout.fillWidth: true
            text: root.categoriesTitle
            color: Theme.textMuted
            font.weight: Font.DemiBold
        }

        StatDonutChart {
            objectName: "categoryChart"
            Layout.fillWidth: true
            model: root.categories
            title: root.categoriesTitle
            onExplained: key => root.explained("category", key)
        }
    }

    ColumnLayout {
        Layout.fillWidth: true
        Layout.alignment: Qt.AlignTop
        spacing: 0

        ThemedText {
            Layout.fillWidth: true
            Layout.bottomMargin: Theme.gap2
            text: root.appsTitle
            color: Theme.textMuted
            font.weight: Font.DemiBold
        }

        TopApps {
            apps: root.apps
            onExplained: key => root.explained("application", key)
        }
    }
}
