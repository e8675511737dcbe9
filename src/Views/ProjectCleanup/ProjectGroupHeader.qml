import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The head of one project's build folders in the grouped list: tick them all at once, the
// project's name and place, how many folders and how much they hold together.
Rectangle {
    id: header

    property string name
    property string displayPath
    property string sizeText
    property int count
    property bool selected
    property bool selectable

    signal toggleRequested()
    signal revealRequested()

    implicitHeight: 34
    color: Theme.faintFill

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 10
        anchors.rightMargin: 12
        spacing: 8

        ProjectIconButton {
            objectName: "groupSelect"
            enabled: header.selectable
            symbol: header.selected ? "checkmark.circle.fill" : "circle"
            symbolColor: header.selected ? Theme.accent : Theme.secondary
            help: qsTr("Select all in this project")
            onClicked: header.toggleRequested()
        }
        SymbolIcon {
            Layout.preferredWidth: 14
            Layout.preferredHeight: 14
            symbol: "folder.fill"
            color: Theme.accent
        }
        Text {
            objectName: "groupName"
            text: header.name
            font: Theme.headline
            color: Theme.primary
        }
        Text {
            objectName: "groupPath"
            Layout.fillWidth: true
            text: header.displayPath
            elide: Text.ElideMiddle
            font.family: Theme.monospaceFamily
            font.pixelSize: Theme.caption2.pixelSize
            color: Theme.secondary
        }
        ProjectBadge { objectName: "groupCount"; text: header.count }
        SizeText {
            objectName: "groupSize"
            text: header.sizeText
            font: Qt.font({ pixelSize: Theme.callout.pixelSize, weight: Font.DemiBold })
        }
        ProjectIconButton {
            objectName: "groupReveal"
            symbol: "folder"
            help: DesktopWords.revealProjectInFileManager
            onClicked: header.revealRequested()
        }
    }
}
