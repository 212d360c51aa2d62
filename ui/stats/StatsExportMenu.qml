pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Writes the statistics into files: what kind of file, and where.
Item {
    id: root

    required property StatsExport model

    function choose(kind: int): void {
        if (!files.item) {
            files.setSource("StatsFileChooser.qml", {
                model: root.model
            });
        }
        (files.item as StatsFileChooser).choose(kind);
    }

    function write(kind: int, file: url): void {
        if (kind === StatsExport.Picture)
            grab.take(root.model, Theme.background, file);
        else
            root.model.write(kind, file);
    }

    implicitWidth: button.implicitWidth
    implicitHeight: button.implicitHeight

    IconButton {
        id: button

        objectName: "statsExport"
        implicitWidth: Theme.controlHeight
        implicitHeight: Theme.controlHeight
        symbol: "square.and.arrow.up"
        text: qsTrId("stats_export_button")
        enabled: !root.model.isBusy
        opacity: enabled ? 1 : 0.45
        onClicked: menu.popup(button, button.width - menu.width, button.height + Theme.gap1)
    }

    ContextMenu {
        id: menu

        objectName: "statsExportMenu"
        onFinished: choice => {
            button.forceActiveFocus(Qt.PopupFocusReason);
            if (choice.length > 0)
                root.choose(Number(choice));
        }

        ContextMenuItem {
            choice: `${StatsExport.Sessions}`
            symbol: "tablecells"
            text: qsTrId("stats_export_sessions")
        }

        ContextMenuItem {
            choice: `${StatsExport.Usage}`
            symbol: "tablecells"
            text: qsTrId("stats_export_usage")
        }

        ContextMenuItem {
            choice: `${StatsExport.Json}`
            symbol: "curlybraces"
            text: qsTrId("stats_export_json")
        }

        ContextMenuItem {
            choice: `${StatsExport.Picture}`
            symbol: "photo"
            text: qsTrId("stats_export_picture")
        }

        ContextMenuItem {
            choice: `${StatsExport.Document}`
            symbol: "doc.text"
            text: qsTrId("stats_export_document")
        }
    }

    PageGrab {
        id: grab
    }

    Loader {
        id: files
    }

    Connections {
        target: files.item as StatsFileChooser

        function onPlaced(kind: int, file: url): void {
            root.write(kind, file);
        }
    }
}
