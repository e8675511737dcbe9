import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The finder's top bar: the Scan menu, the progress of a scan with Stop (or the folder scanned),
// and the choice between the two lists.
Item {
    id: bar

    required property FileFinderModel finder
    property int tab: 0
    readonly property alias scanMenu: scanMenu

    signal tabActivated(int index)

    implicitHeight: row.implicitHeight + 16

    RowLayout {
        id: row
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        anchors.topMargin: 8
        anchors.bottomMargin: 8
        spacing: 8

        Button {
            id: scanButton
            objectName: "scanMenuButton"
            flat: true
            text: qsTr("Scan")
            icon.source: "qrc:/Mopwell/icons/folder.svg"
            icon.width: 14
            icon.height: 14
            icon.color: Theme.primary
            onClicked: scanMenu.popup(scanButton, 0, scanButton.height)

            Menu {
                id: scanMenu
                objectName: "scanMenu"
                Repeater {
                    model: bar.finder.presets
                    delegate: MenuItem {
                        required property var modelData
                        objectName: "preset_" + modelData.label
                        text: modelData.label
                        icon.source: "qrc:/Mopwell/icons/" + modelData.symbol + ".svg"
                        icon.color: Theme.primary
                        onTriggered: bar.finder.scan(modelData.path)
                    }
                }
                MenuSeparator {}
                MenuItem {
                    objectName: "chooseFolderItem"
                    text: qsTr("Choose Folder…")
                    onTriggered: bar.finder.pickFolderAndScan()
                }
            }
        }

        RowLayout {
            objectName: "scanProgress"
            visible: bar.finder.isScanning
            spacing: 8
            BusyIndicator {
                running: visible
                Layout.preferredWidth: 16
                Layout.preferredHeight: 16
            }
            ScanningText { finder: bar.finder }
            Button {
                objectName: "stopButton"
                text: qsTr("Stop")
                onClicked: bar.finder.stop()
            }
        }
        Label {
            objectName: "rootPathLabel"
            Layout.fillWidth: true
            visible: !bar.finder.isScanning && bar.finder.hasScanned
            text: bar.finder.displayRootPath
            elide: Text.ElideMiddle
            font: Theme.callout
            color: Theme.secondary
        }
        Item { Layout.fillWidth: true; visible: bar.finder.isScanning || !bar.finder.hasScanned }

        SegmentedControl {
            objectName: "tabPicker"
            visible: bar.finder.isScanning || bar.finder.hasScanned
            options: [{ value: "0", label: qsTr("Largest") }, { value: "1", label: qsTr("Duplicates") }]
            value: String(bar.tab)
            onActivated: value => bar.tabActivated(Number(value))
        }
    }
}
