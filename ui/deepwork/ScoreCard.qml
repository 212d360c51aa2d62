pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The live focus score, with a button that opens its explanation.
Card {
    id: root

    required property LiveSession session
    property bool explained: false

    implicitHeight: column.implicitHeight + 2 * Theme.gap4

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: Theme.gap4
        anchors.leftMargin: Theme.gap5
        anchors.rightMargin: Theme.gap5
        spacing: Theme.gap2

        ThemedText {
            Layout.fillWidth: true
            Layout.rightMargin: explain.width
            text: qsTrId("score_label")
            color: Theme.textMuted
            wrapMode: Text.WordWrap
        }

        RowLayout {
            visible: root.session.scoreHasEnoughData
            spacing: Theme.gap1

            Digits {
                text: Localization.formats.decimal(root.session.score)
                pixelSize: Theme.headline + 4
            }

            ThemedText {
                Layout.alignment: Qt.AlignBottom
                Layout.bottomMargin: 4
                text: qsTrId("score_maximum")
                color: Theme.textFaint
            }
        }

        ThemedText {
            Layout.fillWidth: true
            visible: !root.session.scoreHasEnoughData
            text: qsTrId("score_not_enough_data")
            color: Theme.textMuted
            wrapMode: Text.WordWrap
        }

        Item {
            Layout.fillHeight: true
        }
    }

    IconButton {
        id: explain

        objectName: "explainScore"
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Theme.gap2
        symbol: root.explained ? "chevron.up" : "chevron.down"
        text: root.explained ? qsTrId("score_hide_terms") : qsTrId("score_show_terms")
        onClicked: root.explained = !root.explained
    }
}
