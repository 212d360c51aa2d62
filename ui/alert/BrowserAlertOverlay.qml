pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What the browser alert shows: a card in the middle, a frame around the screen, and where the windows below
/// show through, a shade that puts them back.
Item {
    id: root

    required property BrowserAlertModel model
    /// Whether what lies below shows through.
    required property bool isBlended
    /// Whether the alert has entered.
    property bool appeared: false
    readonly property bool pulse: root.appeared && root.visible && !MotionPreference.isReduced
    readonly property rect cardPlace: Qt.rect(card.x, card.y, card.width, card.height)
    readonly property int cardRadius: 20
    readonly property int frameWidth: 6

    Accessible.role: Accessible.AlertMessage
    Accessible.name: qsTrId("alert_stay_focused") + ". " + qsTrId("alert_non_legitimate_site") + ". " + root.model.domain

    Rectangle {
        anchors.fill: parent
        visible: root.isBlended
        color: Theme.background
        opacity: 0.5
    }

    Repeater {
        // The glow of each edge: from the frame's colour to nothing.
        model: root.isBlended ? 4 : 0

        Rectangle {
            id: glow

            required property int index
            readonly property bool isUpright: glow.index > 1
            readonly property bool isFarEdge: glow.index % 2 === 1
            readonly property int depth: 72

            x: glow.isUpright && glow.isFarEdge ? root.width - glow.depth : 0
            y: !glow.isUpright && glow.isFarEdge ? root.height - glow.depth : 0
            width: glow.isUpright ? glow.depth : root.width
            height: glow.isUpright ? root.height : glow.depth
            opacity: 0.4
            gradient: Gradient {
                orientation: glow.isUpright ? Gradient.Horizontal : Gradient.Vertical

                GradientStop {
                    position: glow.isFarEdge ? 1 : 0
                    color: Theme.distracted
                }

                GradientStop {
                    position: glow.isFarEdge ? 0 : 1
                    color: Qt.alpha(Theme.distracted, 0)
                }
            }
        }
    }

    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.width: root.frameWidth
        border.color: Theme.distracted
    }

    Rectangle {
        id: card

        x: Math.round((root.width - width) / 2)
        y: Math.round((root.height - height) / 2)
        width: Math.min(480, root.width - 2 * Theme.gap8)
        height: Math.round(column.implicitHeight) + 2 * Theme.gap8
        radius: root.cardRadius
        color: Theme.surface
        border.width: 1
        border.color: Theme.outline

        ColumnLayout {
            id: column

            x: Theme.gap8
            y: Theme.gap8 + (root.appeared ? 0 : Theme.gap3)
            width: card.width - 2 * Theme.gap8
            spacing: Theme.gap2
            opacity: root.appeared ? 1 : 0

            Behavior on y {
                NumberAnimation {
                    duration: Theme.motion
                    easing.type: Easing.OutCubic
                }
            }

            Behavior on opacity {
                NumberAnimation {
                    duration: Theme.motion
                }
            }

            Item {
                Layout.alignment: Qt.AlignHCenter
                Layout.bottomMargin: Theme.gap3
                implicitWidth: 72
                implicitHeight: 72

                Rectangle {
                    id: wave

                    /// From 0, where nothing is seen of it, to steps.
                    property int step: 0
                    readonly property int steps: 12
                    readonly property real progress: wave.step / wave.steps

                    anchors.centerIn: parent
                    width: 72 + Math.round(32 * wave.progress)
                    height: width
                    radius: width / 2
                    visible: wave.step > 0
                    color: "transparent"
                    border.width: 2
                    border.color: Theme.distracted
                    opacity: 1 - wave.progress

                    // Few steps and long rests: nothing else of the screen moves, and nobody looks for long.
                    Timer {
                        interval: wave.step === 0 ? 1200 : 50
                        running: root.pulse
                        repeat: true
                        onTriggered: wave.step = (wave.step + 1) % wave.steps
                        onRunningChanged: wave.step = 0
                    }
                }

                Rectangle {
                    anchors.centerIn: parent
                    width: 72
                    height: 72
                    radius: 36
                    color: Theme.distractedSurface

                    Symbol {
                        anchors.centerIn: parent
                        name: "exclamationmark.shield.fill"
                        color: Theme.distracted
                        size: 40
                    }
                }
            }

            ThemedText {
                Layout.fillWidth: true
                text: qsTrId("alert_stay_focused")
                font.pixelSize: 28
                font.weight: Font.DemiBold
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
            }

            ThemedText {
                Layout.fillWidth: true
                text: qsTrId("alert_non_legitimate_site")
                color: Theme.textMuted
                font.pixelSize: Theme.bodyLarge
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
            }

            Rectangle {
                Layout.alignment: Qt.AlignHCenter
                Layout.topMargin: Theme.gap3
                Layout.maximumWidth: column.width
                implicitWidth: Math.ceil(domain.implicitWidth) + 2 * Theme.gap4
                implicitHeight: Theme.controlHeight
                radius: height / 2
                color: Theme.surfaceRaised

                ThemedText {
                    id: domain

                    objectName: "alertDomain"
                    anchors.fill: parent
                    anchors.leftMargin: Theme.gap4
                    anchors.rightMargin: Theme.gap4
                    text: root.model.domain
                    font.pixelSize: Theme.bodyLarge
                    font.weight: Font.DemiBold
                    elide: Text.ElideMiddle
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                }
            }
        }
    }
}
