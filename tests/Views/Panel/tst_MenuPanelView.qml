import QtQuick
import QtTest
import Mopwell
import "../LinuxHome.js" as LinuxHome

TestCase {
    id: test
    name: "MenuPanelView"
    when: windowShown

    Component { id: panelComponent; MenuPanelView {} }
    Component { id: confirmComponent; ConfirmWindowView {} }
    SignalSpy { id: windowRequests; target: Shell; signalName: "windowRequested" }

    // A panel over a fresh model with a known disk, its first scan done; over the caches of a
    // Linux home when `seeded`.
    function makePanel(developerMode, seeded) {
        const model = support.freshModel()
        if (seeded)
            LinuxHome.seed(support)
        model.settings.developerMode = developerMode
        model.rebuildTargets()
        const panel = createTemporaryObject(panelComponent, null, { model: model })
        panel.show()
        waitForRendering(panel.contentItem)
        tryVerify(() => !model.isScanning, 10000)   // the first scan the panel started
        support.setDisk(model, 500e9, 125e9)        // after start(), which reads the real volume
        return panel
    }

    function textOf(panel, name) {
        return findChild(panel, name).text
    }

    // The rules behind these texts and colours have their own tests; here, that the panel shows them.
    function test_theHeaderShowsFreshnessAndHowFullTheDiskIs() {
        const panel = makePanel(false)
        const model = panel.model
        support.setNow(2000000000)
        support.setLastScanSecondsAgo(model, 90)
        compare(textOf(panel, "freshness"), "1m ago")
        support.setScanning(model, "logs")
        compare(textOf(panel, "freshness"), "Scanning…")
        support.setNow(-1)

        const ring = findChild(panel, "diskRing")
        compare(textOf(panel, "percent"), "75%")
        compare(textOf(panel, "available"), "125 GB")
        compare(textOf(panel, "total"), "free of 500 GB")
        compare(textOf(panel, "used"), "375 GB used")
        compare(ring.ringColor, Theme.orange)
        support.setDisk(model, 1000, 50)
        compare(ring.ringColor, Theme.red)
        support.setDisk(model, 1000, 2000)
        compare(textOf(panel, "used"), "Zero KB used")
        compare(ring.ringColor, Theme.green)
    }

    function test_simpleModeGroupsIncludeAndExclude() {
        const panel = makePanel(false)
        const model = panel.model
        compare(textOf(panel, "reclaimable"), "Zero KB")
        verify(!findChild(panel, "cleanUp").enabled)
        support.setSize(model, "appcaches", 2e9)
        support.setSize(model, "chrome", 5e8)
        support.setSize(model, "trash", 1e8)
        compare(textOf(panel, "reclaimable"), "2.6 GB")
        verify(findChild(panel, "cleanUp").enabled)

        const groups = findChild(panel, "groups")
        const firstCheck = findChild(groups, "include")      // "System & app caches"
        mouseClick(firstCheck)
        compare(textOf(panel, "reclaimable"), "600 MB")
        verify(!model.isGroupEnabledById("syscaches"))
        compare(model.settings.disabledTargetIDs, ["appcaches", "logs", "thumbnails"])
        mouseClick(firstCheck)
        compare(textOf(panel, "reclaimable"), "2.6 GB")
    }

    function test_developerModeListsEveryTargetUnderStickyHeaders() {
        const panel = makePanel(true)
        const model = panel.model
        support.setSize(model, "logs", 0)
        support.setSize(model, "gradle", -1)
        support.setSize(model, "appcaches", 3.2e9)
        const list = findChild(panel, "targets")
        compare(list.height, 360)                               // far more than fits: it scrolls
        verify(list.contentHeight > 360)
        // Every row is as high as the list's height counts it, divider and all, so a list below
        // the cap fits its rows exactly; and whatever its size or detail line, each row keeps
        // its info button and its size in one column with the others.
        let columns = null
        for (let i = 0; i < list.count; ++i) {
            list.positionViewAtIndex(i, ListView.Contain)
            const row = list.itemAtIndex(i)
            compare(row.height, 44, "row " + i)
            const size = findChild(row, "size")
            const place = [findChild(row, "info").mapToItem(row, 0, 0).x, size.mapToItem(row, size.width, 0).x]
            if (columns === null)
                columns = place
            compare(place, columns, "row " + i + ", " + size.text)
        }
    }

    // What a Linux user sees first: every group measured from the home's own folders, and the
    // developer list beside it.
    function test_aLinuxHomeIsMeasuredGroupByGroup() {
        const panel = makePanel(false, true)
        const model = panel.model
        const sizes = []
        const column = findChild(panel, "groups")
        for (let i = 0; i < column.children.length; ++i) {
            const size = findChild(column.children[i], "size")
            if (size)
                sizes.push(size.text)
        }
        compare(sizes.length, 3)                                // caches, browsers, Trash
        for (const text of sizes)
            verify(text !== "Zero KB" && text !== "—", text)
        verify(textOf(panel, "reclaimable").endsWith(" MB"))
        verify(support.saveScreenshot(panel.contentItem, "panel-simple"))

        model.settings.developerMode = true
        model.rebuildTargets()
        model.rescan()
        tryVerify(() => !model.isScanning, 10000)
        waitForRendering(panel.contentItem)
        verify(support.saveScreenshot(panel.contentItem, "panel-developer"))
    }

    function test_theInfoButtonSaysWhyARowIsSafeAndWhereItLives() {
        const panel = makePanel(true, true)
        const list = findChild(panel, "targets")
        const appCaches = list.itemAtIndex(1)                   // "App cache files"
        const info = findChild(appCaches, "info")
        mouseClick(info)
        const why = findChild(appCaches, "whySafe")
        verify(why !== null)
        tryCompare(why, "visible", true)
        compare(why.text, "Apps and websites recreate these caches automatically when they next need them.")
        verify(support.saveScreenshot(panel.contentItem, "panel-info"))
    }

    function test_excludedRowsAreDimmedAndLeaveTheTotal() {
        const panel = makePanel(true)
        const model = panel.model
        support.setSize(model, "appcaches", 3e9)
        support.setSize(model, "logs", 1e9)
        compare(textOf(panel, "reclaimable"), "4 GB")
        const logsRow = findChild(panel, "targets").itemAtIndex(2)
        mouseClick(findChild(logsRow, "include"))
        compare(textOf(panel, "reclaimable"), "3 GB")
        compare(findChild(logsRow, "name").parent.opacity, 0.5)
        verify(model.settings.disabledTargetIDs.indexOf("logs") >= 0)
    }

    function test_cleanUpGoesThroughTheConfirmationIntoTheTrash() {
        const panel = makePanel(false, true)
        const model = panel.model
        tryVerify(() => findChild(panel, "cleanUp").enabled, 10000)

        windowRequests.clear()
        mouseClick(findChild(panel, "cleanUp"))
        compare(windowRequests.count, 1)
        compare(windowRequests.signalArguments[0][0], "confirm")
        verify(model.hasPendingClean)

        // What the shell opens for that request.
        const confirm = createTemporaryObject(confirmComponent, null, { model: model })
        confirm.show()
        waitForRendering(confirm.contentItem)
        mouseClick(findChild(confirm, "confirmButton"))
        tryVerify(() => textOf(panel, "statusText").startsWith("Freed"), 10000)
        verify(/^Freed .+ total$/.test(textOf(panel, "statusText")))
        compare(support.countEntries(support.home + "/.local/share/xorg"), 0)
        compare(support.countEntries(support.home + "/.cache/thumbnails"), 0)
        compare(support.countEntries(support.home + "/.cache/mozilla/firefox"), 0)
        // The old Trash is emptied for good, and the caches take its place.
        verify(support.countEntries(support.trashFolder() + "/files") >= 6)
        compare(support.countEntries(support.home + "/.mozilla/firefox/k3x9q2z1.default-release"), 2)
        compare(support.countEntries(support.home + "/.npm/_cacache"), 1)
        verify(findChild(panel, "status").visible)
        verify(support.saveScreenshot(panel.contentItem, "panel-after-clean"))
    }
}
