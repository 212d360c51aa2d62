pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// A panel of the Deep Work screen that is there only in some states. It is loaded from its file, so that the
/// first picture of the window does not wait for types that it does not show.
Loader {
    id: root

    required property bool wanted
    required property string file
    required property DeepWorkScreen screen
    required property LiveSession session

    function update(): void {
        if (root.wanted)
            root.setSource(root.file, {
                screen: root.screen,
                session: root.session
            });
        else
            root.setSource("");
    }

    visible: root.wanted

    Component.onCompleted: root.update()
    onWantedChanged: root.update()
}
