pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// One list of sites. The field adds what is typed or pasted into it, and shows what is listed already while it
/// is typed. In the list Delete removes, and Alt with an arrow towards the other list moves.
Card {
    id: root

    required property BlockListsScreen screen
    /// "whitelisted" or "blocked".
    required property string list
    required property SiteListModel model
    /// What became of the last text; empty when all is well.
    required property string report
    readonly property bool isWhitelist: root.list === "whitelisted"
    readonly property string name: root.isWhitelist ? qsTrId("sites_whitelisted_title") : qsTrId("sites_blocked_title")
    readonly property string typed: field.text.trim()

    function consequence(): string {
        if (!root.isWhitelist)
            return qsTrId("sites_blocked_note");
        return root.model.total > 0 ? qsTrId("sites_whitelist_mode_note") : qsTrId("sites_no_whitelist_note");
    }

    function accept(): void {
        if (root.typed.length === 0)
            return;
        field.text = root.screen.addSites(root.list, field.text);
        root.model.filterText = "";
    }

    function act(row: int, moving: bool): void {
        const pattern = root.model.patternAt(row);
        // The button that was pressed goes with its row.
        sites.forceActiveFocus(Qt.TabFocusReason);
        if (moving)
            root.screen.moveSite(root.list, pattern);
        else
            root.screen.removeSite(root.list, pattern);
        if (root.model.count === 0)
            field.forceActiveFocus(Qt.TabFocusReason);
    }

    Accessible.role: Accessible.Grouping
    Accessible.name: root.name

    Connections {
        function onBrowserChanged(): void {
            field.clear();
            root.model.filterText = "";
        }

        target: root.screen
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.gap4
        spacing: Theme.gap2

        RowLayout {
            spacing: Theme.gap2

            Symbol {
                name: root.isWhitelist ? "checkmark.shield" : "hand.raised"
                color: root.isWhitelist ? Theme.legitimate : Theme.distracted
            }

            ThemedText {
                Layout.fillWidth: true
                text: root.name
                font.pixelSize: Theme.bodyLarge
                font.weight: Font.DemiBold
                wrapMode: Text.WordWrap
                Accessible.role: Accessible.Heading
            }

            ThemedText {
                Layout.preferredWidth: 48
                horizontalAlignment: Text.AlignRight
                text: root.model.total > 0 ? root.model.total : ""
                color: Theme.textMuted
                Accessible.name: qsTrId("sites_count", root.model.total)
            }
        }

        ThemedText {
            Layout.fillWidth: true
            text: root.consequence()
            color: root.isWhitelist && root.model.total > 0 ? Theme.text : Theme.textMuted
            font.pixelSize: Theme.caption
            wrapMode: Text.WordWrap
            lineHeight: 1.15
        }

        RowLayout {
            Layout.topMargin: Theme.gap1
            spacing: Theme.gap2

            EntryField {
                id: field

                objectName: root.list + "Field"
                Layout.fillWidth: true
                symbol: "plus"
                placeholderText: qsTrId("site_entry_placeholder")
                Accessible.name: qsTrId("site_entry_name").arg(root.name)
                onTextEdited: {
                    root.screen.clearReport(root.list);
                    root.model.filterText = /[\s,;]/.test(root.typed) ? "" : root.typed;
                }
                onAccepted: root.accept()

                Keys.onEscapePressed: event => {
                    event.accepted = field.text.length > 0;
                    field.clear();
                    root.model.filterText = "";
                    root.screen.clearReport(root.list);
                }
                Keys.onPressed: event => {
                    // With nothing typed there is nothing of its own to take back.
                    event.accepted = field.length === 0 && event.matches(StandardKey.Undo);
                    if (event.accepted)
                        root.screen.undo();
                }
                Keys.onDownPressed: {
                    if (root.model.count > 0)
                        sites.forceActiveFocus(Qt.TabFocusReason);
                }
            }

            PushButton {
                objectName: root.list + "Add"
                visible: root.typed.length > 0
                leftPadding: Theme.gap3
                text: qsTrId("site_add_button")
                onClicked: {
                    field.forceActiveFocus(Qt.OtherFocusReason);
                    root.accept();
                }
            }
        }

        ThemedText {
            objectName: root.list + "Report"
            Layout.fillWidth: true
            visible: root.report.length > 0
            text: root.report
            color: Theme.amber
            font.pixelSize: Theme.caption
            wrapMode: Text.Wrap
            maximumLineCount: 5
            elide: Text.ElideRight
            Accessible.role: Accessible.AlertMessage
            Accessible.name: root.report
        }

        ListView {
            id: sites

            objectName: root.list + "Sites"
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: sites.count > 0
            clip: true
            activeFocusOnTab: true
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0
            model: root.model
            Accessible.role: Accessible.List
            Accessible.name: root.name

            T.ScrollBar.vertical: ScrollBarThin {}

            onActiveFocusChanged: {
                if (sites.activeFocus && sites.currentIndex < 0)
                    sites.currentIndex = 0;
                else if (!sites.activeFocus && sites.currentItem)
                    sites.currentItem.focus = true;
            }

            Keys.onPressed: event => {
                const towards = root.isWhitelist ? Qt.Key_Right : Qt.Key_Left;
                const moves = event.key === towards && (event.modifiers & Qt.AltModifier);
                event.accepted = sites.currentIndex >= 0 && (event.key === Qt.Key_Delete || moves);
                if (event.accepted)
                    root.act(sites.currentIndex, moves);
            }

            delegate: SiteRow {
                width: sites.width - Theme.gap2
                onRemoved: row => root.act(row, false)
                onMoved: row => root.act(row, true)
                onPressed: row => {
                    sites.currentIndex = row;
                    sites.forceActiveFocus(Qt.TabFocusReason);
                }
            }
        }

        ThemedText {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.topMargin: Theme.gap6
            visible: sites.count === 0
            text: root.typed.length > 0 ? qsTrId("site_entry_hint") : qsTrId("sites_empty")
            color: Theme.textFaint
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
        }
    }
}
