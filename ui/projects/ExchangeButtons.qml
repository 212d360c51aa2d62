pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Reads planning from files and writes it into them.
Row {
    id: root

    required property PlanningScreens planning

    function choose(saving: bool): void {
        if (!files.item)
            files.setSource("PlanningFileChooser.qml", {
                planning: root.planning
            });
        (files.item as PlanningFileChooser).choose(saving);
    }

    spacing: Theme.gap1

    IconButton {
        objectName: "planningImport"
        implicitWidth: Theme.controlHeight
        implicitHeight: Theme.controlHeight
        symbol: "square.and.arrow.down"
        text: qsTrId("planning_import_button")
        onClicked: root.choose(false)
    }

    IconButton {
        objectName: "planningExport"
        implicitWidth: Theme.controlHeight
        implicitHeight: Theme.controlHeight
        symbol: "square.and.arrow.up"
        text: qsTrId("planning_export_button")
        onClicked: root.choose(true)
    }

    Loader {
        id: files
    }
}
