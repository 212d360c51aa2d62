pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// One headline figure.
StatsButton {
    id: root

    required property string symbol
    required property string title
    required property string value
    required property string subtitle
    required property color color
    /// Whether the card has come up.
    property bool appeared: false

    words: root.title + ", " + root.value + (root.subtitle.length > 0 ? ", " + root.subtitle : "")
    surface: Theme.surface
    innerRadius: Theme.radiusLarge
    padding: Theme.gap3
    implicitHeight: column.implicitHeight + 2 * root.padding
    opacity: root.appeared ? 1 : 0

    Component.onCompleted: root.appeared = true

    Behavior on opacity {
        NumberAnimation {
            duration: Theme.motion
        }
    }

    ColumnLayout {
        id: column

        anchors.left: parent.left
        anchors.right: parent.right
        spacing: 2

        RowLayout {
            Layout.bottomMargin: Theme.gap2
            spacing: Theme.gap2

            Rectangle {
                implicitWidth: 28
                implicitHeight: 28
                radius: Theme.radiusSmall
                color: Qt.rgba(root.color.r, root.color.g, root.color.b, 0.18)

                Symbol {
                    anchors.centerIn: parent
                    name: root.symbol
                    color: root.color
                    size: 18
                }
            }

            ThemedText {
                Layout.fillWidth: true
                text: root.title
                color: Theme.textMuted
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: Theme.caption - 1
                Accessible.ignored: true
            }
        }

        ThemedText {
            objectName: root.objectName + "Value"
            Layout.fillWidth: true
            text: root.value
            font.pixelSize: Theme.headline
            font.weight: Font.DemiBold
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Theme.body
            Accessible.ignored: true
        }

        ThemedText {
            Layout.fillWidth: true
            text: root.subtitle
            color: Theme.textFaint
            font.pixelSize: Theme.caption
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Theme.caption - 2
            Accessible.ignored: true
        }
    }
}
