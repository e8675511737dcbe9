import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The panel's foot: what happened last, what can be reclaimed, the clean, and the tools.
ColumnLayout {
    id: footer
    required property AppModel model
    required property MenuPanelModel panelModel
    required property bool developerMode
    signal openWindow(string id)
    spacing: 10

    Item { Layout.preferredHeight: 2 }  // with the spacing, the block's 12-point top padding

    RowLayout {
        objectName: "status"
        visible: footer.model.statusMessage.length > 0
        Layout.leftMargin: 16
        Layout.rightMargin: 16
        spacing: 4
        SymbolIcon { implicitWidth: 11; implicitHeight: 11; symbol: "checkmark.circle"; color: Theme.secondary }
        Text {
            objectName: "statusText"
            Layout.fillWidth: true
            text: footer.model.statusMessage
            elide: Text.ElideMiddle
            font: Theme.caption1
            color: Theme.secondary
        }
    }

    RowLayout {
        Layout.leftMargin: 16
        Layout.rightMargin: 16
        spacing: 6
        SizeText {
            objectName: "reclaimable"
            holdsWidest: false
            text: footer.panelModel.reclaimableText
            font: Qt.font({ pixelSize: Theme.title2.pixelSize, weight: Font.DemiBold })
        }
        Text { text: qsTr("reclaimable"); font: Theme.callout; color: Theme.secondary; Layout.alignment: Qt.AlignBaseline }
    }

    ProminentButton {
        objectName: "cleanUp"
        Layout.fillWidth: true
        Layout.leftMargin: 16
        Layout.rightMargin: 16
        text: qsTr("Clean up")
        symbol: "sparkles"
        busy: footer.model.isCleaningAll
        enabled: footer.panelModel.cleanUpEnabled
        onClicked: {
            footer.model.requestCleanAll()
            footer.openWindow("confirm")
        }
    }

    RowLayout {
        Layout.leftMargin: 16
        Layout.rightMargin: 16
        spacing: 0
        Repeater {
            model: [
                { help: qsTr("Disk Map"), icon: "rectangle.3.group", window: "diskmap", tab: -1 },
                { help: qsTr("Large Files"), icon: "doc.text.magnifyingglass", window: "largefiles", tab: 0 },
                { help: qsTr("Duplicates"), icon: "doc.on.doc", window: "largefiles", tab: 1 },
                { help: qsTr("Uninstall"), icon: "xmark.bin", window: "uninstaller", tab: -1 }
            ]
            ToolButton {
                required property var modelData
                objectName: "tool-" + modelData.icon
                Layout.fillWidth: true
                Layout.minimumHeight: 32
                flat: true
                contentItem: SymbolIcon { implicitWidth: 16; implicitHeight: 16; symbol: modelData.icon; color: Theme.primary }
                onClicked: {
                    if (modelData.tab >= 0)
                        footer.model.largeFilesTab = modelData.tab
                    footer.openWindow(modelData.window)
                }
                ToolTip.visible: hovered
                ToolTip.text: modelData.help
            }
        }
        ToolButton {
            id: moreButton
            objectName: "more"
            Layout.fillWidth: true
            Layout.minimumHeight: 32
            flat: true
            contentItem: SymbolIcon { implicitWidth: 16; implicitHeight: 16; symbol: "ellipsis"; color: Theme.primary }
            onClicked: moreMenu.popup(moreButton, 0, moreButton.height)
            ToolTip.visible: hovered
            ToolTip.text: qsTr("More")
            MoreMenu {
                id: moreMenu
                developerMode: footer.developerMode
                onOpenWindow: id => footer.openWindow(id)
            }
        }
    }

    Divider { Layout.fillWidth: true }

    RowLayout {
        Layout.leftMargin: 16
        Layout.rightMargin: 16
        Layout.bottomMargin: 12
        FooterLink { text: qsTr("Settings"); symbol: "gearshape"; onClicked: footer.openWindow("settings") }
        Item { Layout.fillWidth: true }
        FooterLink { text: qsTr("About"); symbol: "info.circle"; onClicked: footer.openWindow("about") }
        Item { Layout.fillWidth: true }
        FooterLink {
            objectName: "quit"
            text: qsTr("Quit")
            symbol: "power"
            onClicked: Shell.quit()
        }
    }
}
