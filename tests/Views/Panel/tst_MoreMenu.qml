import QtQuick
import QtQuick.Controls
import QtTest
import Mopwell

TestCase {
    id: testCase
    name: "MoreMenu"
    when: windowShown

    Component {
        id: hostComponent
        Window {
            property alias menu: menu
            width: 300
            height: 300
            MoreMenu { id: menu; developerMode: false }
        }
    }
    SignalSpy { id: opened; signalName: "openWindow" }

    // What the open menu shows.
    function shownEntries(menu) {
        menu.popup(0, 0)
        tryVerify(() => menu.opened)
        const entries = []
        for (let i = 0; i < menu.count; ++i) {
            const item = menu.itemAt(i)
            if (item.visible)
                entries.push(item.text + " " + item.icon.source.toString().replace("qrc:/Mopwell/icons/", ""))
        }
        menu.close()
        tryVerify(() => !menu.opened)
        return entries
    }

    function test_theToolsEachOpenTheirWindow() {
        const host = createTemporaryObject(hostComponent, testCase)
        host.show()
        const menu = host.menu
        opened.target = menu
        opened.clear()
        compare(shownEntries(menu), ["Free Up Snapshots clock.arrow.circlepath.svg", "Startup Items power.svg"])

        menu.developerMode = true
        compare(shownEntries(menu), ["Project Cleanup shippingbox.svg",
                                     "Free Up Snapshots clock.arrow.circlepath.svg",
                                     "Startup Items power.svg",
                                     "App & Tool Updates arrow.triangle.2.circlepath.svg"])
        for (let i = 0; i < menu.count; ++i) {
            menu.popup(0, 0)
            tryVerify(() => menu.opened)
            waitForRendering(host.contentItem)
            mouseClick(menu.itemAt(i))
            tryVerify(() => !menu.opened)
        }
        compare(opened.count, 4)
        compare([0, 1, 2, 3].map(i => opened.signalArguments[i][0]),
                ["projectcleanup", "snapshots", "startup", "appupdates"])
    }
}
