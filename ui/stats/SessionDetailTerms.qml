pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The terms of a recorded score, which add up to it.
ColumnLayout {
    id: root

    /// By the same index.
    required property list<string> labels
    required property list<string> points
    required property string total

    spacing: Theme.gap2

    Repeater {
        model: root.labels.length

        ScoreTerm {
            required property int index

            Layout.fillWidth: true
            label: root.labels[index] ?? ""
            value: root.points[index] ?? ""
        }
    }

    Rectangle {
        Layout.fillWidth: true
        visible: root.labels.length > 0
        implicitHeight: 1
        color: Theme.surfacePressed
    }

    ScoreTerm {
        Layout.fillWidth: true
        label: qsTrId("score_term_total")
        value: root.total
        isTotal: true
    }
}
