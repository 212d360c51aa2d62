pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Dialogs
import NorvinFocus.Ui

/// Asks for the file to read the lists from or to write them to.
Item {
    id: root

    required property BlockListsScreen screen

    function choose(saving: bool): void {
        dialog.saving = saving;
        dialog.currentFolder = root.screen.fileFolder;
        if (saving)
            dialog.selectedFile = root.screen.fileFolder + "/norvin-focus-lists.json";
        root.tint();
        dialog.open();
    }

    // Where the desktop has no dialog of its own for files, one is shown inside the window.
    function tint(): void {
        const palette = root.Window.window.palette;
        palette.window = Theme.surfaceRaised;
        palette.base = Theme.surface;
        palette.alternateBase = Theme.surfaceRaised;
        // Its path stands on white whatever the palette says, in the ink of buttons.
        palette.button = Theme.text;
        palette.windowText = Theme.text;
        palette.text = Theme.text;
        palette.buttonText = Theme.background;
        palette.placeholderText = Theme.textFaint;
        palette.highlight = Theme.accent;
        palette.highlightedText = Theme.accentInk;
        palette.light = Theme.surfaceHover;
        palette.midlight = Theme.surfaceHover;
        palette.mid = Theme.outline;
        palette.dark = Theme.outline;
        palette.shadow = Theme.background;
    }

    FileDialog {
        id: dialog

        property bool saving: false

        title: dialog.saving ? qsTrId("lists_export_title") : qsTrId("lists_import_title")
        fileMode: dialog.saving ? FileDialog.SaveFile : FileDialog.OpenFile
        nameFilters: [qsTrId("lists_file_filter") + " (*.json)"]
        defaultSuffix: "json"
        acceptLabel: dialog.saving ? qsTrId("lists_export_accept_button") : qsTrId("lists_import_accept_button")
        rejectLabel: qsTrId("import_cancel_button")
        onAccepted: {
            if (dialog.saving)
                root.screen.exportLists(dialog.selectedFile);
            else
                root.screen.examineImport(dialog.selectedFile);
        }
    }
}
