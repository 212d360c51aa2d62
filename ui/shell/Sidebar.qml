pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The way between the pages, and the language.
Rectangle {
    id: root

    required property int page
    required property int problemCount
    /// Whether what the first picture does without is wanted.
    required property bool furnished

    signal pageChosen(int number)

    color: Theme.sidebar
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTrId("sidebar_label")

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.gap4
        anchors.topMargin: Theme.gap6
        spacing: Theme.gap1

        RowLayout {
            Layout.leftMargin: Theme.gap2
            Layout.bottomMargin: Theme.gap5
            spacing: Theme.gap3

            Symbol {
                name: "brain"
                color: Theme.accentText
                size: 28
            }

            ThemedText {
                text: "Norvin Focus"
                font.pixelSize: Theme.bodyLarge
                font.weight: Font.DemiBold
            }
        }

        SidebarEntry {
            symbol: "timer"
            text: qsTrId("sidebar_deep_work")
            keys: "Ctrl+1"
            isCurrent: root.page === 0
            onClicked: root.pageChosen(0)
        }

        SidebarEntry {
            symbol: "hand.raised"
            text: qsTrId("sidebar_block_lists")
            keys: "Ctrl+2"
            isCurrent: root.page === 1
            onClicked: root.pageChosen(1)
        }

        SidebarEntry {
            symbol: "waveform.path.ecg"
            text: qsTrId("sidebar_health")
            keys: "Ctrl+3"
            isCurrent: root.page === 2
            badge: root.furnished ? root.problemCount : 0
            badgeName: root.problemCount > 0 ? qsTrId("health_problems", root.problemCount) : ""
            onClicked: root.pageChosen(2)
        }

        Item {
            Layout.fillHeight: true
        }

        Deferred {
            Layout.fillWidth: true
            Layout.leftMargin: Theme.gap1
            active: root.furnished

            Item {
                implicitHeight: language.implicitHeight

                SegmentedChoice {
                    id: language

                    objectName: "languageChoice"
                    name: qsTrId("language_label")
                    values: Localization.languages
                    labels: Localization.languageNames
                    value: Localization.language
                    onChosen: value => Localization.language = value
                }
            }
        }
    }
}
