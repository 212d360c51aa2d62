pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The browsers; the arrow keys or a click choose the one whose sites are shown.
ListView {
    id: root

    required property BlockListsScreen screen

    function showChosen(): void {
        root.currentIndex = root.screen.browsers.rowOf(root.screen.browser);
    }

    objectName: "browserList"
    clip: true
    spacing: 2
    activeFocusOnTab: true
    keyNavigationEnabled: false
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    model: root.screen.browsers
    Accessible.role: Accessible.List
    Accessible.name: qsTrId("suggestions_browsers")

    Component.onCompleted: root.showChosen()
    onCountChanged: root.showChosen()

    Keys.onPressed: event => {
        const step = event.key === Qt.Key_Down ? 1 : event.key === Qt.Key_Up ? -1 : 0;
        const row = root.currentIndex + step;
        event.accepted = step !== 0 && row >= 0 && row < root.count;
        if (event.accepted)
            root.screen.browser = root.screen.browsers.bundleIdAt(row);
    }

    Connections {
        function onBrowserChanged(): void {
            root.showChosen();
        }

        target: root.screen
    }

    T.ScrollBar.vertical: ScrollBarThin {}

    delegate: T.AbstractButton {
        id: row

        required property string bundleId
        required property string name
        required property string iconName
        required property bool isInstalled
        required property int siteCount
        readonly property bool isChosen: ListView.isCurrentItem

        width: root.width
        implicitHeight: 44
        text: row.name
        hoverEnabled: true
        focusPolicy: Qt.NoFocus
        Accessible.role: Accessible.ListItem
        Accessible.name: row.siteCount > 0 ? qsTrId("browser_sites_name", row.siteCount).arg(row.name) : row.name
        Accessible.selected: row.isChosen
        onClicked: {
            root.screen.browser = row.bundleId;
            root.forceActiveFocus(Qt.MouseFocusReason);
        }

        contentItem: Item {
            RowLayout {
                anchors.fill: parent
                anchors.leftMargin: Theme.gap3
                anchors.rightMargin: Theme.gap3
                spacing: Theme.gap3
                opacity: row.isInstalled || row.isChosen ? 1 : 0.75

                Image {
                    Layout.preferredWidth: 22
                    Layout.preferredHeight: 22
                    visible: row.iconName.length > 0
                    sourceSize.width: Math.round(22 * Screen.devicePixelRatio)
                    sourceSize.height: Math.round(22 * Screen.devicePixelRatio)
                    source: "image://appicon/" + encodeURIComponent(row.iconName)
                    fillMode: Image.PreserveAspectFit
                }

                Symbol {
                    visible: row.iconName.length === 0
                    name: "globe"
                    color: Theme.textFaint
                    size: 22
                }

                ThemedText {
                    Layout.fillWidth: true
                    text: row.name
                    color: row.isChosen ? Theme.text : Theme.textMuted
                    font.weight: row.isChosen ? Font.DemiBold : Font.Normal
                    wrapMode: Text.Wrap
                    maximumLineCount: 2
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }

                ThemedText {
                    visible: row.siteCount > 0
                    text: row.siteCount
                    color: Theme.textFaint
                    font.pixelSize: Theme.caption
                    Accessible.ignored: true
                }
            }
        }

        background: Rectangle {
            radius: Theme.radius
            color: row.isChosen ? Theme.accentSurface : row.hovered ? Theme.surfaceRaised : "transparent"

            FocusRing {
                shown: row.isChosen && root.activeFocus
                distance: -1
                innerRadius: Theme.radius
            }
        }
    }
}
