pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The browser alert on one screen.
OverlayWindow {
    id: root

    required property BrowserAlertModel model

    title: "Norvin Focus"
    isClickThrough: true
    opacity: view.appeared ? 1 : 0
    card: view.cardPlace
    cardRadius: view.cardRadius
    frameWidth: view.frameWidth

    onVisibleChanged: {
        if (root.visible)
            view.appeared = true;
    }

    // The desktop blends the whole window, which costs less than drawing all of it again and again.
    Behavior on opacity {
        NumberAnimation {
            duration: Theme.motion
        }
    }

    BrowserAlertOverlay {
        id: view

        objectName: "browserAlert"
        anchors.fill: parent
        model: root.model
        isBlended: root.isBlended
    }
}
