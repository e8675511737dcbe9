import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// One build folder: its tick, the project it belongs to and its kind, where it is, how big and
// how old it is, and the ways to look at it or never see it again. A folder still being measured
// shows a spinner for its size and can't be ticked yet.
Item {
    id: row

    property string name
    property string kind
    property string displayPath
    property string sizeText
    property string ageText
    property bool measured
    property bool selected
    property bool selectable
    property int indent: 0

    signal toggleRequested()
    signal revealRequested()
    signal pinRequested()
    signal menuRequested(real x, real y)

    implicitHeight: Theme.rowHeight

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onClicked: mouse => row.menuRequested(mouse.x, mouse.y)
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 12 + row.indent
        anchors.rightMargin: 12
        spacing: 10

        CheckBox {
            objectName: "rowBox"
            padding: 0
            checked: row.selected
            enabled: row.selectable
            // The model decides: a click asks, `selected` answers.
            nextCheckState: function () { return checkState }
            onClicked: row.toggleRequested()
            Accessible.name: row.name + ", " + row.kind
        }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.minimumWidth: 0
            spacing: 2
            RowLayout {
                spacing: 6
                Layout.fillWidth: true
                Text {
                    objectName: "rowName"
                    // As wide as the name, narrower only when the row has no more room.
                    Layout.preferredWidth: implicitWidth
                    Layout.minimumWidth: 0
                    text: row.name
                    elide: Text.ElideRight
                    font: Qt.font({ pixelSize: Theme.callout.pixelSize, weight: Font.Medium })
                    color: Theme.primary
                }
                ProjectBadge { objectName: "rowKind"; text: row.kind }
                Item { Layout.fillWidth: true }
            }
            Text {
                objectName: "rowPath"
                Layout.fillWidth: true
                text: row.displayPath
                elide: Text.ElideMiddle
                font.family: Theme.monospaceFamily
                font.pixelSize: Theme.caption2.pixelSize
                color: Theme.secondary
            }
        }
        ColumnLayout {
            spacing: 2
            Layout.minimumWidth: 64
            Item {
                Layout.alignment: Qt.AlignRight
                implicitWidth: sizeLabel.implicitWidth
                implicitHeight: sizeLabel.implicitHeight
                SizeText {
                    id: sizeLabel
                    objectName: "rowSize"
                    anchors.right: parent.right
                    visible: row.measured
                    text: row.sizeText
                    font: Qt.font({ pixelSize: Theme.callout.pixelSize, weight: Font.Medium })
                }
                BusyIndicator {
                    objectName: "rowMeasuring"
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    visible: !row.measured
                    running: visible
                    width: 14
                    height: 14
                    padding: 0
                }
            }
            Text {
                objectName: "rowAge"
                Layout.alignment: Qt.AlignRight
                text: row.ageText
                font: Theme.caption1
                color: Theme.secondary
            }
        }
        ProjectIconButton {
            objectName: "revealButton"
            symbol: "folder"
            help: DesktopWords.revealInFileManager
            onClicked: row.revealRequested()
        }
        ProjectIconButton {
            objectName: "pinButton"
            symbol: "pin.slash"
            help: qsTr("Never suggest this folder")
            onClicked: row.pinRequested()
        }
    }
}
