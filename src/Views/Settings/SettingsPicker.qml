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
    // Wide enough for the longest choice, so none is cut short once chosen.
    implicitWidth: Math.max(120, Math.max(0, ...options.map(option => metrics.advanceWidth(option.label)))
                                 + leftPadding + rightPadding + 12)
    Accessible.name: displayText
    Component.onCompleted: syncIndex()
    FontMetrics { id: metrics; font: picker.font }

    onActivated: index => {
        picked(options[index].value)
        syncIndex()
    }
}
