import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts
import Mopwell

// The "Uninstall an App" window: an empty area with the app chooser until an app is loaded, then
// the app, what it left behind with a box for each, and the removal. The window is always
// 460 × 520 and opens centred. The choice, the search and the removal belong to the model.
Window {
    id: window

    required property AppModel model
    readonly property alias uninstaller: uninstaller
    readonly property alias appPicker: appPicker

    title: qsTr("Uninstall an App")
    width: 460
    height: 520
    minimumWidth: 460
    maximumWidth: 460
    minimumHeight: 520
    maximumHeight: 520
    color: Theme.windowBackground

    onVisibleChanged: if (visible) uninstaller.model = window.model

    UninstallerModel {
        id: uninstaller
        onFilePickRequested: start => {
            fileDialog.currentFolder = "file://" + start
            fileDialog.open()
        }
        onAppListRequested: appPicker.open()
    }

    WindowCenterer {}

    UninstallerEmptyArea {
        objectName: "emptyArea"
        anchors.fill: parent
        visible: !uninstaller.hasApp
        uninstaller: uninstaller
    }

    ColumnLayout {
        objectName: "appArea"
        anchors.fill: parent
        visible: uninstaller.hasApp
        spacing: 0

        UninstallerAppHeader {
            Layout.fillWidth: true
            uninstaller: uninstaller
        }
        Divider { Layout.fillWidth: true }
        UninstallerItemList {
            Layout.fillWidth: true
            Layout.fillHeight: true
            uninstaller: uninstaller
        }
        Divider { Layout.fillWidth: true }
        UninstallerFooter {
            Layout.fillWidth: true
            uninstaller: uninstaller
        }
    }

    AppPicker {
        id: appPicker
        objectName: "appPicker"
        anchors.centerIn: parent
        apps: uninstaller.installedApps
        onPicked: index => uninstaller.loadListed(index)
        onOtherRequested: uninstaller.chooseOtherFile()
    }

    FileDialog {
        id: fileDialog
        title: qsTr("Choose App")
        acceptLabel: qsTr("Choose")
        fileMode: FileDialog.OpenFile
        nameFilters: uninstaller.listsApps
                     ? [qsTr("Apps (*.AppImage *.appimage *.desktop)"), qsTr("All files (*)")]
                     : [qsTr("Applications (*.app)")]
        onAccepted: uninstaller.load(decodeURIComponent(selectedFile.toString().replace(/^file:\/\//, "")))
    }
}
