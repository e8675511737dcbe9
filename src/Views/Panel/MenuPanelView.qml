import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The panel that drops from the status item: how full the disk is, what can be reclaimed, what
// is included, the clean, and the way to every tool.
Window {
    id: panel
    required property AppModel model
    readonly property bool developerMode: model.settings.developerMode
    property real rescanSpin: 0

    title: "Mopwell"
    width: 380
    height: content.implicitHeight
    color: Theme.windowBackground

    onVisibleChanged: if (visible) model.start()

    function open(id) {
        Shell.openWindow(id)
    }

    MenuPanelModel { id: panelModel; model: panel.model }

    ColumnLayout {
        id: content
        width: panel.width
        spacing: 0

        // Header: title, freshness, rescan, and the disk ring.
        ColumnLayout {
            Layout.fillWidth: true
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.topMargin: 14
            Layout.bottomMargin: 14
            spacing: 12
            RowLayout {
                spacing: 2
                SymbolIcon { implicitWidth: 14; implicitHeight: 14; symbol: "sparkles"; color: Theme.primary }
                Text { leftPadding: 4; text: "Mopwell"; font: Theme.headline; color: Theme.primary }
                Item { Layout.fillWidth: true }
                Text { objectName: "freshness"; text: panelModel.freshnessText; font: Theme.caption1; color: Theme.secondary }
                ToolButton {
                    objectName: "rescan"
                    flat: true
                    Layout.preferredWidth: 26
                    Layout.preferredHeight: 26
                    contentItem: SymbolIcon {
                        implicitWidth: 14
                        implicitHeight: 14
                        symbol: "arrow.clockwise"
                        color: Theme.primary
                        rotation: panel.rescanSpin
                        Behavior on rotation { NumberAnimation { duration: 600; easing.type: Easing.InOutQuad } }
                    }
                    onClicked: {
                        panel.rescanSpin += 360
                        panel.model.rescan()
                    }
                    ToolTip.visible: hovered
                    ToolTip.text: qsTr("Rescan sizes")
                }
            }
            DiskUsageRingView { objectName: "diskRing"; panelModel: panelModel }
        }
        Divider { Layout.fillWidth: true }

        // Simple mode: a few plain groups, no scrolling.
        Column {
            objectName: "groups"
            visible: !panel.developerMode
            Layout.fillWidth: true
            topPadding: 4
            bottomPadding: 4
            Repeater {
                model: panelModel.groups
                // Each row is exactly a row's height: the divider lies inside it, at the bottom.
                Item {
                    id: groupEntry
                    required property var model
                    required property int index
                    width: panel.width
                    height: Theme.rowHeight
                    SimpleGroupRow {
                        anchors.fill: parent
                        model: panel.model
                        groupId: groupEntry.model.groupId
                        title: groupEntry.model.title
                        symbol: groupEntry.model.symbol
                        sizeText: groupEntry.model.sizeText
                        isScanning: groupEntry.model.isScanning
                        included: groupEntry.model.included
                    }
                    Divider {
                        anchors.bottom: parent.bottom
                        width: parent.width - inset
                        inset: 48
                        visible: groupEntry.index < panelModel.groups.count - 1
                    }
                }
            }
        }

        // Developer mode: every target by section, with headers that stay at the top.
        ListView {
            id: targetList
            objectName: "targets"
            visible: panel.developerMode
            Layout.fillWidth: true
            Layout.preferredHeight: visible ? panelModel.listHeight : 0
            clip: true
            boundsBehavior: contentHeight > height ? Flickable.DragAndOvershootBounds : Flickable.StopAtBounds
            model: panelModel.targets
            section.property: "section"
            section.labelPositioning: ViewSection.InlineLabels | ViewSection.CurrentLabelAtStart
            section.delegate: SectionHeader {}
            // Each row is exactly a row's height, as the list's height counts it: the divider lies
            // inside the row, at the bottom.
            delegate: Item {
                id: targetEntry
                required property int index
                required property var model
                width: targetList.width
                height: Theme.rowHeight
                TargetRowView {
                    anchors.fill: parent
                    model: panel.model
                    targetId: targetEntry.model.targetId
                    name: targetEntry.model.name
                    symbol: targetEntry.model.symbol
                    detail: targetEntry.model.detail
                    sizeText: targetEntry.model.sizeText
                    sizeBytes: targetEntry.model.sizeBytes
                    isScanning: targetEntry.model.isScanning
                    isCleaning: targetEntry.model.isCleaning
                    included: targetEntry.model.included
                    whySafe: targetEntry.model.whySafe
                    displayPaths: targetEntry.model.displayPaths
                    onClean: {
                        panel.model.requestCleanOf(targetId)
                        panel.open("confirm")
                    }
                }
                Divider {
                    anchors.bottom: parent.bottom
                    width: parent.width - inset
                    inset: 48
                    visible: targetEntry.ListView.nextSection === targetEntry.ListView.section
                             && targetEntry.index < targetList.count - 1
                }
            }
        }
        Divider { Layout.fillWidth: true }

        PanelFooter {
            Layout.fillWidth: true
            model: panel.model
            panelModel: panelModel
            developerMode: panel.developerMode
            onOpenWindow: id => panel.open(id)
        }
    }
}
