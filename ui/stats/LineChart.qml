pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Shapes
import NorvinFocus.Ui

/// A line through points, with the area below it and a scale at its left.
ChartArea {
    id: root

    /// What is counted, and along what.
    required property string valueLabel
    required property string axisLabel
    property int scale: ChartLayout.Minutes
    /// The value that a dashed line marks; none while its name is empty.
    property real threshold: 0
    property string thresholdName: ""
    property color stroke: Theme.accentBright

    implicitHeight: 236
    bubbleX: plot.x + (layout.xs[root.current] ?? 0)
    bubbleY: plot.y + (layout.ys[root.current] ?? 0) - Theme.gap1

    ChartLayout {
        id: layout

        model: root.model
        width: plot.width
        height: plot.height
        scale: root.scale
        overhang: Theme.gap6
        fontPixelSize: Theme.caption
    }

    ThemedText {
        text: root.valueLabel
        color: Theme.textFaint
        font.pixelSize: Theme.caption
        Accessible.ignored: true
    }

    Repeater {
        model: layout.tickTexts.length

        ThemedText {
            id: tick

            required property int index

            x: layout.tickWidth - width
            y: Math.round(plot.y + (layout.tickYs[tick.index] ?? 0) - height / 2)
            text: layout.tickTexts[tick.index] ?? ""
            color: Theme.textFaint
            font.pixelSize: Theme.caption
            Accessible.ignored: true
        }
    }

    Item {
        id: plot

        x: layout.tickWidth + Theme.gap3
        y: 32
        width: root.width - plot.x - Theme.gap6
        height: root.height - plot.y - 42

        Repeater {
            model: layout.tickYs.length

            Rectangle {
                required property int index

                y: Math.round(layout.tickYs[index] ?? 0)
                width: plot.width
                height: 1
                color: index === 0 ? Theme.outline : Theme.surfaceRaised
            }
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
                        color: Qt.rgba(root.stroke.r, root.stroke.g, root.stroke.b, 0.42)
                    }

                    GradientStop {
                        position: 1
                        color: Qt.rgba(root.stroke.r, root.stroke.g, root.stroke.b, 0.03)
                    }
                }

                PathPolyline {
                    path: layout.area
                }
            }

            ShapePath {
                strokeColor: root.stroke
                strokeWidth: 2
                joinStyle: ShapePath.RoundJoin
                capStyle: ShapePath.RoundCap
                fillColor: "transparent"

                PathPolyline {
                    path: layout.line
                }
            }
        }

        Repeater {
            model: layout.showsMarks ? layout.xs.length : 0

            Rectangle {
                id: mark

                required property int index

                x: (layout.xs[mark.index] ?? 0) - width / 2
                y: (layout.ys[mark.index] ?? 0) - height / 2
                width: 8
                height: 8
                radius: 4
                color: Theme.surface
                border.width: 2
                border.color: root.stroke
                opacity: root.grown
            }
        }

        ReferenceLine {
            y: plot.height * (1 - root.threshold / layout.top)
            width: plot.width
            visible: root.thresholdName.length > 0
            name: root.thresholdName
        }

        Rectangle {
            visible: root.current >= 0
            x: Math.round(layout.xs[root.current] ?? 0)
            width: 1
            height: plot.height
            color: Theme.outline
        }

        Rectangle {
            visible: root.current >= 0
            x: (layout.xs[root.current] ?? 0) - 6
            y: (layout.ys[root.current] ?? 0) - 6
            width: 12
            height: 12
            radius: 6
            color: root.stroke
            border.width: 2
            border.color: Theme.text
        }

        AxisTexts {
            y: plot.height + Theme.gap2
            width: plot.width
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
