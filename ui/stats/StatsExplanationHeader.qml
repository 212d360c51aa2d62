pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What is explained, and how it comes about.
ColumnLayout {
    id: root

    required property StatsExplanation explanation
    /// All of it in words.
    readonly property string words: root.withFact(root.withFact(title.text, scope.text), figure.text)

    function withFact(text: string, fact: string): string {
        return fact.length > 0 ? text + ", " + fact : text;
    }

    spacing: Theme.gap3

    RowLayout {
        spacing: Theme.gap3

        IconButton {
            objectName: "explanationBack"
            visible: root.explanation?.canGoBack ?? false
            symbol: "chevron.left"
            text: qsTrId("explain_back_button")
            onClicked: root.explanation.back()
        }

        ColumnLayout {
            spacing: 2

            ThemedText {
                id: title

                objectName: "explanationTitle"
                Layout.fillWidth: true
                text: root.explanation?.title ?? ""
                font.pixelSize: Theme.title
                font.weight: Font.DemiBold
                elide: Text.ElideRight
                Accessible.role: Accessible.Heading
            }

            ThemedText {
                id: scope

                Layout.fillWidth: true
                visible: text.length > 0
                text: root.explanation?.scopeText ?? ""
                color: Theme.textMuted
                elide: Text.ElideRight
            }
        }

        ThemedText {
            id: figure

            objectName: "explanationFigure"
            visible: text.length > 0
            text: root.explanation?.figureText ?? ""
            color: Theme.accentText
            font.pixelSize: Theme.headline
            font.weight: Font.DemiBold
        }

        IconButton {
            objectName: "explanationClose"
            symbol: "xmark"
            text: qsTrId("sheet_close_button")
            onClicked: root.explanation.close()
        }
    }

    ThemedText {
        Layout.fillWidth: true
        visible: text.length > 0
        text: root.explanation?.ruleText ?? ""
        color: Theme.textMuted
        wrapMode: Text.WordWrap
        lineHeight: 1.2
    }
}
