pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// One setting: what it is on the left, and on the right the control that is put into it.
RowLayout {
    id: root

    required property string label
    /// A few words more; may be empty.
    property string hint: ""

    Layout.fillWidth: true
    spacing: Theme.gap5

    ColumnLayout {
        Layout.fillWidth: true
        spacing: Theme.gap1

        ThemedText {
            Layout.fillWidth: true
            text: root.label
            wrapMode: Text.WordWrap
            Accessible.ignored: true
        }

        ThemedText {
            Layout.fillWidth: true
            visible: root.hint.length > 0
            text: root.hint
            color: Theme.textMuted
            wrapMode: Text.WordWrap
            lineHeight: 1.2
        }
    }
}
