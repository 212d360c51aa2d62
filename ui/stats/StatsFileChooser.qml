pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Asks for the file that the statistics are written to.
FileChooser {
    id: root

    required property StatsExport model
    property int kind: StatsExport.Json

    /// Where it is to be.
    signal placed(int kind, url file)

    function choose(kind: int): void {
        root.kind = kind;
        root.save(root.titleOf(kind), root.model.folder, root.model.proposedName(kind));
    }

    function titleOf(kind: int): string {
        switch (kind) {
        case StatsExport.Sessions:
            return qsTrId("stats_export_sessions_title");
        case StatsExport.Usage:
            return qsTrId("stats_export_usage_title");
        case StatsExport.Json:
            return qsTrId("stats_export_json_title");
        case StatsExport.Picture:
            return qsTrId("stats_export_picture_title");
        default:
            return qsTrId("stats_export_document_title");
        }
    }

    function filterOf(kind: int): string {
        switch (kind) {
        case StatsExport.Sessions:
        case StatsExport.Usage:
            return qsTrId("stats_filter_csv") + " (*.csv)";
        case StatsExport.Json:
            return qsTrId("stats_filter_json") + " (*.json)";
        case StatsExport.Picture:
            return qsTrId("stats_filter_picture") + " (*.png)";
        default:
            return qsTrId("stats_filter_document") + " (*.pdf)";
        }
    }

    filters: [root.filterOf(root.kind)]
    rejectText: qsTrId("cancel_button")
    onChosen: root.placed(root.kind, root.files[0])
}
