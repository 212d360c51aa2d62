pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Asks for files to attach.
FileChooser {
    id: root

    required property TaskSheet sheet

    function choose(): void {
        root.open(qsTrId("resources_choose_title"), root.sheet.fileFolder, true);
    }

    filters: [qsTrId("resources_all_files") + " (*)"]
    rejectText: qsTrId("cancel_button")
    onChosen: root.sheet.attach(root.files)
}
