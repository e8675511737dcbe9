import QtQuick
import QtTest
import Mopwell
import ".."

ViewTestCase {
    id: testCase
    name: "StartupItemsView"

    Component { id: windowComponent; StartupItemsView {} }

    property var appModel: null

    function entry(name, lines) {
        support.writeText(".config/autostart/" + name, "[Desktop Entry]\nType=Application\n" + lines + "\n")
    }

    function open() {
        return showWindow(windowComponent, { model: testCase.appModel })   // the list is read once shown
    }

    function row(window, index) {
        return rowOf(child(window, "itemList"), index)
    }

    function init() {
        appModel = support.freshModel()
    }

    function test_listsWhatStartsWithTheSession() {
        entry("syncthing.desktop", "Name=Syncthing\nExec=/usr/bin/syncthing serve --no-browser")
        entry("nextcloud.desktop", "Name=Nextcloud\nExec=nextcloud --background\nHidden=true")
        support.writeText("Library/LaunchAgents/com.example.agent.plist",
            '<?xml version="1.0"?><plist version="1.0"><dict><key>Label</key><string>com.example.agent</string>'
            + '<key>ProgramArguments</key><array><string>/opt/agent</string></array></dict></plist>')
        const window = open()
        compare(child(window, "itemList").count, 3)
        compare(row(window, 0).label, "com.example.agent")
        compare(row(window, 0).program, "/opt/agent")
        compare(row(window, 1).label, "Nextcloud")
        verify(!findChild(row(window, 1), "toggle").checked)
        compare(row(window, 2).label, "Syncthing")
        compare(row(window, 2).program, "/usr/bin/syncthing")
        verify(findChild(row(window, 2), "toggle").checked)
        compare(child(window, "elsewhere").text, DesktopWords.startupItemsElsewhere)
        compare(child(window, "openStartupSettings").text, DesktopWords.openStartupSettings)
        waitForRendering(window.contentItem)
        verify(support.saveScreenshot(window.contentItem, "startupitems-list"))
    }

    function test_switchingOffMovesTheEntryAsideAndBack() {
        entry("syncthing.desktop", "Name=Syncthing\nExec=syncthing")
        const window = open()
        mouseClick(findChild(row(window, 0), "toggle"))
        tryCompare(window.startupItems, "busyID", "")
        verify(!support.exists(".config/autostart/syncthing.desktop"))
        verify(support.exists(".config/autostart/Disabled/syncthing.desktop"))
        verify(!findChild(row(window, 0), "toggle").checked)

        mouseClick(findChild(row(window, 0), "toggle"))
        tryCompare(window.startupItems, "busyID", "")
        verify(support.exists(".config/autostart/syncthing.desktop"))
        verify(findChild(row(window, 0), "toggle").checked)
    }

    function test_aSwitchThatCannotMoveFallsBack() {
        entry("a.desktop", "Name=Live")
        entry("Disabled/a.desktop", "Name=Switched off")
        const window = open()
        compare(child(window, "itemList").count, 2)
        mouseClick(findChild(row(window, 1), "toggle"))
        tryCompare(window.startupItems, "busyID", "")
        verify(!findChild(row(window, 1), "toggle").checked)
        compare(row(window, 1).label, "Switched off")
        verify(support.exists(".config/autostart/a.desktop"))
        verify(support.exists(".config/autostart/Disabled/a.desktop"))
    }

    function test_nothingToListShowsTheEmptyState() {
        const window = open()
        const empty = child(window, "emptyState")
        verify(empty.visible)
        compare(findChild(empty, "emptyStateTitle").text, "No background items")
        compare(findChild(empty, "emptyStateMessage").text, "Nothing launches automatically for your account.")
        waitForRendering(window.contentItem)
        verify(support.saveScreenshot(window.contentItem, "startupitems-empty"))
    }
}
