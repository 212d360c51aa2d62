pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Asks for the file to read the lists from or to write them to.
FileChooser {
    id: root

    required property BlockListsScreen screen

    function choose(saving: bool): void {
        if (saving)
            root.save(qsTrId("lists_export_title"), root.screen.fileFolder, "norvin-focus-lists.json");
        else
            root.open(qsTrId("lists_import_title"), root.screen.fileFolder, false);
    }

    filters: [qsTrId("lists_file_filter") + " (*.json)"]
    rejectText: qsTrId("import_cancel_button")
    onChosen: {
        if (root.isSaving)
            root.screen.exportLists(root.files[0]);
        else
            root.screen.examineImport(root.files[0]);
    }
}
