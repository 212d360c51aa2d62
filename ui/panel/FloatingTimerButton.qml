pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A button of the floating timer, which has neither the keyboard nor room for hints.
T.AbstractButton {
    id: root

    required property string symbol

    implicitWidth: 30
    implicitHeight: 30
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    Accessible.name: root.text

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            color: root.hovered ? Theme.text : Theme.textMuted
            size: 16
        }
    }

    background: Rectangle {
        radius: Theme.radiusSmall
        color: root.down ? Theme.surfacePressed : root.hovered ? Theme.surfaceHover : "transparent"
    }
}
