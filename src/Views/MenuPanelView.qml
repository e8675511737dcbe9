import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// Stands in for the panel until it is built: shows what the model knows so far.
ApplicationWindow {
    id: window
    required property AppModel model
    title: "Mopwell"
    width: 380
    height: 160
    visible: false

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 8
        Label { text: "Mopwell"; font.pixelSize: 20; font.bold: true }
        Label { objectName: "usage"; text: "Disk used: " + window.model.menuBarText }
        Button { text: "Quit"; onClicked: Qt.quit() }
    }
}
