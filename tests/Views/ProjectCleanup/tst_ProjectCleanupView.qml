import QtQuick
import QtTest
import Mopwell
import ".."

ViewTestCase {
    id: testCase
    name: "ProjectCleanupView"

    Component { id: windowComponent; ProjectCleanupView {} }

    // Three projects under ~/Code: two with node_modules, one Rust crate with target, every
    // folder a different size and age.
    function seed() {
        support.writeFile("Code/web/package.json", 10)
        support.writeFile("Code/web/node_modules/react/index.js", 90000)
        support.writeFile("Code/web/node_modules/react/lib.js", 60000)
        support.writeFile("Code/api/package.json", 10)
        support.writeFile("Code/api/node_modules/express/index.js", 40000)
        support.writeFile("Code/engine/Cargo.toml", 10)
        support.writeFile("Code/engine/target/debug/engine", 70000)
        support.setAgeInDays("Code/web/node_modules", 3)
        support.setAgeInDays("Code/api/node_modules", 400)
        support.setAgeInDays("Code/engine/target", 45)
    }

    // The window as the shell opens it, after its first scan has ended by itself; over the seeded
    // projects unless other folders are given.
    function open(roots, alsoWrite) {
        const model = support.freshModel()
        model.settings.projectRoots = roots ?? [support.home + "/Code"]
        if (roots === undefined)
            seed()
        if (alsoWrite)
            alsoWrite()
        const window = openWindow(windowComponent, { model: model })
        tryCompare(window.cleanup, "hasScanned", true, 10000)
        waitForRendering(window.contentItem)
        return window
    }

    function list(window) { return child(window, "folderList") }

    // The row or header item at `index` of the list.
    function rowAt(window, index) {
        const loader = list(window).itemAtIndex(index)
        verify(loader !== null && loader.item !== null, "no row " + index)
        return loader.item
    }

    function names(window) {
        waitForRendering(list(window))   // the list takes in its changes before it draws
        const result = []
        for (let i = 0; i < list(window).count; ++i) {
            const row = rowAt(window, i)
            result.push(row.objectName === "groupHeader" ? "[" + row.name + "]" : row.name)
        }
        return result
    }

    function test_theFirstAppearanceScansAndListsEveryFolderBiggestFirst() {
        const window = open()
        compare(names(window), ["web", "engine", "api"])
        const web = rowAt(window, 0)
        compare(child(web, "rowKind").text, "node_modules")
        compare(child(web, "rowPath").text, "~/Code/web/node_modules")
        compare(child(web, "rowAge").text, "3 days ago")       // the other ages: ProjectDirText's test
        verify(child(web, "rowSize").text.endsWith(" KB"))
        verify(!child(web, "rowMeasuring").visible)
        compare(child(window, "rootsLabel").text, "~/Code")
        compare(child(window, "selectionSummary").text,
                "0 of 3 selected · " + Formatter.bytes(window.cleanup.visibleSize) + " total")
        verify(!child(window, "trashButton").enabled)
        compare(child(web, "revealButton").help, DesktopWords.revealInFileManager)
        mouseClick(child(web, "rowBox"))
        verify(child(window, "trashButton").enabled)
        verify(support.saveScreenshot(window.contentItem, "projectcleanup-list"))

        // Rescan starts over; while it runs the buttons that would start another wait.
        mouseClick(child(window, "rescanButton"))
        if (window.cleanup.isScanning)
            verify(!child(window, "chooseFolderButton").enabled)
        tryCompare(window.cleanup, "isScanning", false)
        compare(list(window).count, 3)
    }

    function test_chipsNarrowTheListAndClearBringsEverythingBack() {
        const window = open()
        const chips = child(window, "kindChips")
        verify(chips.visible)
        mouseClick(child(chips, "chip_target"))
        compare(names(window), ["engine"])
        verify(child(chips, "clearKinds").visible)
        compare(child(window, "selectionSummary").text,
                "0 of 1 selected · " + Formatter.bytes(window.cleanup.visibleSize) + " total")
        // The chips still offer every kind, with counts over everything found.
        compare(window.cleanup.kindFacets.map(f => f.label + " " + f.count), ["node_modules 2", "target 1"])
        // Select All ticks only what the filter shows.
        const selectAll = child(window, "selectAllButton")
        compare(selectAll.contentItem.text, "Select All")
        mouseClick(selectAll)
        compare(selectAll.contentItem.text, "Deselect All")
        mouseClick(child(chips, "clearKinds"))
        compare(list(window).count, 3)
        verify(!child(chips, "clearKinds").visible)
        compare(selectAll.contentItem.text, "Select All")
        compare(child(window, "selectionSummary").text.split(" ·")[0], "1 of 3 selected")

        // One kind alone needs no chips.
        window.cleanup.scanFolder(support.home + "/Code/web")
        tryCompare(window.cleanup, "isScanning", false)
        compare(list(window).count, 1)
        verify(!chips.visible)
    }

    function test_groupShowsAHeaderPerProjectAndOldestReorders() {
        const window = open(undefined, () => support.writeFile("Code/web/.next/cache/page.js", 20000))
        mouseClick(child(window, "groupToggle"))
        compare(window.cleanup.groupByProject, true)
        compare(names(window), ["[web]", "web", "web", "[engine]", "engine", "[api]", "api"])
        const header = rowAt(window, 0)
        compare(child(header, "groupCount").text, "2")
        compare(child(header, "groupPath").text, "~/Code/web")
        wait(300)   // the rows slide into their new places
        verify(support.saveScreenshot(window.contentItem, "projectcleanup-grouped"))

        // The header ticks its whole project.
        mouseClick(child(header, "groupSelect"))
        compare(window.cleanup.visibleSelectedCount, 2)
        verify(rowAt(window, 0).selected)

        mouseClick(child(window, "segment_oldest"))
        compare(window.cleanup.sortByAge, true)
        compare(names(window), ["[api]", "api", "[engine]", "engine", "[web]", "web", "web"])
        mouseClick(child(window, "groupToggle"))
        compare(names(window), ["api", "engine", "web", "web"])
        mouseClick(child(window, "segment_size"))
        compare(names(window)[0], "web")
    }

    function test_ticksGoThroughTheConfirmationIntoTheTrashAndTheHistory() {
        const window = open()
        const model = window.model
        mouseClick(child(rowAt(window, 0), "rowBox"))
        mouseClick(child(rowAt(window, 2), "rowBox"))
        compare(window.cleanup.visibleSelectedCount, 2)
        const chosen = window.cleanup.selectedSize
        compare(child(window, "selectedSize").text, Formatter.bytes(chosen))
        compare(child(window, "selectionSummary").text,
                "2 of 3 selected · " + Formatter.bytes(window.cleanup.visibleSize) + " total")

        // Cancel leaves everything where it was.
        const trashButton = child(window, "trashButton")
        mouseClick(trashButton)
        const dialog = child(window, "trashConfirmation")
        tryCompare(dialog, "opened", true)
        compare(child(dialog.contentItem, "alertHeading").text, "Move 2 build folders to the Trash?")
        compare(child(dialog.contentItem, "alertMessage").text,
                "They'll go to the Trash, so you can put them back. Build folders regenerate next time you build.")
        compare(child(dialog.contentItem, "alertConfirm").text, "Move " + Formatter.bytes(chosen) + " to Trash")
        mouseClick(child(dialog.contentItem, "alertCancel"))
        tryCompare(dialog, "visible", false)
        compare(trashedCount(), 0)

        mouseClick(trashButton)
        tryCompare(dialog, "opened", true)
        mouseClick(child(dialog.contentItem, "alertConfirm"))
        tryCompare(dialog, "visible", false)
        compare(trashedCount(), 2)
        compare(support.countEntries(support.home + "/Code/web"), 1)   // package.json alone
        compare(names(window), ["engine"])
        compare(support.historyNames(model)[0], "2 project folders")
        compare(model.totalFreedAllTime, chosen)
        verify(!trashButton.enabled)
    }

    function test_neverSuggestTakesTheRowAwayAndRemembersThePath() {
        const window = open()
        const model = window.model
        const apiRow = rowAt(window, 2)
        compare(apiRow.name, "api")
        compare(child(apiRow, "pinButton").help, "Never suggest this folder")
        mouseClick(child(apiRow, "pinButton"))
        compare(names(window), ["web", "engine"])
        compare(model.settings.ignoredFinderPaths, [support.home + "/Code/api/node_modules"])

        // The same from the row's menu, which also offers the file manager.
        const engineRow = rowAt(window, 1)
        mouseClick(engineRow, 100, engineRow.height / 2, Qt.RightButton)
        const menu = window.rowMenu
        tryCompare(menu, "opened", true)
        compare(menu.itemAt(0).text, DesktopWords.revealInFileManager)
        compare(menu.itemAt(1).text, "Never Suggest This Folder")
        mouseClick(menu.itemAt(1))
        compare(names(window), ["web"])
        compare(model.settings.ignoredFinderPaths.length, 2)
        // Nothing went anywhere; that a new scan leaves them out, the model's test says.
        compare(support.countEntries(support.home + "/Code/api/node_modules"), 1)
    }

    function test_nothingFoundShowsTheEmptyState() {
        support.writeFile("Empty/notes.txt", 100)
        const window = open([support.home + "/Empty"])
        const empty = child(window, "emptyState")
        verify(empty.visible)
        verify(!list(window).visible)
        compare(child(empty, "emptyStateTitle").text, "No build folders found")
        compare(child(empty, "emptyStateMessage").text, "Nothing to clean under ~/Empty")
        verify(!child(window, "groupToggle").visible)
        verify(!child(window, "sortPicker").visible)
        verify(!child(window, "selectAllButton").visible)
        verify(support.saveScreenshot(window.contentItem, "projectcleanup-empty"))
    }

    function test_rowsHoldStillWhileThePointerIsOverTheList() {
        const window = open()
        const rows = window.cleanup.rows
        const view = list(window)
        mouseMove(view, view.width / 2, 10)
        tryCompare(rows, "holdOrder", true)
        mouseMove(child(window, "footer"), 5, 5)
        tryCompare(rows, "holdOrder", false)
    }
}
