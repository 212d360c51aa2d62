pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A card of the statistics with its heading; what is put into it stands below that.
Card {
    id: root

    required property string icon
    required property string title
    property string subtitle: ""
    /// Beside the heading.
    property alias actions: heading.data
    default property alias content: column.data

    Layout.fillWidth: true
    implicitHeight: column.implicitHeight + 2 * Theme.gap5

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: Theme.gap5
        spacing: Theme.gap4

        SectionLabel {
            id: heading

            Layout.fillWidth: true
            icon: root.icon
            title: root.title
            subtitle: root.subtitle
        }
    }
}
