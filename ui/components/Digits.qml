pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Digits in the theme's type. Their places keep their width, so that nothing jumps when the digits change.
DigitRow {
    id: root

    pixelSize: Theme.headline
    weight: Font.DemiBold
    color: Theme.text
    Accessible.role: Accessible.StaticText
    Accessible.name: root.text
}
