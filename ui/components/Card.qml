pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// A surface that holds what belongs together.
Rectangle {
    color: Theme.surface
    radius: Theme.radiusLarge
}
