pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// What the last look for updates found, in words and as a symbol.
QtObject {
    id: root

    required property UpdaterService updater
    readonly property bool isFailure: root.updater.outcome === "failed"
    readonly property bool isUpdate: root.updater.outcome === "available"
    readonly property string text: root.words(root.updater.messageKey, root.updater.messageArgument)
    readonly property string symbol: root.isFailure ? "exclamationmark.triangle" : root.isUpdate ? "arrow.down.circle" : "checkmark"
    readonly property color color: root.isFailure ? Theme.amber : root.isUpdate ? Theme.accentText : Theme.legitimate

    function words(key: string, argument: string): string {
        if (key.length === 0)
            return "";
        return argument.length > 0 ? qsTrId(key).arg(argument) : qsTrId(key);
    }
}
