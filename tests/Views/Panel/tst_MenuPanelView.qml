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

        // The group's members leave the total (which members, AppModelTest says).
        const firstCheck = findChild(findChild(panel, "groups"), "include")      // "System & app caches"
        mouseClick(firstCheck)
        compare(textOf(panel, "reclaimable"), "600 MB")
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

    function test_theInfoButtonSaysWhyARowIsSafeAndWhereItLives_data() {
        return [
            { tag: "English", language: "", picture: "panel-info",
              why: "Apps and websites recreate these caches automatically when they next need them." },
            { tag: "German", language: "de", picture: "panel-german-info",
              why: "Apps und Websites legen diese Caches automatisch neu an, sobald sie sie wieder brauchen." },
        ]
    }

    function test_theInfoButtonSaysWhyARowIsSafeAndWhereItLives(data) {
        support.setLanguage(data.language)
        const panel = makePanel(true, true)
        if (data.language === "")
            verify(support.saveScreenshot(panel.contentItem, "panel-developer"))
        const list = findChild(panel, "targets")
        const appCaches = list.itemAtIndex(1)                   // "App cache files"
        const info = findChild(appCaches, "info")
        mouseClick(info)
        const why = findChild(appCaches, "whySafe")
        verify(why !== null)
        tryCompare(why, "visible", true)
        compare(why.text, data.why)
        verify(support.saveScreenshot(panel.contentItem, data.picture))
        support.setLanguage("")
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
    }

    // What a Linux user sees first: every group measured from the home's own folders, and the
    // clean from the button through the confirmation, with what it moves and what it leaves.
    function test_aLinuxHomeIsMeasuredGroupByGroupAndCleanedThroughTheConfirmation() {
        const panel = makePanel(false, true)
        const model = panel.model
        const column = findChild(panel, "groups")
        const sizes = []
        for (let i = 0; i < column.children.length; ++i) {
            const size = findChild(column.children[i], "size")
            if (size)
                sizes.push(size.text)
        }
        compare(sizes.length, 3)                                // caches, browsers, Trash
        verify(sizes.every(text => text !== "Zero KB" && text !== "—"), sizes)
        verify(textOf(panel, "reclaimable").endsWith(" MB"))
        verify(support.saveScreenshot(panel.contentItem, "panel-simple"))

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
        verify(findChild(panel, "status").visible)
        // The caches went to the Trash, whose old items are gone for good; the Firefox profile
        // and the developer caches, which simple mode leaves, stayed.
        for (const folder of [".local/share/xorg", ".cache/thumbnails", ".cache/mozilla/firefox"])
            compare(support.countEntries(support.home + "/" + folder), 0, folder)
        verify(support.countEntries(support.trashFolder() + "/files") >= 6)
        verify(!support.exists(".local/share/Trash/files/old report.pdf"))
        compare(support.countEntries(support.home + "/.mozilla/firefox/k3x9q2z1.default-release"), 2)
        compare(support.countEntries(support.home + "/.npm/_cacache"), 1)
        verify(support.saveScreenshot(panel.contentItem, "panel-after-clean"))
    }

    // The footer's tools, and the More menu's by mode: each asks the shell for its window.
    function test_everyToolAsksForItsWindow() {
        const panel = makePanel(false)
        const model = panel.model
        const more = findChild(panel.contentItem, "more")
        let menu = null
        for (let i = 0; i < more.resources.length; ++i) {
            if (more.resources[i].itemAt !== undefined)
                menu = more.resources[i]
        }
        // Opens the More menu, clicks its entry `index` where the entry comes to rest rather than
        // where the opening animation has it, and gives what the menu offered.
        function pick(index) {
            mouseClick(more)
            tryCompare(menu, "opened", true)
            tryVerify(() => menu.enter === null || !menu.enter.running)
            waitForItemPolished(menu.contentItem)
            const offered = []
            for (let i = 0; i < menu.count; ++i) {
                if (menu.itemAt(i).visible)
                    offered.push(menu.itemAt(i).text)
            }
            mouseClick(menu.itemAt(index))
            tryCompare(menu, "opened", false)
            return offered
        }
        windowRequests.clear()
        for (const icon of ["rectangle.3.group", "doc.text.magnifyingglass", "doc.on.doc", "xmark.bin"])
            mouseClick(findChild(panel.contentItem, "tool-" + icon))
        compare(model.largeFilesTab, 1)                         // the last asked for Duplicates
        compare(pick(1), ["Free Up Snapshots", "Startup Items"])
        model.settings.developerMode = true
        for (let i = 0; i < 4; ++i)
            compare(pick(i), ["Project Cleanup", "Free Up Snapshots", "Startup Items", "App & Tool Updates"])
        const requested = []
        for (let i = 0; i < windowRequests.count; ++i)
            requested.push(windowRequests.signalArguments[i][0])
        compare(requested, ["diskmap", "largefiles", "largefiles", "uninstaller", "snapshots",
                            "projectcleanup", "snapshots", "startup", "appupdates"])
        tryVerify(() => !model.isScanning, 10000)
    }
}
