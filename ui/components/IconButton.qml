pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A button that shows only a symbol; its text is its name for a screen reader and its hint.
T.Button {
    id: root

    required property string symbol
    property color symbolColor: root.hovered || root.visualFocus ? Theme.text : Theme.textFaint
    property int symbolSize: 18
    readonly property bool isPointedAt: root.hovered || root.visualFocus
    /// Whoever has pressed it needs no hint any longer, and may have opened something below it.
    property bool isKnown: false

    implicitWidth: Theme.controlHeightSmall
    implicitHeight: Theme.controlHeightSmall
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.name: root.text

    onClicked: root.isKnown = true
    onIsPointedAtChanged: root.isKnown = root.isKnown && root.isPointedAt
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            color: root.symbolColor
            size: root.symbolSize
        }
    }

    background: Rectangle {
        radius: Theme.radiusSmall
        color: root.down ? Theme.surfacePressed : root.hovered ? Theme.surfaceHover : "transparent"

        FocusRing {
            shown: root.visualFocus
            distance: 1
        }
    }

    HoverHint {
        text: root.text
        shown: root.isPointedAt && !root.isKnown
    }
}
