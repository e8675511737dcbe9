import QtQuick
import QtQuick.Controls
import Mopwell

// What a right click on a build folder offers: the same two things as the row's own buttons.
Menu {
    id: menu

    property int rowIndex: -1

    signal revealRequested(int index)
    signal pinRequested(int index)

    objectName: "rowMenu"

    MenuItem {
        objectName: "menuReveal"
        text: DesktopWords.revealInFileManager
        onTriggered: menu.revealRequested(menu.rowIndex)
    }
    MenuItem {
        objectName: "menuPin"
        text: qsTr("Never Suggest This Folder")
        onTriggered: menu.pinRequested(menu.rowIndex)
    }
}
