pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Asks for the file to read the lists from or to write them to.
FileChooser {
    id: root

    required property BlockListsScreen screen
    readonly property list<string> filters: [qsTrId("lists_file_filter") + " (*.json)"]

    function choose(saving: bool): void {
        if (saving)
            root.save(qsTrId("lists_export_title"), root.screen.fileFolder, root.filters, "json", "norvin-focus-lists.json");
        else
            root.open(qsTrId("lists_import_title"), root.screen.fileFolder, root.filters, false);
    }

    rejectText: qsTrId("import_cancel_button")
    onChosen: (files, saving) => {
        if (saving)
            root.screen.exportLists(files[0]);
        else
            root.screen.examineImport(files[0]);
    }
}
