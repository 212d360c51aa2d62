pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Shapes
import NorvinFocus.Ui

/// Bars side by side, each with its value above it, up to the largest of them.
ChartArea {
    id: root

    /// What is counted, and along what.
    required property string valueLabel
    required property string axisLabel
    property color fill: Theme.accentBright

    implicitHeight: 236
    bubbleX: plot.x + (layout.xs[root.current] ?? 0)
    bubbleY: plot.y + (layout.ys[root.current] ?? 0) - 16

    ChartLayout {
        id: layout

        model: root.model
        width: plot.width
        height: plot.height
        inBands: true
        fontPixelSize: Theme.caption
    }

    ThemedText {
        text: root.valueLabel
        color: Theme.textFaint
        font.pixelSize: Theme.caption
        Accessible.ignored: true
    }

    Item {
        id: plot

        anchors.fill: parent
        anchors.topMargin: 40
        anchors.bottomMargin: 40

        Rectangle {
            visible: root.current >= 0
            x: (layout.xs[root.current] ?? 0) - layout.step / 2
            width: layout.step
            height: parent.height
            radius: 4
            color: Theme.surfaceRaised
        }

        Shape {
            anchors.fill: parent
            transform: Scale {
                origin.y: plot.height
                yScale: root.grown
            }

            ShapePath {
                strokeColor: "transparent"
                strokeWidth: -1
                fillGradient: LinearGradient {
                    y2: plot.height

                    GradientStop {
                        position: 0
                        color: root.fill
                    }

                    GradientStop {
                        position: 1
                        color: Qt.darker(root.fill, 2.1)
                    }
                }

                PathSvg {
                    path: layout.bars
                }
            }
        }

        Rectangle {
            y: parent.height
            width: parent.width
            height: 1
            color: Theme.outline
        }

        AxisTexts {
            width: parent.width
            opacity: root.grown
            y: -18
            xs: layout.numberXs
            ys: layout.numberYs
            texts: layout.numberTexts
            color: Theme.textMuted
        }

        AxisTexts {
            y: parent.height + Theme.gap1
            width: parent.width
            xs: layout.labelXs
            texts: layout.labelTexts
        }

        HoverHandler {
            id: pointer

            cursorShape: Qt.PointingHandCursor
            onPointChanged: root.hovered = pointer.hovered ? layout.pointAt(pointer.point.position.x) : -1
            onHoveredChanged: root.hovered = pointer.hovered ? layout.pointAt(pointer.point.position.x) : -1
        }

        TapHandler {
            onTapped: event => root.take(layout.pointAt(event.position.x))
        }
    }

    ThemedText {
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        text: root.axisLabel
        color: Theme.textFaint
        font.pixelSize: Theme.caption
        Accessible.ignored: true
    }
}
