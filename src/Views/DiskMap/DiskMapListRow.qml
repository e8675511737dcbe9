import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// One entry of the disk map's list: swatch, name and size over a bar of its share.
Item {
    id: row

    required property int index
    required property string name
    required property string sizeText
    required property real fraction
    required property color swatchColor
    required property bool canZoom
    required property string helpText
    required property string accessibleLabel
    required property string accessibleValue
    property bool selected: false

    signal selectRequested()
    signal zoomRequested()
    signal menuRequested(real x, real y)

    implicitHeight: 40
    Accessible.role: Accessible.ListItem
    Accessible.name: accessibleLabel
    Accessible.description: canZoom ? accessibleValue + ". " + DesktopWords.openFolderHint : accessibleValue
    Accessible.selected: selected

    Rectangle {
        anchors.fill: parent
        color: row.selected ? Qt.rgba(Theme.accent.r, Theme.accent.g, Theme.accent.b, 0.18) : "transparent"
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.leftMargin: 10
        anchors.rightMargin: 10
        anchors.topMargin: 6
        anchors.bottomMargin: 6
        spacing: 4

        RowLayout {
            spacing: 6
            Rectangle {
                objectName: "rowSwatch"
                Layout.preferredWidth: 10
                Layout.preferredHeight: 10
                radius: 2
                color: row.swatchColor
            }
            Label {
                objectName: "rowName"
                Layout.fillWidth: true
                text: row.name
                elide: Text.ElideMiddle
                font: Theme.callout
                color: Theme.primary
            }
            SizeText {
                objectName: "rowSize"
                text: row.sizeText
                font: Theme.caption1
                color: Theme.secondary
            }
        }
        Rectangle {
            objectName: "rowBar"
            Layout.fillWidth: true
            Layout.preferredHeight: 3
            radius: 1.5
            color: Theme.faintFill
            Rectangle {
                objectName: "rowBarFill"
                width: parent.width * Math.max(0, Math.min(1, row.fraction))
                height: parent.height
                radius: 1.5
                color: row.swatchColor
            }
        }
    }

    MouseArea {
        id: mouse
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onClicked: event => {
            if (event.button === Qt.RightButton)
                row.menuRequested(event.x, event.y)
            else
                row.selectRequested()
        }
        onDoubleClicked: event => {
            if (event.button === Qt.LeftButton && row.canZoom)
                row.zoomRequested()
        }
    }
    ToolTip.visible: mouse.containsMouse
    ToolTip.text: helpText
    ToolTip.delay: 800
}
