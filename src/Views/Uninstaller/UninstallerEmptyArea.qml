import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// What the window shows with no app loaded: what the tool does, the chooser, and the last
// outcome or refusal, which is shown nowhere else.
ColumnLayout {
    id: area
    required property UninstallerModel uninstaller
    spacing: 0

    ToolHeader {
        Layout.fillWidth: true
        icon: "trash.square"
        title: qsTr("Uninstall an App")
        subtitle: qsTr("Remove an app together with its leftover caches, preferences, and support files — all moved to the Trash, so you can undo it.")
    }
    Divider { Layout.fillWidth: true }

    Item {
        Layout.fillWidth: true
        Layout.fillHeight: true

        ColumnLayout {
            anchors.centerIn: parent
            width: Math.min(340, parent.width - 48)
            spacing: 10

            ProminentButton {
                objectName: "chooseApp"
                Layout.alignment: Qt.AlignHCenter
                text: qsTr("Choose App…")
                onClicked: area.uninstaller.chooseApp()
            }
            Label {
                objectName: "resultMessage"
                Layout.fillWidth: true
                visible: text.length > 0
                text: area.uninstaller.resultMessage
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                font: Theme.caption1
                color: Theme.secondary
            }
        }
    }
}
