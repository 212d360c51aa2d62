pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// An entry of a ContextMenu.
T.MenuItem {
    id: root

    property string symbol: ""
    /// What the menu calls it when it is chosen; empty where whoever makes it hears that itself.
    property string choice: ""
    /// It takes something away.
    property bool isDangerous: false

    implicitWidth: Math.max(272, Math.ceil(implicitContentWidth))
    implicitHeight: visible ? Theme.controlHeightSmall + 4 : 0
    hoverEnabled: true
    opacity: root.enabled ? 1 : 0.45
    Accessible.name: root.text

    onTriggered: (root.menu as ContextMenu).choice = root.choice

    contentItem: RowLayout {
        spacing: Theme.gap3

        Symbol {
            Layout.leftMargin: Theme.gap3
            name: root.symbol
            color: root.isDangerous ? Theme.dangerText : root.highlighted ? Theme.text : Theme.textMuted
            size: 18
        }

        ThemedText {
            Layout.fillWidth: true
            Layout.rightMargin: Theme.gap3
            text: root.text
            color: root.isDangerous ? Theme.dangerText : Theme.text
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }

    background: Rectangle {
        radius: Theme.radiusSmall
        color: root.highlighted ? Theme.surfacePressed : "transparent"
    }
}
