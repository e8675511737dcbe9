import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The bar under the map: what the pointer is on, else the selection, else the focused folder,
// and the actions for the selection.
Item {
    id: bar

    // As the disk-map model describes nodes; an empty map for none.
    property var node: ({})
    // The selection's actions show once something real is selected.
    property bool showsActions: false
    property bool canTrash: false

    signal revealRequested()
    signal trashRequested()

    implicitHeight: 44

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        anchors.topMargin: 8
        anchors.bottomMargin: 8
        spacing: 10

        SymbolIcon {
            Layout.preferredWidth: 18
            Layout.preferredHeight: 18
            symbol: bar.node.isDirectory === true ? "folder.fill" : "doc.fill"
            color: Theme.accent
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 1
            // The name, and beside it a note for a dot-folder the file manager doesn't show.
            Item {
                Layout.fillWidth: true
                implicitHeight: nameLabel.implicitHeight
                // Measured apart from the label, whose own implicit width shrinks once it elides.
                TextMetrics { id: nameMetrics; font: nameLabel.font; text: nameLabel.text }
                Label {
                    id: nameLabel
                    objectName: "detailName"
                    width: Math.min(Math.ceil(nameMetrics.advanceWidth) + 1,
                                    parent.width - (hiddenTag.visible ? hiddenTag.width + 6 : 0))
                    text: bar.node.name ?? ""
                    elide: Text.ElideMiddle
                    font: Qt.font({ pixelSize: Theme.callout.pixelSize, weight: Font.Medium })
                    color: Theme.primary
                }
                Label {
                    id: hiddenTag
                    objectName: "detailHidden"
                    x: nameLabel.width + 6
                    anchors.verticalCenter: nameLabel.verticalCenter
                    visible: bar.node.isHidden === true
                    text: qsTr("Hidden")
                    leftPadding: 5
                    rightPadding: 5
                    font: Theme.caption2
                    color: Theme.secondary
                    background: Rectangle { radius: 4; color: Theme.faintFill; border.color: Theme.separator }
                }
            }
            Label {
                objectName: "detailPath"
                Layout.fillWidth: true
                text: bar.node.displayId ?? ""
                elide: Text.ElideMiddle
                font: Qt.font({ family: Theme.monospaceFamily, pixelSize: Theme.caption2.pixelSize })
                color: Theme.secondary
            }
        }
        SizeText {
            objectName: "detailSize"
            text: bar.node.sizeText !== undefined ? bar.node.sizeText : ""
            font: Qt.font({ pixelSize: Theme.title2.pixelSize, weight: Font.DemiBold })
        }
        Button {
            objectName: "revealButton"
            visible: bar.showsActions
            text: DesktopWords.revealInFileManager
            onClicked: bar.revealRequested()
        }
        Button {
            objectName: "trashButton"
            visible: bar.showsActions
            enabled: bar.canTrash
            text: qsTr("Move to Trash")
            onClicked: bar.trashRequested()
        }
    }
}
