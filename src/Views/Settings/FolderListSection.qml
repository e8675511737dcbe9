import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// A settings section over a list of folders: one row per folder with a way to remove it, a line
// when there are none, the button that adds one and, under it, why the last one was refused.
SettingsSection {
    id: section

    property var paths: []
    property string icon
    property string emptyText
    property string addTitle
    property string error
    signal addRequested()
    signal removeRequested(string path)

    SettingsCaption {
        objectName: "emptyFolders"
        visible: section.paths.length === 0
        text: section.emptyText
    }
    Repeater {
        model: section.paths
        delegate: RowLayout {
            id: folderRow
            required property string modelData
            objectName: "folderRow"
            Layout.fillWidth: true
            spacing: 6
            SymbolIcon {
                implicitWidth: 13
                implicitHeight: 13
                symbol: section.icon
                color: Theme.secondary
            }
            Label {
                objectName: "folderPath"
                Layout.fillWidth: true
                text: folderRow.modelData
                font.pixelSize: Theme.caption1.pixelSize
                font.family: Theme.monospaceFamily
                color: Theme.primary
                elide: Text.ElideMiddle
            }
            ToolButton {
                objectName: "removeFolder"
                flat: true
                implicitWidth: 22
                implicitHeight: 22
                contentItem: SymbolIcon { implicitWidth: 13; implicitHeight: 13; symbol: "minus.circle"; color: Theme.secondary }
                Accessible.name: qsTr("Remove %1").arg(folderRow.modelData)
                ToolTip.visible: hovered
                ToolTip.text: qsTr("Remove")
                onClicked: section.removeRequested(folderRow.modelData)
            }
        }
    }
    Button {
        id: addButton
        objectName: "addFolder"
        text: section.addTitle
        Accessible.name: text
        contentItem: RowLayout {
            spacing: 5
            SymbolIcon { implicitWidth: 10; implicitHeight: 10; symbol: "plus"; color: Theme.primary }
            Text { text: addButton.text; font: Theme.callout; color: Theme.primary }
        }
        onClicked: section.addRequested()
    }
    SettingsCaption {
        objectName: "folderError"
        visible: section.error.length > 0
        error: true
        text: section.error
    }
}
