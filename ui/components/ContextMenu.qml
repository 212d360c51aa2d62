pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A menu of what can be done to one thing. Arrow keys, Enter and Escape as everywhere.
T.Menu {
    id: root

    /// What was chosen last.
    property string choice: ""

    /// The menu has closed; the choice is empty where it was left without one. The keyboard can go where it should.
    signal finished(string choice)

    function widest(): real {
        let width = 0;
        for (let i = 0; i < root.count; ++i)
            width = Math.max(width, root.itemAt(i)?.implicitWidth ?? 0);
        return width;
    }

    implicitWidth: Math.max(280, root.widest() + leftPadding + rightPadding)
    implicitHeight: contentHeight + topPadding + bottomPadding
    padding: Theme.gap1
    margins: Theme.gap2
    modal: true
    dim: false

    onAboutToShow: root.choice = ""
    onClosed: root.finished(root.choice)

    contentItem: ListView {
        implicitHeight: contentHeight
        model: root.contentModel
        currentIndex: root.currentIndex
        interactive: false
        highlightMoveDuration: 0
    }

    background: Rectangle {
        radius: Theme.radius
        color: Theme.surfaceHover
        border.width: 1
        border.color: Theme.outline
    }
}
