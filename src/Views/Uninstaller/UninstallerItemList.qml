import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// What was found with the app: a spinner while the search runs, then the count, the switch
// between choosing everything and nothing, and one row per item.
Item {
    id: list
    required property UninstallerModel uninstaller

    ColumnLayout {
        objectName: "searching"
        anchors.centerIn: parent
        visible: list.uninstaller.isScanning
        spacing: 8
        BusyIndicator { Layout.alignment: Qt.AlignHCenter; running: parent.visible; implicitWidth: 24; implicitHeight: 24 }
        Label { text: qsTr("Finding leftover files…"); font: Theme.callout; color: Theme.secondary }
    }

    ColumnLayout {
        anchors.fill: parent
        visible: !list.uninstaller.isScanning
        spacing: 0

        RowLayout {
            Layout.fillWidth: true
            Layout.leftMargin: 16
            Layout.rightMargin: 10
            Layout.topMargin: 6
            Layout.bottomMargin: 2
            Label {
                objectName: "foundCount"
                Layout.fillWidth: true
                text: qsTr("%1 found").arg(list.uninstaller.itemCount)
                font.pixelSize: Theme.caption1.pixelSize
                font.weight: Font.DemiBold
                font.capitalization: Font.AllUppercase
                color: Theme.secondary
            }
            LinkButton {
                objectName: "selectAll"
                text: list.uninstaller.allSelected ? qsTr("Deselect All") : qsTr("Select All")
                onClicked: list.uninstaller.toggleSelectAll()
            }
        }

        ListView {
            objectName: "itemList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            model: list.uninstaller.items
            ScrollBar.vertical: ScrollBar {}
            delegate: UninstallerItemRow {
                required property var modelData
                required property int index
                width: ListView.view.width
                item: modelData
                isLast: index === list.uninstaller.itemCount - 1
                onToggled: list.uninstaller.toggleItem(modelData.id)
            }
        }
    }
}
