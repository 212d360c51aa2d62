pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The tab of a phase in the row of tabs.
PhaseTab {
    id: root

    required property string phaseId
    required property string name

    objectName: "phaseTab-" + root.name
    text: root.name
}
