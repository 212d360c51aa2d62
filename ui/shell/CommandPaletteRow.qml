pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A row of the command palette.
T.ItemDelegate {
    id: root

    required property int index
    required property string title
    required property string detail
    required property string symbol
    required property string emoji
    required property string keys
    required property bool isEnabled
    readonly property string spoken: root.detail.length > 0 ? root.title + ", " + root.detail : root.title

    implicitHeight: 44
    enabled: root.isEnabled
    opacity: root.isEnabled ? 1 : 0.45
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    text: root.title
    Accessible.name: root.spoken
    Accessible.description: root.keys

    contentItem: Item {
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.gap3
            anchors.rightMargin: Theme.gap3
            spacing: Theme.gap3

            Symbol {
                visible: root.symbol.length > 0
                name: root.symbol
                color: root.highlighted ? Theme.accentText : Theme.textFaint
                size: 20
            }

            Emoji {
                visible: root.emoji.length > 0
                text: root.emoji
                size: 18
            }

            ThemedText {
                Layout.fillWidth: true
                text: root.title
                elide: Text.ElideRight
                Accessible.ignored: true
            }

            ThemedText {
                Layout.maximumWidth: 200
                visible: root.detail.length > 0
                text: root.detail
                color: Theme.textFaint
                elide: Text.ElideRight
                Accessible.ignored: true
            }

            ThemedText {
                visible: root.keys.length > 0
                text: root.keys
                color: Theme.textFaint
                font.pixelSize: Theme.caption
                Accessible.ignored: true
            }
        }
    }

    background: Rectangle {
        radius: Theme.radiusSmall
        color: root.highlighted ? Theme.surfacePressed : root.hovered ? Theme.surfaceHover : "transparent"
    }
}
