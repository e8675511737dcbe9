import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// One chip per kind of build folder found, with its count; chosen chips narrow the list to
// their kinds, and none chosen shows everything.
Item {
    id: chips

    required property ProjectCleanupModel cleanup

    implicitHeight: 36

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        spacing: 8

        Flickable {
            Layout.fillWidth: true
            Layout.preferredHeight: chipRow.implicitHeight
            contentWidth: chipRow.implicitWidth
            flickableDirection: Flickable.HorizontalFlick
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            Row {
                id: chipRow
                spacing: 6
                Repeater {
                    model: chips.cleanup.kindFacets
                    delegate: AbstractButton {
                        id: chip
                        required property var modelData
                        objectName: "chip_" + modelData.id
                        readonly property bool active: modelData.active
                        implicitWidth: chipText.implicitWidth + 20
                        implicitHeight: 22
                        checkable: true
                        checked: active
                        Accessible.name: modelData.label
                        background: Rectangle {
                            radius: height / 2
                            color: chip.active ? Theme.accent
                                               : Qt.rgba(Theme.secondary.r, Theme.secondary.g, Theme.secondary.b, 0.15)
                        }
                        contentItem: Text {
                            id: chipText
                            text: chip.modelData.label + "  " + chip.modelData.count
                            font: Qt.font({ pixelSize: Theme.callout.pixelSize, weight: Font.Medium })
                            color: chip.active ? Theme.accentText : Theme.primary
                            horizontalAlignment: Text.AlignHCenter
                            verticalAlignment: Text.AlignVCenter
                        }
                        onClicked: chips.cleanup.toggleKind(modelData.id)
                    }
                }
            }
        }
        ToolButton {
            objectName: "clearKinds"
            visible: chips.cleanup.hasActiveKinds
            flat: true
            contentItem: Text { text: qsTr("Clear"); font: Theme.callout; color: Theme.accent }
            onClicked: chips.cleanup.clearKinds()
        }
    }
}
