import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The one action a window is about: filled with the accent colour, icon beside the label, a
// spinner in place of the label while the action runs.
Button {
    id: button
    property string symbol
    property bool busy: false
    implicitHeight: 32

    background: Rectangle {
        radius: 6
        color: button.enabled ? (button.down ? Qt.darker(Theme.accent, 1.15) : Theme.accent) : Theme.tertiary
    }
    contentItem: Item {
        implicitWidth: label.implicitWidth
        implicitHeight: label.implicitHeight
        RowLayout {
            id: label
            anchors.centerIn: parent
            visible: !button.busy
            spacing: 6
            SymbolIcon { implicitWidth: 14; implicitHeight: 14; symbol: button.symbol; color: "white"; visible: button.symbol.length > 0 }
            Text { text: button.text; font: Qt.font({ pixelSize: Theme.body.pixelSize, weight: Font.DemiBold }); color: "white" }
        }
        BusyIndicator {
            anchors.centerIn: parent
            visible: button.busy
            running: visible
            implicitWidth: 18
            implicitHeight: 18
        }
    }
}
