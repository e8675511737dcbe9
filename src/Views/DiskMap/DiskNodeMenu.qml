import QtQuick
import QtQuick.Controls
import Mopwell

// What can be done with one item of the disk map, from the map or the list.
Menu {
    id: menu

    // A node as the disk-map model describes it, and its place among the focused folder's
    // children.
    property var node: ({})
    property int nodeIndex: -1

    signal zoomRequested(int index)
    signal trashRequested(var node)

    readonly property bool synthetic: node.isSynthetic === true
    readonly property bool canZoom: node.canZoom === true

    objectName: "nodeMenu"

    MenuItem {
        objectName: "menuZoomIn"
        text: qsTr("Zoom In")
        visible: menu.canZoom
        height: visible ? implicitHeight : 0
        onTriggered: menu.zoomRequested(menu.nodeIndex)
    }
    MenuItem {
        objectName: "menuFolded"
        text: qsTr("Smaller items folded together")
        enabled: false
        visible: menu.synthetic && !menu.canZoom
        height: visible ? implicitHeight : 0
    }
    MenuSeparator {
        visible: menu.canZoom && !menu.synthetic
        height: visible ? implicitHeight : 0
    }
    MenuItem {
        objectName: "menuReveal"
        text: DesktopWords.revealInFileManager
        visible: !menu.synthetic
        height: visible ? implicitHeight : 0
        onTriggered: WorkspaceActions.reveal(menu.node.id)
    }
    MenuItem {
        objectName: "menuOpen"
        text: qsTr("Open")
        visible: !menu.synthetic
        height: visible ? implicitHeight : 0
        onTriggered: WorkspaceActions.open(menu.node.id)
    }
    MenuSeparator {
        visible: !menu.synthetic
        height: visible ? implicitHeight : 0
    }
    MenuItem {
        id: trashItem
        objectName: "menuTrash"
        text: qsTr("Move to Trash")
        visible: !menu.synthetic
        height: visible ? implicitHeight : 0
        palette.windowText: Theme.red
        onTriggered: menu.trashRequested(menu.node)
    }
}
