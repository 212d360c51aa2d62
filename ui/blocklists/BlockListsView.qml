pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The four lists: applications, and sites by browser. While nothing is listed, suggestions as well.
Page {
    id: root

    required property BlockListsScreen model
    property string pane: "applications"
    readonly property list<string> panes: root.model.offersSuggestions ? ["suggestions", "applications", "sites"] : ["applications", "sites"]

    function paneNames(): list<string> {
        const names = [qsTrId("applications_tab"), qsTrId("sites_tab")];
        return root.model.offersSuggestions ? [qsTrId("suggestions_tab"), ...names] : names;
    }

    function paneIntroduction(): string {
        if (root.pane === "suggestions")
            return qsTrId("suggestions_subtitle");
        return root.pane === "sites" ? qsTrId("sites_subtitle") : qsTrId("block_lists_subtitle");
    }

    function focusPane(): void {
        if (root.pane === "suggestions")
            suggestions.focusStart();
        else if (root.pane === "sites")
            sites.focusStart();
        else
            applications.focusStart();
    }

    function chooseFile(saving: bool): void {
        if (!files.item)
            files.setSource("ListFileChooser.qml", {
                screen: root.model
            });
        (files.item as ListFileChooser).choose(saving);
    }

    heading: qsTrId("block_lists_title")
    introduction: root.paneIntroduction()

    onEntered: {
        root.model.refresh();
        root.model.browserHealth?.refreshBanner();
        if (root.model.offersSuggestions)
            root.pane = "suggestions";
        root.focusPane();
    }

    Keys.onPressed: event => {
        event.accepted = event.matches(StandardKey.Undo);
        if (event.accepted)
            root.model.undo();
    }

    headingContent: [
        PushButton {
            objectName: "importButton"
            symbol: "square.and.arrow.down"
            text: qsTrId("lists_import_button")
            onClicked: root.chooseFile(false)
        },
        PushButton {
            objectName: "exportButton"
            symbol: "square.and.arrow.up"
            text: qsTrId("lists_export_button")
            onClicked: root.chooseFile(true)
        }
    ]

    Connections {
        function onOffersSuggestionsChanged(): void {
            if (root.model.offersSuggestions || root.pane !== "suggestions")
                return;
            root.pane = "applications";
            root.focusPane();
        }

        function onImportChanged(): void {
            importQuestion.active = root.model.importState !== "none";
        }

        target: root.model
    }

    Banner {
        objectName: "browserAccessBanner"
        Layout.fillWidth: true
        visible: root.model.browserHealth !== null && root.model.browserHealth.hasBanner
        symbol: "globe"
        text: root.model.browserHealth?.bannerText ?? ""
        actionText: root.model.browserHealth?.bannerActionText ?? ""
        isDismissible: true
        onActionChosen: {
            if (root.model.browserHealth.bannerLeadsToHealth)
                (root.Window.window as Main)?.showPage(Main.PageNumber.Health);
            else
                root.model.browserHealth.bannerAct();
        }
        onDismissed: root.model.browserHealth.declineBanner()
    }

    RowLayout {
        spacing: Theme.gap4

        SegmentedChoice {
            objectName: "listPanes"
            name: qsTrId("block_lists_title")
            values: root.panes
            labels: root.paneNames()
            value: root.pane
            onChosen: value => root.pane = value
        }

        Item {
            Layout.fillWidth: true
        }

        CountChip {
            visible: root.pane === "applications"
            symbol: "checkmark.shield"
            color: Theme.legitimate
            text: qsTrId("whitelisted_count", root.model.applications.whitelistedCount)
        }

        CountChip {
            visible: root.pane === "applications"
            symbol: "hand.raised"
            color: Theme.distracted
            text: qsTrId("blocked_count", root.model.applications.blockedCount)
        }
    }

    SuggestionsPane {
        id: suggestions

        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: root.pane === "suggestions"
        screen: root.model
    }

    ApplicationsPane {
        id: applications

        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: root.pane === "applications"
        model: root.model.applications
    }

    SitesPane {
        id: sites

        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: root.pane === "sites"
        screen: root.model
    }

    NoticeBar {
        Layout.fillWidth: true
        visible: root.model.notice.length > 0
        screen: root.model
        onActed: root.focusPane()
    }

    Item {
        implicitHeight: 0
    }

    Loader {
        id: files

        visible: false
    }

    Deferred {
        id: importQuestion

        visible: false

        ImportDialog {
            screen: root.model
            onClosed: root.model.dropImport()
        }
    }
}
