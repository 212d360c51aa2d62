pragma ComponentBehavior: Bound

import QtQuick

/// A part of a screen that says whether the keyboard is wanted in it. What shows the part needs to know no more of
/// it than this, so that it can be loaded later.
FocusScope {
    /// Whether the next step is most likely taken here.
    property bool wantsKeyboard: false

    /// The keyboard is given to the part.
    signal keyboardGiven
}
