pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A field for one line of text. Its name for a screen reader is its placeholder unless another is given.
T.TextField {
    id: root

    property string symbol: ""

    implicitWidth: 240
    implicitHeight: Theme.controlHeight
    leftPadding: root.symbol.length > 0 ? 40 : Theme.gap3
    rightPadding: Theme.gap3
    verticalAlignment: TextInput.AlignVCenter
    color: Theme.text
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentInk
    placeholderTextColor: Theme.textFaint
    font.pixelSize: Theme.body
    selectByMouse: true
    Accessible.name: root.placeholderText

    background: Rectangle {
        radius: Theme.radius
        color: root.hovered && !root.activeFocus ? Theme.surfaceHover : Theme.surfaceRaised
        border.width: root.activeFocus ? 2 : 0
        border.color: Theme.focusRing
    }

    ThemedText {
        x: root.leftPadding
        width: root.width - root.leftPadding - root.rightPadding
        height: root.height
        verticalAlignment: Text.AlignVCenter
        text: root.placeholderText
        color: root.placeholderTextColor
        elide: Text.ElideRight
        visible: root.length === 0 && root.preeditText.length === 0
        Accessible.ignored: true
    }

    Symbol {
        x: Theme.gap3
        anchors.verticalCenter: parent.verticalCenter
        visible: root.symbol.length > 0
        name: root.symbol
        color: Theme.textFaint
        size: 18
    }
}
