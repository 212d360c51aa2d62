pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Text in the theme's type. Plain: what a user or another program wrote must not become markup.
Text {
    color: Theme.text
    font.pixelSize: Theme.body
    textFormat: Text.PlainText
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
