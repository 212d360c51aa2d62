pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Dialogs
import NorvinFocus.Ui

/// Asks for files to read or for a file to write, in the desktop's own dialog where it has one.
Item {
    id: root

    required property string rejectText
    /// The kinds of file to offer, as "Name (*.ending)".
    required property list<string> filters
    /// What was chosen last.
    readonly property list<url> files: dialog.selectedFiles
    readonly property bool isSaving: dialog.fileMode === FileDialog.SaveFile

    signal chosen

    function open(title: string, folder: url, several: bool): void {
        dialog.fileMode = several ? FileDialog.OpenFiles : FileDialog.OpenFile;
        root.show(title, folder, qsTrId("file_open_button"));
    }

    /// `proposed` is the name of a file, with its ending.
    function save(title: string, folder: url, proposed: string): void {
        dialog.fileMode = FileDialog.SaveFile;
        dialog.defaultSuffix = proposed.slice(proposed.lastIndexOf(".") + 1);
        dialog.selectedFile = folder + "/" + proposed;
        root.show(title, folder, qsTrId("file_save_button"));
    }

    function show(title: string, folder: url, acceptText: string): void {
        dialog.title = title;
        dialog.currentFolder = folder;
        dialog.nameFilters = root.filters;
        dialog.acceptLabel = acceptText;
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

        rejectLabel: root.rejectText
        onAccepted: root.chosen()
    }
}
