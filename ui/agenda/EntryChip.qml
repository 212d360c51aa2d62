pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// Something that was understood of a line. Pressing it, or Delete, makes its words a part of the title again; one
/// that names nothing can only be read.
T.AbstractButton {
    id: root

    required property int index
    required property string kind
    required property string label
    required property string swatch
    required property bool isUnknown

    function symbolName(): string {
        switch (root.kind) {
        case "project":
            return "folder";
        case "phase":
            return "line.3.horizontal";
        case "priority":
            return "chevron.up";
        case "plannedDay":
            return "calendar";
        case "dueDay":
            return "clock.fill";
        default:
            return "exclamationmark.triangle";
        }
    }

    implicitWidth: row.implicitWidth + 2 * Theme.gap3
    implicitHeight: Theme.controlHeightSmall
    hoverEnabled: true
    enabled: !root.isUnknown
    focusPolicy: root.isUnknown ? Qt.NoFocus : Qt.StrongFocus
    Accessible.role: root.isUnknown ? Accessible.StaticText : Accessible.Button
    Accessible.name: root.isUnknown ? root.label : qsTrId("chip_remove").arg(root.label)

    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()
    Keys.onDeletePressed: root.clicked()

    background: Rectangle {
        radius: height / 2
        color: root.isUnknown ? Theme.amberSurface : root.down ? Theme.surfacePressed : root.hovered ? Theme.surfaceHover : Theme.accentSurface

        FocusRing {
            shown: root.visualFocus
            innerRadius: parent.height / 2
            distance: 1
        }
    }

    RowLayout {
        id: row

        anchors.centerIn: parent
        spacing: Theme.gap2

        Symbol {
            name: root.symbolName()
            color: root.isUnknown ? Theme.amber : root.swatch.length > 0 ? root.swatch : Theme.accentText
            size: 14
        }

        ThemedText {
            Layout.maximumWidth: 300
            text: root.label
            color: root.isUnknown ? Theme.amber : Theme.text
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        Symbol {
            visible: !root.isUnknown
            name: "xmark"
            color: root.hovered ? Theme.text : Theme.textFaint
            size: 12
        }
    }
}
