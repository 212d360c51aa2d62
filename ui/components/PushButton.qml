pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A button with a text and perhaps a symbol. Space and Enter press it.
T.Button {
    id: root

    enum Kind {
        Primary,
        Secondary,
        Quiet,
        Danger
    }

    property int kind: PushButton.Kind.Secondary
    property string symbol: ""
    property color symbolColor: root.foreground
    /// Whether the text begins at the left edge rather than standing in the middle.
    property bool alignsLeft: false
    readonly property color foreground: root.kind === PushButton.Kind.Primary ? Theme.accentInk : root.kind === PushButton.Kind.Danger ? Theme.dangerInk : Theme.text

    function surfaceColor(): color {
        switch (root.kind) {
        case PushButton.Kind.Primary:
            return root.down ? Theme.accentPressed : root.hovered ? Theme.accentHover : Theme.accent;
        case PushButton.Kind.Danger:
            return root.down || root.hovered ? Theme.dangerHover : Theme.danger;
        case PushButton.Kind.Quiet:
            return root.down ? Theme.surfacePressed : root.hovered ? Theme.surfaceRaised : "transparent";
        default:
            return root.down ? Theme.surfacePressed : root.hovered ? Theme.surfaceHover : Theme.surfaceRaised;
        }
    }

    implicitWidth: Math.ceil(row.implicitWidth) + leftPadding + rightPadding
    implicitHeight: root.kind === PushButton.Kind.Primary || root.kind === PushButton.Kind.Danger ? Theme.controlHeightLarge : Theme.controlHeight
    leftPadding: root.kind === PushButton.Kind.Primary ? Theme.gap6 : Theme.gap4
    rightPadding: root.leftPadding
    opacity: root.enabled ? 1 : 0.45
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    font.pixelSize: Theme.body
    font.weight: Font.DemiBold
    Accessible.name: root.text

    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    background: Rectangle {
        radius: Theme.radius
        color: root.surfaceColor()

        FocusRing {
            shown: root.visualFocus
            innerRadius: Theme.radius
        }
    }

    RowLayout {
        id: row

        anchors.verticalCenter: parent.verticalCenter
        x: root.alignsLeft ? root.leftPadding : (root.width - width) / 2
        width: root.alignsLeft ? root.availableWidth : Math.min(implicitWidth, root.availableWidth)
        spacing: Theme.gap2

        Symbol {
            visible: root.symbol.length > 0
            name: root.symbol
            color: root.symbolColor
            size: 18
        }

        ThemedText {
            Layout.fillWidth: true
            text: root.text
            font: root.font
            color: root.foreground
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
