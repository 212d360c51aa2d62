pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What was used: at the left by category, at the right the applications that were used most.
Item {
    id: root

    required property ChartModel categories
    required property AppTotalRows apps
    required property string categoriesTitle
    required property string appsTitle

    /// The records behind a slice or row are asked for.
    signal explained(string what, string key)

    Layout.fillWidth: true
    implicitHeight: Math.max(left.implicitHeight, right.implicitHeight)

    ColumnLayout {
        id: left

        width: Math.round((root.width - Theme.gap8) * 0.54)
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
        id: right

        anchors.left: left.right
        anchors.leftMargin: Theme.gap8
        anchors.right: parent.right
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
