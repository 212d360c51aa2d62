pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Shapes
import NorvinFocus.Ui

/// How a whole is made up: a ring of slices, and beside it what each of them is. A colour stays with its name.
ChartArea {
    id: root

    property int diameter: 136
    property int thickness: 22

    isVertical: true
    hasBubble: false
    implicitHeight: Math.max(root.diameter, legend.implicitHeight)

    DonutLayout {
        id: layout

        model: root.model
        language: Localization.language
    }

    Item {
        id: ring

        anchors.verticalCenter: parent.verticalCenter
        width: root.diameter
        height: root.diameter
        opacity: root.grown

        Repeater {
            model: layout.starts.length

            Shape {
                id: slice

                required property int index

                anchors.fill: parent

                ShapePath {
                    strokeColor: Qt.color(layout.colors[slice.index] ?? "transparent")
                    strokeWidth: root.thickness + (slice.index === root.current ? 6 : 0)
                    fillColor: "transparent"
                    capStyle: ShapePath.FlatCap

                    PathAngleArc {
                        centerX: root.diameter / 2
                        centerY: root.diameter / 2
                        radiusX: (root.diameter - root.thickness) / 2 - 3
                        radiusY: radiusX
                        startAngle: layout.starts[slice.index] ?? 0
                        sweepAngle: (layout.sweeps[slice.index] ?? 0) * root.grown
                    }
                }
            }
        }

        ThemedText {
            anchors.centerIn: parent
            visible: root.current >= 0
            text: layout.shares[root.current] ?? ""
            font.pixelSize: Theme.title
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }

        HoverHandler {
            id: pointer

            cursorShape: Qt.PointingHandCursor
            onPointChanged: root.hovered = pointer.hovered ? ring.sliceAt(pointer.point.position) : -1
            onHoveredChanged: root.hovered = pointer.hovered ? ring.sliceAt(pointer.point.position) : -1
        }

        TapHandler {
            onTapped: event => root.take(ring.sliceAt(event.position))
        }

        function sliceAt(place: point): int {
            return layout.sliceAt(place.x - ring.width / 2, place.y - ring.height / 2);
        }
    }

    ColumnLayout {
        id: legend

        anchors.left: ring.right
        anchors.leftMargin: Theme.gap4
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 0

        RowLayout {
            Layout.leftMargin: Theme.gap2
            Layout.rightMargin: Theme.gap2
            Layout.bottomMargin: Theme.gap1

            ThemedText {
                Layout.fillWidth: true
                text: qsTrId("chart_category")
                color: Theme.textFaint
                font.pixelSize: Theme.caption
                Accessible.ignored: true
            }

            ThemedText {
                Layout.rightMargin: 36 + Theme.gap2
                text: qsTrId("chart_duration")
                color: Theme.textFaint
                font.pixelSize: Theme.caption
                Accessible.ignored: true
            }
        }

        Repeater {
            model: root.model

            Rectangle {
                id: entry

                required property int index
                required property string name
                required property string valueText

                Layout.fillWidth: true
                implicitHeight: Math.max(28, name.implicitHeight + Theme.gap1)
                radius: 6
                color: entry.index === root.current ? Theme.surfaceHover : "transparent"

                RowLayout {
                    anchors.fill: parent
                    anchors.leftMargin: Theme.gap2
                    anchors.rightMargin: Theme.gap2
                    spacing: Theme.gap2

                    Rectangle {
                        implicitWidth: 10
                        implicitHeight: 10
                        radius: 3
                        color: Qt.color(layout.colors[entry.index] ?? "transparent")
                    }

                    ThemedText {
                        id: name

                        Layout.fillWidth: true
                        text: entry.name
                        wrapMode: Text.Wrap
                        Accessible.ignored: true
                    }

                    ThemedText {
                        text: entry.valueText
                        color: Theme.textMuted
                        font.pixelSize: Theme.caption
                        Accessible.ignored: true
                    }

                    ThemedText {
                        Layout.preferredWidth: 36
                        text: layout.shares[entry.index] ?? ""
                        color: Theme.textFaint
                        font.pixelSize: Theme.caption
                        horizontalAlignment: Text.AlignRight
                        Accessible.ignored: true
                    }
                }

                HoverHandler {
                    cursorShape: Qt.PointingHandCursor
                    onHoveredChanged: root.hovered = hovered ? entry.index : -1
                }

                TapHandler {
                    onTapped: root.take(entry.index)
                }
            }
        }
    }
}
