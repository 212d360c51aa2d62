pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// What of this desktop works for the program, and what to do about the rest.
Page {
    id: root

    required property TrackingHealthModel model
    readonly property bool isAllGood: root.model.problemCount === 0
    /// What had the keyboard when the question came.
    property Item asker: null

    heading: qsTrId("health_title")
    introduction: qsTrId("health_subtitle")

    onEntered: {
        root.model.refresh();
        again.forceActiveFocus(Qt.OtherFocusReason);
    }

    Connections {
        target: root.model

        function onQuestionAsked(): void {
            root.asker = root.Window.activeFocusItem;
            question.active = true;
        }
    }

    Deferred {
        id: question

        visible: false

        QuestionDialog {
            visible: true
            title: root.model.questionTitle
            message: root.model.questionMessage
            acceptText: root.model.questionAnswer
            rejectText: qsTrId("browser_restart_cancel_button")
            onAccepted: root.model.confirm()
            onClosed: {
                question.active = false;
                const next = root.asker ? root.asker : again;
                next.forceActiveFocus(Qt.TabFocusReason);
            }
        }
    }

    headingContent: PushButton {
        id: again

        symbol: "arrow.clockwise"
        text: qsTrId("health_check_again")
        onClicked: root.model.refresh()
    }

    Card {
        Layout.fillWidth: true
        implicitHeight: 64
        color: root.isAllGood ? Theme.legitimateSurface : Theme.amberSurface

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.gap5
            anchors.rightMargin: Theme.gap5
            spacing: Theme.gap4

            Symbol {
                name: root.isAllGood ? "checkmark.circle.fill" : "exclamationmark.triangle"
                color: root.isAllGood ? Theme.legitimate : Theme.amber
                size: 24
            }

            ThemedText {
                Layout.fillWidth: true
                text: root.isAllGood ? qsTrId("health_all_good") : qsTrId("health_problems", root.model.problemCount)
                font.pixelSize: Theme.bodyLarge
                font.weight: Font.DemiBold
                wrapMode: Text.WordWrap
            }
        }
    }

    Banner {
        objectName: "healthNotice"
        Layout.fillWidth: true
        visible: root.model.notice.length > 0
        symbol: "globe"
        foreground: Theme.accentText
        color: Theme.accentSurface
        text: root.model.notice
        isDismissible: true
        onDismissed: root.model.dismissNotice()
    }

    ListView {
        id: list

        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.bottomMargin: Theme.gap4
        objectName: "healthList"
        clip: true
        spacing: Theme.gap1
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        model: root.model
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("health_title")

        T.ScrollBar.vertical: ScrollBarThin {}

        delegate: HealthRow {
            required property int index

            width: list.width - Theme.gap3
            hasKeyboard: list.activeFocus
            onActionChosen: action => root.model.act(index, action)
        }
    }
}
