import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// How much is chosen, and the removal; a spinner stands in for the button while it runs.
RowLayout {
    id: footer
    required property UninstallerModel uninstaller
    spacing: 12

    ColumnLayout {
        Layout.leftMargin: 16
        Layout.topMargin: 12
        Layout.bottomMargin: 12
        spacing: 1
        Label {
            objectName: "selectedCount"
            text: qsTr("%1 selected").arg(footer.uninstaller.selectedCount)
            font: Theme.caption1
            color: Theme.secondary
        }
        Label {
            objectName: "selectedSize"
            text: Formatter.bytes(footer.uninstaller.totalSelectedSize)
            font.pixelSize: Theme.headline.pixelSize
            font.weight: Font.DemiBold
            color: Theme.primary
        }
    }
    Item { Layout.fillWidth: true }
    CleanActionButton {
        objectName: "moveToTrash"
        Layout.rightMargin: 16
        title: qsTr("Move to Trash")
        systemImage: "trash"
        busy: footer.uninstaller.isRemoving
        enabled: footer.uninstaller.selectedCount > 0 && !footer.uninstaller.isRemoving
        onClicked: footer.uninstaller.uninstallSelected()
    }
}
