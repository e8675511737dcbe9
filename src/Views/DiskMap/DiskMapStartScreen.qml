import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// Where the disk map starts: one card per place worth mapping, and one to choose any folder.
Item {
    id: screen

    // [{label, symbol, path}]: the presets, then the mounted volumes.
    property var places: []

    signal scanRequested(string path)
    signal chooseFolderRequested()

    Flickable {
        anchors.fill: parent
        contentHeight: column.implicitHeight + 2 * 28
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {}

        ColumnLayout {
            id: column
            x: 28
            y: 28
            width: screen.width - 56
            spacing: 8

            SymbolIcon {
                Layout.alignment: Qt.AlignHCenter
                Layout.preferredWidth: 40
                Layout.preferredHeight: 40
                symbol: "rectangle.3.group"
                color: Theme.accent
            }
            Label {
                objectName: "startTitle"
                Layout.alignment: Qt.AlignHCenter
                text: qsTr("What do you want to scan?")
                font: Qt.font({ pixelSize: Theme.title1.pixelSize, weight: Font.DemiBold })
                color: Theme.primary
            }
            Label {
                Layout.alignment: Qt.AlignHCenter
                Layout.bottomMargin: 12
                text: qsTr("Pick a location to map what's using its space.")
                font: Theme.body
                color: Theme.secondary
            }
            GridLayout {
                objectName: "startCards"
                Layout.fillWidth: true
                columns: 3
                rowSpacing: 12
                columnSpacing: 12

                Repeater {
                    model: screen.places
                    delegate: DiskMapPlaceCard {
                        required property var modelData
                        objectName: "placeCard_" + modelData.label
                        label: modelData.label
                        symbol: modelData.symbol
                        onClicked: screen.scanRequested(modelData.path)
                    }
                }
                DiskMapPlaceCard {
                    objectName: "chooseFolderCard"
                    label: qsTr("Choose Folder…")
                    symbol: "folder.badge.plus"
                    onClicked: screen.chooseFolderRequested()
                }
            }
        }
    }
}
