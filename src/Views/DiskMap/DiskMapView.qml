import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts
import Mopwell

// The "Disk Map" window: a start screen to pick a place, then the treemap of the focused folder
// with the list of its entries, a legend, the way back up and a bar describing what the pointer
// is on. The view keeps only what is about looking (hover, colouring, a question being asked);
// the tree, the navigation and the selection belong to the model.
Window {
    id: window

    required property AppModel model
    readonly property alias diskMap: diskMap
    readonly property alias nodeMenu: nodeMenu
    readonly property alias folderDialog: folderDialog
    property string colorMode: "type"
    // The node waiting for the user's word before it goes to the Trash, or null.
    property var pendingTrash: null
    readonly property bool hasScanned: diskMap.isScanning || diskMap.hasRoot
    readonly property var places: diskMap.presets.concat(volumes)
    property var volumes: []

    minimumWidth: 760
    minimumHeight: 480
    width: 760
    height: 560
    color: Theme.windowBackground

    function requestTrash(node) {
        if (node && node.id !== undefined && diskMap.canTrashNode(node.id))
            pendingTrash = node
    }

    function showMenu(index, item, x, y) {
        nodeMenu.node = diskMap.childNode(index)
        nodeMenu.nodeIndex = index
        nodeMenu.popup(item, x, y)
    }

    // Each time it appears: the model may have been set up afresh, volumes come and go.
    onVisibleChanged: if (visible) {
        diskMap.model = window.model
        volumes = diskMap.volumes()
    }

    DiskMapModel {
        id: diskMap
        onFolderPickRequested: start => {
            folderDialog.currentFolder = WorkspaceActions.folderUrl(start)
            folderDialog.open()
        }
    }

    // The arrows, Return and Escape belong to the map: it has the keyboard when the map shows,
    // and the toolbar's controls take none by a click (see DiskMapToolbar).
    onHasScannedChanged: if (hasScanned) area.forceActiveFocus()

    DiskMapStartScreen {
        objectName: "startScreen"
        anchors.fill: parent
        visible: !window.hasScanned
        places: window.places
        onScanRequested: path => diskMap.scan(path)
        onChooseFolderRequested: diskMap.pickFolderAndScan()
    }

    ColumnLayout {
        objectName: "mapScreen"
        anchors.fill: parent
        visible: window.hasScanned
        spacing: 0

        DiskMapToolbar {
            objectName: "toolbar"
            Layout.fillWidth: true
            map: diskMap
            places: window.places
            colorMode: window.colorMode
            onColorModeActivated: mode => window.colorMode = mode
            onChooseFolderRequested: diskMap.pickFolderAndScan()
            onMenuClosed: if (!folderDialog.visible) area.forceActiveFocus()
        }
        Divider { Layout.fillWidth: true }
        DiskMapLegend {
            objectName: "legend"
            Layout.fillWidth: true
            visible: diskMap.childCount > 0
            colorMode: window.colorMode
            categories: diskMap.presentCategories
        }
        Divider { Layout.fillWidth: true; visible: diskMap.childCount > 0 }
        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: 0
            DiskMapArea {
                id: area
                objectName: "mapArea"
                Layout.fillWidth: true
                Layout.fillHeight: true
                map: diskMap
                colorMode: window.colorMode
                reduceTransparency: Accessibility.reduceTransparency
                focus: true
                onMenuRequested: (index, x, y) => window.showMenu(index, area, x, y)
            }
            Rectangle {
                visible: diskMap.childCount > 0
                Layout.fillHeight: true
                Layout.preferredWidth: 1
                color: Theme.separator
            }
            DiskMapSideList {
                objectName: "sidePane"
                visible: diskMap.childCount > 0
                Layout.fillHeight: true
                Layout.preferredWidth: 260
                map: diskMap
                colorMode: window.colorMode
                reduceMotion: Accessibility.reduceMotion
                onMenuRequested: (index, row, x, y) => window.showMenu(index, row, x, y)
            }
        }
        Divider { Layout.fillWidth: true }
        DiskMapDetailBar {
            objectName: "detailBar"
            Layout.fillWidth: true
            node: {
                if (area.hoveredNode !== null)
                    return area.hoveredNode
                return diskMap.selectedId.length > 0 ? diskMap.selectedNode : diskMap.currentNode
            }
            showsActions: diskMap.selectedId.length > 0 && diskMap.selectedNode.isSynthetic !== true
            canTrash: diskMap.canTrashSelection
            onRevealRequested: WorkspaceActions.reveal(diskMap.selectedId)
            onTrashRequested: window.requestTrash(diskMap.selectedNode)
        }
    }

    DiskNodeMenu {
        id: nodeMenu
        onZoomRequested: index => diskMap.zoomInto(index)
        onTrashRequested: node => window.requestTrash(node)
    }

    FolderDialog {
        id: folderDialog
        title: qsTr("Choose a folder to map")
        acceptLabel: qsTr("Scan")
        onAccepted: {
            diskMap.scan(WorkspaceActions.localPath(selectedFolder))
            area.forceActiveFocus()
        }
        onRejected: area.forceActiveFocus()
    }

    onPendingTrashChanged: pendingTrash ? confirmation.open() : confirmation.close()

    AlertDialog {
        id: confirmation
        objectName: "trashConfirmation"
        heading: window.pendingTrash ? qsTr("Move “%1” to the Trash?").arg(window.pendingTrash.name) : ""
        message: window.pendingTrash ? qsTr("Frees %1. You can put it back from the Trash.").arg(window.pendingTrash.sizeText) : ""
        confirmText: qsTr("Move to Trash")
        destructive: true
        onConfirmed: {
            const node = window.pendingTrash
            window.pendingTrash = null
            diskMap.trashNode(node.id)
        }
        onDeclined: window.pendingTrash = null
    }
}
