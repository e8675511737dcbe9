import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The focused folder's entries as a list beside the map, each with its share of the folder; the
// selected row is kept in view.
Rectangle {
    id: side

    required property DiskMapModel map
    property string colorMode: "type"
    property bool reduceMotion: false
    readonly property alias list: list

    signal menuRequested(int index, Item row, real x, real y)

    color: Theme.controlBackground

    function revealSelection() {
        const index = map.selectedIndex
        if (index < 0)
            return
        if (reduceMotion) {
            list.positionViewAtIndex(index, ListView.Center)
            return
        }
        const from = list.contentY
        list.positionViewAtIndex(index, ListView.Center)
        const to = list.contentY
        scroll.stop()
        list.contentY = from
        scroll.to = to
        scroll.start()
    }

    Connections {
        target: side.map
        function onSelectionChanged() { side.revealSelection() }
    }

    ListView {
        id: list
        objectName: "sideList"
        anchors.fill: parent
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {}
        model: DiskNodeListModel {
            model: side.map
            colorMode: side.colorMode
        }
        delegate: DiskMapListRow {
            width: ListView.view.width
            selected: index === side.map.selectedIndex
            onSelectRequested: side.map.select(index)
            onZoomRequested: side.map.zoomInto(index)
            onMenuRequested: (x, y) => side.menuRequested(index, this, x, y)
        }
        NumberAnimation on contentY {
            id: scroll
            running: false
            duration: 200
            easing.type: Easing.OutCubic
        }
    }
}
