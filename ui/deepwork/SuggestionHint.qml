pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The first line of the suggestions: making a new task of what was typed.
T.AbstractButton {
    id: root

    required property bool isCurrent

    implicitHeight: Theme.controlHeight
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    Accessible.name: root.text

    contentItem: Item {
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.gap2
            anchors.rightMargin: Theme.gap2
            spacing: Theme.gap2

            Symbol {
                name: "plus"
                color: Theme.accentText
                size: 16
            }

            ThemedText {
                Layout.fillWidth: true
                text: root.text
                elide: Text.ElideMiddle
                Accessible.ignored: true
            }

            Symbol {
                name: "return"
                color: Theme.textFaint
                size: 16
                visible: root.isCurrent
            }
        }
    }

    background: Rectangle {
        radius: Theme.radiusSmall
        color: root.isCurrent || root.hovered ? Theme.surfacePressed : "transparent"
    }
}
