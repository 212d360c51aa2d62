pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The circle that ticks something off.
T.CheckBox {
    id: root

    implicitWidth: 32
    implicitHeight: 32
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    // It shows what is so; whoever owns it makes it so.
    nextCheckState: () => root.checkState
    Accessible.name: root.text

    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: root.checked ? "checkmark.circle.fill" : "circle"
            color: root.checked ? Theme.legitimate : root.hovered || root.visualFocus ? Theme.text : Theme.textFaint
            size: 20
        }
    }

    background: Item {
        FocusRing {
            shown: root.visualFocus
            distance: -2
        }
    }
}
