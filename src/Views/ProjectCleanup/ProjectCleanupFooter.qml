import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// What is ticked and how much it holds, among the folders the filter shows, and the button that
// asks to move it to the Trash.
Item {
    id: footer

    required property ProjectCleanupModel cleanup

    signal trashRequested()

    implicitHeight: 60

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 16
        spacing: 12

        ToolButton {
            objectName: "selectAllButton"
            visible: footer.cleanup.hasDirs
            flat: true
            contentItem: Text {
                text: footer.cleanup.allVisibleSelected ? qsTr("Deselect All") : qsTr("Select All")
                font: Theme.callout
                color: Theme.accent
            }
            onClicked: footer.cleanup.selectAll(!footer.cleanup.allVisibleSelected)
        }
        ColumnLayout {
            spacing: 1
            Label {
                objectName: "selectionSummary"
                text: qsTr("%1 of %2 selected · %3 total")
                          .arg(footer.cleanup.visibleSelectedCount)
                          .arg(footer.cleanup.visibleCount)
                          .arg(Formatter.bytes(footer.cleanup.visibleSize))
                font: Theme.caption1
                color: Theme.secondary
            }
            Label {
                objectName: "selectedSize"
                text: Formatter.bytes(footer.cleanup.selectedSize)
                font: Qt.font({ pixelSize: Theme.title3.pixelSize, weight: Font.DemiBold, family: Theme.monospaceFamily })
                color: Theme.primary
            }
        }
        Item { Layout.fillWidth: true }
        CleanActionButton {
            objectName: "trashButton"
            title: qsTr("Move to Trash")
            systemImage: "trash"
            enabled: footer.cleanup.visibleSelectedCount > 0
            onClicked: footer.trashRequested()
        }
    }
}
