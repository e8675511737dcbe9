import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The finder's bottom bar: how many files are ticked and how much they take, and the button that
// moves them to the Trash, with no question asked: the Trash gives them back.
Item {
    id: footer

    required property FileFinderModel finder

    implicitHeight: row.implicitHeight + 20

    RowLayout {
        id: row
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        anchors.topMargin: 10
        anchors.bottomMargin: 10
        spacing: 8

        ColumnLayout {
            spacing: 1
            Label {
                objectName: "selectedCount"
                text: qsTr("%1 selected").arg(footer.finder.selectedCount)
                font: Theme.caption1
                color: Theme.secondary
            }
            Label {
                objectName: "selectedSize"
                text: Formatter.bytes(footer.finder.selectedSize)
                font.family: Theme.monospaceFamily
                font.pixelSize: Theme.title2.pixelSize
                font.weight: Font.DemiBold
                color: Theme.primary
            }
        }
        Item { Layout.fillWidth: true }
        CleanActionButton {
            objectName: "trashButton"
            title: qsTr("Move to Trash")
            systemImage: "trash"
            enabled: footer.finder.selectedCount > 0 && !footer.finder.isTrashing
            busy: footer.finder.isTrashing
            onClicked: footer.finder.trashSelected()
        }
    }
}
