import QtQuick
import QtQuick.Controls
import Mopwell

// The tools that don't fit the row; two of them only make sense to developers.
Menu {
    id: menu
    required property bool developerMode
    signal openWindow(string id)

    MenuItem {
        text: qsTr("Project Cleanup")
        visible: menu.developerMode
        height: visible ? implicitHeight : 0
        icon.source: "qrc:/Mopwell/icons/shippingbox.svg"
        onTriggered: menu.openWindow("projectcleanup")
    }
    MenuItem {
        text: qsTr("Free Up Snapshots")
        icon.source: "qrc:/Mopwell/icons/clock.arrow.circlepath.svg"
        onTriggered: menu.openWindow("snapshots")
    }
    MenuItem {
        text: qsTr("Startup Items")
        icon.source: "qrc:/Mopwell/icons/power.svg"
        onTriggered: menu.openWindow("startup")
    }
    MenuItem {
        text: qsTr("App & Tool Updates")
        visible: menu.developerMode
        height: visible ? implicitHeight : 0
        icon.source: "qrc:/Mopwell/icons/arrow.triangle.2.circlepath.svg"
        onTriggered: menu.openWindow("appupdates")
    }
}
