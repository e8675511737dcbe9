import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// One thing that starts with the session: its name, its program, a way to find its file, and
// the switch (a spinner while it is being switched).
Item {
    id: row

    required property string label
    required property string program
    required property bool itemEnabled
    property bool busy: false
    signal revealRequested()
    signal toggleRequested()

    implicitHeight: content.implicitHeight + 12

    RowLayout {
        id: content
        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        spacing: 8

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 1
            Label {
                objectName: "itemLabel"
                Layout.fillWidth: true
                text: row.label
                font.pixelSize: Theme.callout.pixelSize
                font.weight: Font.Medium
                color: Theme.primary
                elide: Text.ElideMiddle
            }
            Label {
                objectName: "itemProgram"
                Layout.fillWidth: true
                text: row.program
                font.pixelSize: Theme.caption1.pixelSize
                font.family: Theme.monospaceFamily
                color: Theme.secondary
                elide: Text.ElideMiddle
            }
        }
        ToolButton {
            objectName: "reveal"
            flat: true
            implicitWidth: 28
            implicitHeight: 28
            contentItem: SymbolIcon { implicitWidth: 14; implicitHeight: 14; symbol: "folder"; color: Theme.secondary }
            onClicked: row.revealRequested()
            ToolTip.visible: hovered
            ToolTip.text: DesktopWords.revealInFileManager
            Accessible.name: DesktopWords.revealInFileManager
        }
        Item {
            Layout.preferredWidth: toggle.implicitWidth
            Layout.preferredHeight: toggle.implicitHeight
            Switch {
                id: toggle
                objectName: "toggle"
                anchors.centerIn: parent
                visible: !row.busy
                checked: row.itemEnabled
                Accessible.name: row.label
                // The model decides: the switch shows the state the list is re-read with.
                onToggled: {
                    checked = Qt.binding(() => row.itemEnabled)
                    row.toggleRequested()
                }
            }
            BusyIndicator {
                objectName: "switching"
                anchors.centerIn: parent
                visible: row.busy
                running: visible
                implicitWidth: 18
                implicitHeight: 18
            }
        }
    }
}
