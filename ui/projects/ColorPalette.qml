pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The colours that a project can have.
PaletteGrid {
    id: root

    function nameOf(position: int): string {
        switch (position) {
        case 0:
            return qsTrId("color_violet");
        case 1:
            return qsTrId("color_deep_violet");
        case 2:
            return qsTrId("color_indigo");
        case 3:
            return qsTrId("color_cyan");
        case 4:
            return qsTrId("color_green");
        case 5:
            return qsTrId("color_amber");
        case 6:
            return qsTrId("color_pink");
        case 7:
            return qsTrId("color_red");
        case 8:
            return qsTrId("color_lavender");
        case 9:
            return qsTrId("color_blue");
        case 10:
            return qsTrId("color_teal");
        case 11:
            return qsTrId("color_orange");
        default:
            return root.value;
        }
    }

    columns: 12
    cellSize: 36
    showsColors: true
    name: qsTrId("project_color_label")
    valueName: qsTrId("project_color_name").arg(root.nameOf(root.index)).arg(root.index + 1).arg(root.values.length)
}
