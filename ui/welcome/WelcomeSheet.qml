pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The welcome, over the page: one step after another, each of which can be passed over. Escape leaves.
Item {
    id: root

    required property WelcomeScreen model
    readonly property WelcomeScreen screen: root.model
    readonly property int step: root.screen?.step ?? WelcomeScreen.Language
    readonly property bool isLast: root.step === WelcomeScreen.Task

    function fileOf(step: int): string {
        switch (step) {
        case WelcomeScreen.Language:
            return "WelcomeLanguage.qml";
        case WelcomeScreen.Watching:
            return "WelcomeWatching.qml";
        case WelcomeScreen.Pages:
            return "WelcomePages.qml";
        case WelcomeScreen.Lists:
            return "WelcomeLists.qml";
        default:
            return "WelcomeTask.qml";
        }
    }

    function showStep(): void {
        if (!root.screen.isPresented)
            return;
        content.setSource(root.fileOf(root.step), {
            screen: root.screen
        });
        focusing.restart();
    }

    onStepChanged: root.showStep()
    Component.onCompleted: root.showStep()

    Timer {
        id: focusing

        // What is to have the keyboard must be shown first.
        interval: 0
        onTriggered: {
            const step = content.item as WelcomeStep;
            if (step && step.wantsKeyboard)
                step.keyboardGiven();
            else
                nextButton.forceActiveFocus(Qt.TabFocusReason);
        }
    }

    T.Popup {
        id: popup

        objectName: "welcomeSheet"
        parent: T.Overlay.overlay
        anchors.centerIn: parent
        modal: true
        focus: true
        visible: true
        padding: Theme.gap8
        implicitWidth: 720
        implicitHeight: 620
        closePolicy: T.Popup.NoAutoClose

        T.Overlay.modal: Rectangle {
            color: Theme.shade
        }

        FocusScope {
            anchors.fill: parent
            focus: true

            Keys.onEscapePressed: root.screen.leave()
            Accessible.role: Accessible.Dialog
            Accessible.name: qsTrId("welcome_title")

            ColumnLayout {
                anchors.fill: parent
                spacing: Theme.gap5

                RowLayout {
                    spacing: Theme.gap3

                    Repeater {
                        model: root.screen?.stepCount ?? 0

                        Rectangle {
                            required property int index

                            implicitWidth: index === root.step ? 28 : 8
                            implicitHeight: 8
                            radius: 4
                            color: index === root.step ? Theme.accentText : index < root.step ? Theme.accent : Theme.outline
                        }
                    }

                    ThemedText {
                        Layout.fillWidth: true
                        text: qsTrId("welcome_step").arg(root.step + 1).arg(root.screen?.stepCount ?? 0)
                        color: Theme.textFaint
                    }

                    IconButton {
                        objectName: "welcomeLeave"
                        symbol: "xmark"
                        text: qsTrId("welcome_leave_button")
                        onClicked: root.screen.leave()
                    }
                }

                Loader {
                    id: content

                    Layout.fillWidth: true
                    Layout.fillHeight: true
                }

                RowLayout {
                    spacing: Theme.gap3

                    PushButton {
                        objectName: "welcomeBack"
                        // Its text stands under the others.
                        Layout.leftMargin: -leftPadding
                        kind: PushButton.Kind.Quiet
                        implicitHeight: Theme.controlHeightLarge
                        visible: root.step !== WelcomeScreen.Language
                        text: qsTrId("welcome_back_button")
                        onClicked: root.screen.back()
                    }

                    Item {
                        Layout.fillWidth: true
                    }

                    PushButton {
                        objectName: "welcomeSkip"
                        kind: PushButton.Kind.Quiet
                        implicitHeight: Theme.controlHeightLarge
                        text: root.isLast ? qsTrId("welcome_later_button") : qsTrId("welcome_skip_button")
                        onClicked: {
                            if (root.isLast)
                                root.screen.next();
                            else
                                root.screen.skip();
                        }
                    }

                    PushButton {
                        id: nextButton

                        objectName: "welcomeNext"
                        kind: PushButton.Kind.Primary
                        enabled: !root.isLast || (root.screen?.taskTitle ?? "").trim().length > 0
                        text: root.isLast ? qsTrId("welcome_start_button") : qsTrId("welcome_next_button")
                        onClicked: {
                            if (root.isLast)
                                root.screen.start();
                            else
                                root.screen.next();
                        }
                    }
                }
            }
        }

        background: Rectangle {
            radius: Theme.radiusLarge
            color: Theme.surface
            border.width: 1
            border.color: Theme.outline
        }
    }
}
