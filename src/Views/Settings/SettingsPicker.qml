import QtQuick
import QtQuick.Controls
import Mopwell

// A choice of one among a few in a pop-up menu: `options` as [{value, label}], `value` the one
// chosen. A choice is reported through picked(); the owner stores it and `value` follows.
ComboBox {
    id: picker

    property var options: []
    property string value
    signal picked(string value)

    function syncIndex() {
        currentIndex = Qt.binding(() => picker.indexOfValue(picker.value))
    }

    model: options
    textRole: "label"
    valueRole: "value"
    font: Theme.callout
    implicitWidth: Math.max(120, implicitContentWidth + leftPadding + rightPadding)
    Accessible.name: displayText
    Component.onCompleted: syncIndex()
    onActivated: index => {
        picked(options[index].value)
        syncIndex()
    }
}
