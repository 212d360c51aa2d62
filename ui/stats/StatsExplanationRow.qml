pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A session, day or application behind a figure, or the work phase that runs.
Item {
    id: root

    required property int index
    required property string kind
    required property string title
    required property string detail
    required property string value
    required property string score
    required property string bundleID
    required property bool canOpen
    readonly property bool isLive: root.kind === "live"
    readonly property bool isCurrent: root.ListView.isCurrentItem && root.ListView.view.activeFocus

    signal opened

    function withFact(text: string, fact: string): string {
        return fact.length > 0 ? text + ", " + fact : text;
    }

    implicitHeight: 52
    Accessible.role: Accessible.ListItem
    Accessible.name: root.withFact(root.withFact(root.withFact(root.title, root.detail), root.value), root.score)
    Accessible.onPressAction: root.opened()

    Rectangle {
        anchors.fill: parent
        radius: Theme.radiusSmall
        color: root.isLive ? Theme.accentSurface : hover.hovered || root.isCurrent ? Theme.surfaceRaised : "transparent"

        HoverHandler {
            id: hover
        }

        TapHandler {
            onTapped: root.opened()
        }

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.gap3
            anchors.rightMargin: Theme.gap3
            spacing: Theme.gap3

            Image {
                Layout.preferredWidth: 28
                Layout.preferredHeight: 28
                visible: root.bundleID.length > 0
                sourceSize.width: Math.round(28 * Screen.devicePixelRatio)
                sourceSize.height: Math.round(28 * Screen.devicePixelRatio)
                source: visible ? "image://appicon/of:" + encodeURIComponent(root.bundleID) : ""
                fillMode: Image.PreserveAspectFit
            }

            Symbol {
                visible: root.isLive
                name: "timer"
                color: Theme.accentText
            }

            ColumnLayout {
                spacing: 2

                ThemedText {
                    Layout.fillWidth: true
                    text: root.title
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }

                ThemedText {
                    Layout.fillWidth: true
                    visible: text.length > 0
                    text: root.detail
                    color: Theme.textMuted
                    font.pixelSize: Theme.caption
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }
            }

            ScoreMark {
                visible: root.score.length > 0
                scoreText: root.score
            }

            ThemedText {
                Layout.minimumWidth: 72
                text: root.value
                horizontalAlignment: Text.AlignRight
                Accessible.ignored: true
            }

            Symbol {
                opacity: root.canOpen ? 1 : 0
                name: "chevron.right"
                color: Theme.textFaint
                size: 16
            }
        }

        FocusRing {
            shown: root.isCurrent
            distance: -1
        }
    }
}
