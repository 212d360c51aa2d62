pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// One session: what it was spent on, which can be corrected, and its score, term by term.
FocusScope {
    id: root

    required property SessionDetail session

    signal taskAsked
    signal deletionAsked

    function focusStart(): void {
        taskButton.forceActiveFocus(Qt.TabFocusReason);
    }

    Flickable {
        anchors.fill: parent
        contentHeight: column.implicitHeight
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        T.ScrollBar.vertical: ScrollBarThin {}

        ColumnLayout {
            id: column

            x: 3
            y: 3
            width: parent.width - 6
            spacing: Theme.gap4

            RowLayout {
                spacing: Theme.gap4

                ColumnLayout {
                    spacing: Theme.gap1

                    ThemedText {
                        objectName: "sessionTask"
                        Layout.fillWidth: true
                        text: root.session?.taskTitle ?? ""
                        font.pixelSize: Theme.bodyLarge
                        font.weight: Font.DemiBold
                        wrapMode: Text.Wrap
                        maximumLineCount: 3
                        elide: Text.ElideRight
                    }

                    RowLayout {
                        spacing: Theme.gap3

                        ThemedText {
                            text: root.session?.duration ?? ""
                            color: Theme.textMuted
                        }

                        RowFact {
                            visible: text.length > 0
                            symbol: "folder"
                            text: root.session?.projectName ?? ""
                            symbolColor: (root.session?.projectColor ?? "").length > 0 ? root.session.projectColor : Theme.textFaint
                            maximumTextWidth: 320
                        }
                    }
                }

                PushButton {
                    id: taskButton

                    objectName: "sessionTaskButton"
                    symbol: "pencil"
                    text: qsTrId("session_change_task_button")
                    onClicked: root.taskAsked()
                }
            }

            ThemedText {
                Layout.fillWidth: true
                Layout.topMargin: Theme.gap3
                text: qsTrId("session_score_title")
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }

            ThemedText {
                objectName: "sessionScoreNote"
                Layout.fillWidth: true
                visible: text.length > 0
                text: root.session?.scoreNote ?? ""
                color: Theme.textMuted
                wrapMode: Text.WordWrap
            }

            SessionDetailTerms {
                Layout.fillWidth: true
                visible: total.length > 0
                labels: root.session?.termLabels ?? []
                points: root.session?.termPoints ?? []
                total: root.session?.totalPoints ?? ""
            }

            PushButton {
                objectName: "sessionDeleteButton"
                Layout.topMargin: Theme.gap2
                kind: PushButton.Kind.Quiet
                symbol: "trash"
                symbolColor: Theme.dangerText
                text: qsTrId("session_delete_button")
                onClicked: root.deletionAsked()
            }
        }
    }
}
