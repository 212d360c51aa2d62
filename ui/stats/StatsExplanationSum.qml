pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What the listed records add up to, and whether they are all there yet.
RowLayout {
    id: root

    required property StatsExplanation explanation

    spacing: Theme.gap3

    ThemedText {
        objectName: "explanationSum"
        Layout.fillWidth: true
        text: root.explanation?.sumText ?? ""
        color: Theme.textMuted
        wrapMode: Text.WordWrap
    }

    ThemedText {
        visible: !(root.explanation?.isComplete ?? true)
        text: qsTrId("explain_waiting")
        color: Theme.amber
    }
}
