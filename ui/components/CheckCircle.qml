pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The circle that ticks something off.
T.AbstractButton {
    id: root

    implicitWidth: 32
    implicitHeight: 32
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.CheckBox
    Accessible.name: root.text
    Accessible.checkable: true
    Accessible.checked: root.checked

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
