import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// What a target is, why removing it is safe, and where it lives.
Popup {
    id: popover
    property string title
    property string symbol
    property string whySafe
    property var paths: []
    width: 300
    padding: 14
    margins: 8  // stays inside the panel, whichever row it belongs to
    background: Rectangle {
        radius: Theme.cornerRadius
        color: Theme.windowBackground
        border.color: Theme.separator
    }

    contentItem: ColumnLayout {
        spacing: 10
        RowLayout {
            spacing: 6
            SymbolIcon { implicitWidth: 16; implicitHeight: 16; symbol: popover.symbol; color: Theme.primary }
            Text { text: popover.title; font: Theme.headline; color: Theme.primary }
        }
        RowLayout {
            spacing: 6
            SymbolIcon {
                Layout.alignment: Qt.AlignTop
                implicitWidth: 14
                implicitHeight: 14
                symbol: "checkmark.shield.fill"
                color: Theme.green
            }
            Text {
                objectName: "whySafe"
                Layout.fillWidth: true
                text: popover.whySafe
                wrapMode: Text.WordWrap
                font: Theme.callout
                color: Theme.primary
            }
        }
        Divider { visible: popover.paths.length > 0; Layout.fillWidth: true }
        Text {
            visible: popover.paths.length > 0
            text: popover.paths.length === 1 ? qsTr("Location") : qsTr("Locations")
            font: Qt.font({ pixelSize: Theme.caption1.pixelSize, weight: Font.DemiBold })
            color: Theme.secondary
        }
        Repeater {
            model: popover.paths
            // One line each, cut in the middle so both ends of a long path stay readable, and
            // still selectable for copying.
            TextEdit {
                id: pathLine
                required property string modelData
                Layout.fillWidth: true
                text: metrics.elidedText
                readOnly: true
                selectByMouse: true
                font: Qt.font({ family: "monospace", pixelSize: Theme.caption2.pixelSize })
                color: Theme.primary
                TextMetrics {
                    id: metrics
                    font: pathLine.font
                    text: pathLine.modelData
                    elide: Text.ElideMiddle
                    elideWidth: popover.width - 2 * popover.padding
                }
            }
        }
    }
}
