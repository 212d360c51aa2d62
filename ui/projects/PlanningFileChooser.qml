pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Asks for the file to read planning from or to write it to.
FileChooser {
    id: root

    required property PlanningScreens planning

    function choose(saving: bool): void {
        if (saving)
            root.save(qsTrId("planning_export_title"), root.planning.fileFolder, "norvin-focus-planning.json");
        else
            root.open(qsTrId("planning_import_title"), root.planning.fileFolder, false);
    }

    filters: [qsTrId("planning_filter_all") + " (*.json *.txt *.ics)", qsTrId("planning_filter_json") + " (*.json)", qsTrId("planning_filter_todo") + " (*.txt)", qsTrId("planning_filter_calendar") + " (*.ics)"]
    rejectText: qsTrId("cancel_button")
    onChosen: {
        if (root.isSaving)
            root.planning.exchange.exportFile(root.files[0]);
        else
            root.planning.exchange.importFile(root.files[0]);
    }
}
