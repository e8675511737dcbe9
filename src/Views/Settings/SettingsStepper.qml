import QtQuick
import QtQuick.Controls
import Mopwell

// A whole number stepped up and down within its range, worded by `textFromValue`. The owner
// stores each change (valueModified) and gives the stored value back.
SpinBox {
    id: stepper
    editable: false
    stepSize: 1
    font: Theme.callout
    implicitWidth: 124
    Accessible.name: textFromValue(value, locale)
}
