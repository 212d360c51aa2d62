pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// An application with what it was used, and a bar as long as its share of all that was used.
StatsButton {
    id: root

    required property int rank
    required property string bundleID
    required property string appName
    required property string category
    required property string duration
    /// 0 to 1.
    required property real share
    /// How much of the bar is there, 0 to 1.
    property real barWidth: 0

    words: root.rank + ", " + root.appName + ", " + root.category + ", " + root.duration
    implicitHeight: 52

    Component.onCompleted: root.barWidth = Qt.binding(() => root.share)

    Behavior on barWidth {
        NumberAnimation {
            duration: Theme.motion
            easing.type: Easing.OutCubic
        }
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.gap2
        anchors.rightMargin: Theme.gap2
        spacing: Theme.gap3

        ThemedText {
            Layout.preferredWidth: 14
            text: root.rank
            color: Theme.textFaint
            font.pixelSize: Theme.caption
            horizontalAlignment: Text.AlignRight
            Accessible.ignored: true
        }

        Image {
            Layout.preferredWidth: 28
            Layout.preferredHeight: 28
            sourceSize.width: Math.round(28 * Screen.devicePixelRatio)
            sourceSize.height: Math.round(28 * Screen.devicePixelRatio)
            source: "image://appicon/of:" + encodeURIComponent(root.bundleID)
            fillMode: Image.PreserveAspectFit
        }

        ColumnLayout {
            spacing: Theme.gap1 + 2

            RowLayout {
                spacing: Theme.gap2

                ThemedText {
                    Layout.maximumWidth: Math.ceil(implicitWidth)
                    Layout.fillWidth: true
                    text: root.appName
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }

                ThemedText {
                    Layout.alignment: Qt.AlignBaseline
                    text: root.category
                    color: Theme.textFaint
                    font.pixelSize: Theme.caption
                    Accessible.ignored: true
                }

                Item {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 0
                }

                ThemedText {
                    text: root.duration
                    color: Theme.textMuted
                    Accessible.ignored: true
                }
            }

            ProgressLine {
                Layout.fillWidth: true
                progress: root.barWidth
                fill: Theme.accentBright
            }
        }
    }
}
