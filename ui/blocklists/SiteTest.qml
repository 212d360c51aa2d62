pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// Answers how an address would count in the chosen browser, and why.
Card {
    id: root

    required property BlockListsScreen screen
    readonly property string outcome: root.screen.testOutcome

    function word(): string {
        if (root.outcome === "legitimate")
            return qsTrId("verdict_legitimate_word");
        return root.outcome === "blocked" ? qsTrId("verdict_blocked_word") : qsTrId("verdict_distracted_word");
    }

    function symbol(): string {
        if (root.outcome === "legitimate")
            return "checkmark.shield";
        return root.outcome === "blocked" ? "hand.raised" : "exclamationmark.triangle";
    }

    function wordColor(): color {
        if (root.outcome === "legitimate")
            return Theme.legitimate;
        return root.outcome === "blocked" ? Theme.distracted : Theme.amber;
    }

    implicitHeight: content.implicitHeight + 2 * Theme.gap4

    ColumnLayout {
        id: content

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.margins: Theme.gap4
        spacing: Theme.gap3

        EntryField {
            id: field

            objectName: "siteTest"
            Layout.fillWidth: true
            symbol: "magnifyingglass"
            placeholderText: qsTrId("site_test_placeholder").arg(root.screen.browserName)
            text: root.screen.testText
            onTextEdited: root.screen.testText = field.text

            Keys.onEscapePressed: root.screen.testText = ""
        }

        Item {
            Layout.fillWidth: true
            // Two lines, so that nothing moves while one types.
            implicitHeight: Math.max(40, reason.implicitHeight)
            Accessible.role: Accessible.StaticText
            Accessible.name: reason.text

            Row {
                id: verdict

                anchors.verticalCenter: parent.verticalCenter
                spacing: Theme.gap2
                visible: root.outcome.length > 0

                Symbol {
                    name: root.symbol()
                    color: root.wordColor()
                }

                ThemedText {
                    objectName: "testOutcome"
                    height: 20
                    visible: root.outcome !== "unreadable"
                    verticalAlignment: Text.AlignVCenter
                    text: root.word()
                    color: root.wordColor()
                    font.weight: Font.DemiBold
                }
            }

            ThemedText {
                id: reason

                objectName: "testReason"
                x: verdict.visible ? verdict.width + Theme.gap3 : 0
                width: parent.width - x
                anchors.verticalCenter: parent.verticalCenter
                text: root.outcome.length > 0 ? root.screen.testReason : qsTrId("site_test_hint")
                color: root.outcome.length > 0 ? Theme.text : Theme.textFaint
                wrapMode: Text.Wrap
            }
        }
    }
}
