import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// One target in the developer list: include it, read what it is, see its size, clean it alone.
Item {
    id: row
    required property AppModel model
    required property string targetId
    required property string name
    required property string symbol
    required property string detail
    required property string sizeText
    required property var sizeBytes
    required property bool isScanning
    required property bool isCleaning
    required property bool included
    required property string whySafe
    required property var displayPaths
    signal clean()

    implicitHeight: Theme.rowHeight
    implicitWidth: 380

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        spacing: 10

        CheckBox {
            objectName: "include"
            checked: row.included
            padding: 0
            onToggled: row.model.settings.setEnabled(checked, row.targetId)
            ToolTip.visible: hovered
            ToolTip.text: qsTr("Include in Clean All")
        }
        SymbolIcon {
            Layout.preferredWidth: 22
            Layout.preferredHeight: 17
            symbol: row.symbol
            color: row.included ? Theme.accent : Theme.secondary
        }
        ColumnLayout {
            spacing: 1
            Layout.fillWidth: true
            Layout.minimumWidth: 60
            // Only what is left over: a long detail line is cut, and never pushes the columns after it.
            Layout.preferredWidth: 60
            opacity: row.included ? 1.0 : 0.5
            Text {
                objectName: "name"
                Layout.fillWidth: true
                text: row.name
                elide: Text.ElideRight
                font: Qt.font({ pixelSize: Theme.callout.pixelSize, weight: Font.Medium })
                color: Theme.primary
            }
            Text {
                Layout.fillWidth: true
                text: row.detail
                elide: Text.ElideRight
                font: Theme.caption2
                color: Theme.secondary
            }
        }
        ToolButton {
            id: infoButton
            objectName: "info"
            flat: true
            padding: 2
            contentItem: SymbolIcon { implicitWidth: 12; implicitHeight: 12; symbol: "info.circle"; color: Theme.secondary }
            onClicked: info.visible ? info.close() : info.open()
            ToolTip.visible: hovered
            ToolTip.text: qsTr("What this is and why it's safe to remove")
            TargetInfoPopover {
                id: info
                y: infoButton.height
                title: row.name
                symbol: row.symbol
                whySafe: row.whySafe
                paths: row.displayPaths
            }
        }
        // At least 62 wide, and as wide as the widest size with the spinner beside it, so the
        // sizes line up down the list and nothing moves when a row starts or stops scanning.
        Item {
            readonly property real columnWidth: Math.max(62, sizeLabel.implicitWidth + spinner.width + 4)
            Layout.preferredWidth: columnWidth
            Layout.minimumWidth: columnWidth
            Layout.preferredHeight: sizeLabel.implicitHeight
            SizeText {
                id: sizeLabel
                objectName: "size"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                visible: !row.isScanning || row.sizeBytes >= 1
                text: row.sizeText
                font: Qt.font({ pixelSize: Theme.callout.pixelSize, weight: Font.Medium })
                color: !row.isScanning && row.sizeBytes >= 1 ? Theme.primary : Theme.secondary
                HoverHandler { id: sizeHover }
                ToolTip.visible: sizeHover.hovered && (row.isScanning || row.sizeBytes < 0)
                ToolTip.text: row.isScanning ? qsTr("Scanning…") : qsTr("Rescan to measure this size")
            }
            BusyIndicator {
                id: spinner
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                visible: row.isScanning
                running: visible
                width: 14
                height: 14
            }
        }
        ToolButton {
            objectName: "clean"
            flat: true
            padding: 2
            enabled: !row.isCleaning && !row.model.isCleaningAll
            contentItem: Item {
                implicitWidth: 16
                implicitHeight: 16
                BusyIndicator { anchors.fill: parent; visible: row.isCleaning; running: visible }
                SymbolIcon {
                    anchors.fill: parent
                    visible: !row.isCleaning
                    symbol: "trash"
                    color: parent.parent.enabled ? Theme.primary : Theme.tertiary
                }
            }
            onClicked: row.clean()
            ToolTip.visible: hovered
            ToolTip.text: qsTr("Clean %1").arg(row.name)
        }
    }
}
