import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The "Startup & Background Items" window: what starts by itself for this account, with a
// switch each. Switching off only moves the item's file aside; nothing is ever deleted.
Window {
    id: window

    required property AppModel model
    readonly property alias startupItems: itemsModel

    width: 520
    height: 480
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    color: Theme.windowBackground

    onVisibleChanged: if (visible) itemsModel.refresh()

    StartupItemsModel { id: itemsModel }

    // First in the content, with the window's size: the shell sizes a fixed window by it.
    Item {
        anchors.fill: parent
        implicitWidth: 520
        implicitHeight: 480

        ColumnLayout {
            anchors.fill: parent
            spacing: 0

            ToolHeader {
                Layout.fillWidth: true
                icon: "power"
                title: qsTr("Startup & Background Items")
                subtitle: qsTr("These run automatically in the background. Turn off anything you don't recognize — it's only stopped from launching, never deleted, and you can switch it back on any time.")
            }

            Divider { Layout.fillWidth: true }

            Item {
                Layout.fillWidth: true
                Layout.fillHeight: true

                EmptyState {
                    objectName: "emptyState"
                    anchors.fill: parent
                    visible: itemsModel.count === 0
                    icon: "checkmark.circle"
                    title: qsTr("No background items")
                    message: qsTr("Nothing launches automatically for your account.")
                }
                ListView {
                    id: list
                    objectName: "itemList"
                    anchors.fill: parent
                    visible: itemsModel.count > 0
                    clip: true
                    boundsBehavior: Flickable.StopAtBounds
                    model: itemsModel.items
                    ScrollBar.vertical: ScrollBar {}
                    delegate: StartupItemRow {
                        required property var modelData
                        width: list.width
                        label: modelData.label
                        program: modelData.program
                        itemEnabled: modelData.enabled
                        busy: itemsModel.busyID === modelData.id
                        onRevealRequested: WorkspaceActions.reveal(modelData.id)
                        onToggleRequested: itemsModel.toggle(modelData.id)
                    }
                }
            }

            Divider { Layout.fillWidth: true }

            RowLayout {
                Layout.fillWidth: true
                Layout.margins: 16
                Layout.topMargin: 10
                Layout.bottomMargin: 12
                spacing: 8
                Label {
                    objectName: "elsewhere"
                    Layout.fillWidth: true
                    text: DesktopWords.startupItemsElsewhere
                    font: Theme.caption1
                    color: Theme.secondary
                    wrapMode: Text.WordWrap
                }
                Button {
                    objectName: "openStartupSettings"
                    flat: true
                    text: DesktopWords.openStartupSettings
                    font: Theme.callout
                    palette.buttonText: Theme.accent
                    onClicked: itemsModel.openStartupSettings()
                }
            }
        }
    }
}
