pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A project in the list: what it is, and how far.
Item {
    id: root

    required property int index
    required property string projectId
    required property string name
    required property string emoji
    required property string colorHex
    required property string description
    required property int taskCount
    required property int doneCount
    required property real progress
    required property int phaseCount
    readonly property bool isCurrent: root.GridView.isCurrentItem && root.GridView.view.activeFocus
    readonly property bool isReached: hover.hovered || root.isCurrent
    readonly property string figures: root.taskCount > 0 ? qsTrId("project_progress", root.taskCount).arg(root.doneCount) : qsTrId("project_no_tasks")

    signal opened(string projectId)
    signal pressed(int row)
    /// The menu is asked for, at this place of the card.
    signal menuAsked(int row, real x, real y)

    Accessible.role: Accessible.ListItem
    Accessible.name: root.name + ", " + root.figures
    Accessible.description: root.description

    Rectangle {
        id: body

        anchors.fill: parent
        anchors.margins: Theme.gap2
        radius: Theme.radiusLarge
        color: root.isReached ? Theme.surfaceRaised : Theme.surface

        HoverHandler {
            id: hover
        }

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.LeftButton | Qt.RightButton
            onPressed: mouse => {
                root.pressed(root.index);
                if (mouse.button === Qt.RightButton)
                    root.menuAsked(root.index, mouse.x + body.x, mouse.y + body.y);
            }
            onClicked: mouse => {
                if (mouse.button === Qt.LeftButton)
                    root.opened(root.projectId);
            }
        }

        ColumnLayout {
            anchors.fill: parent
            anchors.margins: Theme.gap4
            spacing: Theme.gap2

            RowLayout {
                spacing: Theme.gap3

                ProjectEmblem {
                    emoji: root.emoji
                    colorHex: root.colorHex
                }

                ThemedText {
                    Layout.fillWidth: true
                    text: root.name
                    font.pixelSize: Theme.bodyLarge
                    font.weight: Font.DemiBold
                    wrapMode: Text.Wrap
                    maximumLineCount: 2
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }

                // Keeps its place while it is not shown, so that the name stays where it is.
                Item {
                    Layout.alignment: Qt.AlignTop
                    Layout.rightMargin: -Theme.gap2
                    implicitWidth: Theme.controlHeightSmall
                    implicitHeight: Theme.controlHeightSmall

                    IconButton {
                        id: more

                        objectName: "projectMenuButton"
                        anchors.fill: parent
                        visible: root.isReached
                        focusPolicy: Qt.NoFocus
                        symbol: "ellipsis"
                        text: qsTrId("project_more_button").arg(root.name)
                        onClicked: {
                            const place = more.mapToItem(root, 0, more.height);
                            root.menuAsked(root.index, place.x, place.y);
                        }
                    }
                }
            }

            ThemedText {
                Layout.fillWidth: true
                Layout.fillHeight: true
                text: root.description
                color: Theme.textMuted
                wrapMode: Text.Wrap
                elide: Text.ElideRight
                maximumLineCount: 2
                lineHeight: 1.15
                Accessible.ignored: true
            }

            RowLayout {
                spacing: Theme.gap3

                ThemedText {
                    Layout.fillWidth: true
                    text: root.figures
                    color: Theme.textMuted
                    font.pixelSize: Theme.caption
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }

                ThemedText {
                    visible: root.phaseCount > 0
                    text: qsTrId("count_phases", root.phaseCount)
                    color: Theme.textFaint
                    font.pixelSize: Theme.caption
                }
            }

            ProgressLine {
                Layout.fillWidth: true
                progress: root.progress
                fill: root.colorHex.length > 0 ? root.colorHex : Theme.accentBright
            }
        }

        FocusRing {
            shown: root.isCurrent
            distance: 1
            innerRadius: Theme.radiusLarge
        }
    }
}
