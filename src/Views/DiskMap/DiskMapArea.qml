import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The treemap itself, with the pointer and keyboard driving the model: a click selects, a
// double click enters a folder, the arrows step through the entries and back up.
FocusScope {
    id: area

    required property DiskMapModel map
    property string colorMode: "type"
    property bool reduceTransparency: false
    // The entry under the pointer (an index into the model's children, or -1) and where the
    // pointer is; both cleared when it leaves.
    property int hoveredIndex: -1
    property point hoverPoint
    property bool hasHoverPoint: false
    readonly property var hoveredNode: {
        map.currentNode  // a new tree means new entries under the same index
        return hoveredIndex >= 0 ? map.childNode(hoveredIndex) : null
    }
    readonly property alias canvas: canvas

    // The entry to offer a menu for, its index, and where the pointer was.
    signal menuRequested(int index, real x, real y)

    function hover(x, y) {
        hoverPoint = Qt.point(x, y)
        hasHoverPoint = true
        hoveredIndex = canvas.indexAt(x, y)
    }

    function unhover() {
        hoveredIndex = -1
        hasHoverPoint = false
    }

    function clickAt(x, y) {
        const index = canvas.indexAt(x, y)
        if (index >= 0)
            map.select(index)
        else
            map.clearSelection()
    }

    function zoomSelection() {
        const index = map.selectedIndex
        if (index >= 0 && map.childNode(index).canZoom)
            map.zoomInto(index)
    }

    Accessible.role: Accessible.Graphic
    Accessible.name: qsTr("Disk usage treemap")
    Accessible.description: {
        const node = map.currentNode
        if (node.id === undefined)
            return qsTr("No folder scanned")
        return qsTr("%1, %2 items, %3. Use the list on the right to browse items.")
                .arg(node.name).arg(map.childCount).arg(node.sizeText)
    }
    activeFocusOnTab: true

    Keys.onPressed: event => {
        switch (event.key) {
        case Qt.Key_Up: map.moveSelection(-1); break
        case Qt.Key_Down: map.moveSelection(1); break
        case Qt.Key_Left:
        case Qt.Key_Escape: map.goUp(); break
        case Qt.Key_Return:
        case Qt.Key_Enter: zoomSelection(); break
        default: return
        }
        event.accepted = true
    }

    // A tree that grows or changes under a still pointer puts another entry beneath it.
    Connections {
        target: area.map
        function onTreeChanged() {
            if (area.hasHoverPoint)
                area.hover(area.hoverPoint.x, area.hoverPoint.y)
        }
    }

    DiskTreemapCanvas {
        id: canvas
        objectName: "treemap"
        anchors.fill: parent
        model: area.map
        colorMode: area.colorMode
        hoveredIndex: area.hoveredIndex
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onPositionChanged: mouse => area.hover(mouse.x, mouse.y)
        onExited: area.unhover()
        onPressed: area.forceActiveFocus()
        onClicked: mouse => {
            if (mouse.button === Qt.RightButton) {
                const index = area.hoveredIndex >= 0 ? area.hoveredIndex : area.map.selectedIndex
                if (index >= 0)
                    area.menuRequested(index, mouse.x, mouse.y)
            } else {
                area.clickAt(mouse.x, mouse.y)
            }
        }
        onDoubleClicked: mouse => {
            if (mouse.button !== Qt.LeftButton)
                return
            const index = canvas.indexAt(mouse.x, mouse.y)
            if (index >= 0 && area.map.childNode(index).canZoom)
                area.map.zoomInto(index)
            else
                area.clickAt(mouse.x, mouse.y)
        }
    }

    ColumnLayout {
        objectName: "mapPlaceholder"
        anchors.centerIn: parent
        visible: !area.map.isScanning && canvas.tileCount === 0
        spacing: 8
        SymbolIcon {
            Layout.alignment: Qt.AlignHCenter
            Layout.preferredWidth: Theme.largeTitle.pixelSize + 8
            Layout.preferredHeight: Theme.largeTitle.pixelSize + 8
            symbol: "externaldrive"
            color: Theme.secondary
            Accessible.ignored: true
        }
        Label {
            text: qsTr("Nothing to show here")
            font: Theme.body
            color: Theme.secondary
            Accessible.ignored: true  // the map's own value says there is nothing
        }
    }

    Rectangle {
        id: tooltip
        objectName: "mapTooltip"
        readonly property point centre: area.hasHoverPoint ? canvas.tooltipCentre(area.hoverPoint) : Qt.point(0, 0)
        visible: area.hoveredNode !== null && area.hasHoverPoint
        width: tipColumn.implicitWidth + 18
        height: tipColumn.implicitHeight + 10
        x: centre.x - width / 2
        y: centre.y - height / 2
        radius: 7
        color: area.reduceTransparency ? Theme.windowBackground
                                       : Qt.rgba(Theme.windowBackground.r, Theme.windowBackground.g,
                                                 Theme.windowBackground.b, 0.88)
        border.color: Theme.separator

        Column {
            id: tipColumn
            anchors.centerIn: parent
            Label {
                objectName: "tooltipName"
                width: Math.min(implicitWidth, 162)
                elide: Text.ElideMiddle
                text: area.hoveredNode ? area.hoveredNode.labelledName : ""
                font: Qt.font({ pixelSize: Theme.caption1.pixelSize, weight: Font.Medium })
                color: Theme.primary
                Accessible.ignored: true  // the pointer's help, not an element of its own
            }
            Label {
                objectName: "tooltipDetail"
                width: Math.min(implicitWidth, 162)
                elide: Text.ElideRight
                text: area.hoveredNode ? area.hoveredNode.summary : ""
                font: Theme.caption2
                color: Theme.secondary
                Accessible.ignored: true
            }
        }
    }
}
