import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// One plain-language group: include or exclude it, and see what it holds.
Item {
    id: row
    required property AppModel model
    required property string groupId
    required property string title
    required property string symbol
    required property string sizeText
    required property bool isScanning
    required property bool included
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
            onToggled: row.model.setGroupEnabledById(checked, row.groupId)
            ToolTip.visible: hovered
            ToolTip.text: qsTr("Include in clean-up")
            Accessible.name: qsTr("Include %1 in clean-up").arg(row.title)
        }
        SymbolIcon {
            Layout.preferredWidth: 22
            Layout.preferredHeight: 18
            symbol: row.symbol
            color: row.included ? Theme.accent : Theme.secondary
        }
        Text {
            objectName: "title"
            text: row.title
            font: Qt.font({ pixelSize: Theme.callout.pixelSize, weight: Font.Medium })
            color: Theme.primary
            opacity: row.included ? 1.0 : 0.5
        }
        Item { Layout.fillWidth: true; Layout.minimumWidth: 8 }
        BusyIndicator {
            visible: row.isScanning
            running: visible
            Layout.preferredWidth: 16
            Layout.preferredHeight: 16
        }
        SizeText {
            objectName: "size"
            visible: !row.isScanning
            text: row.sizeText
            font: Qt.font({ pixelSize: Theme.callout.pixelSize, weight: Font.Medium })
        }
    }
}
