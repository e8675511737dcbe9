import QtQuick
import QtTest
import Mopwell

TestCase {
    id: testCase
    name: "LargeFilesView"
    when: windowShown

    Component { id: windowComponent; LargeFilesView {} }
    Component { id: panelComponent; MenuPanelView {} }
    SignalSpy { id: windowRequests; target: Shell; signalName: "windowRequested" }

    // Every file of one size has the same bytes here, so equal sizes are copies: three copies of
    // a film, two of a disk image, and three files of their own.
    function seed() {
        support.writeFile("Movies/film.mov", 3000000)
        support.writeFile("Backup/film.mov", 3000000)
        support.writeFile("Backup/Old/film copy.mov", 3000000)
        support.writeFile("Downloads/installer.iso", 2500000)
        support.writeFile("Backup/installer.iso", 2500000)
        support.writeFile("Pictures/panorama.jpg", 1200000)
        support.writeFile("Documents/notes.txt", 20000)
    }

    function open(model) {
        const window = createTemporaryObject(windowComponent, null, { model: model })
        verify(window !== null)
        window.show()
        window.requestActivate()
        tryCompare(window, "active", true)
        return window
    }

    function child(item, name) {
        const found = findChild(item, name)
        verify(found !== null, "no item named " + name)
        return found
    }

    function menuItem(menu, name) {
        for (let i = 0; i < menu.count; ++i) {
            if (menu.itemAt(i).objectName === name)
                return menu.itemAt(i)
        }
        fail("no menu item " + name)
    }

    // Scans the home folder the way a user does: the Scan menu's first place.
    function scanHome(window) {
        mouseClick(child(window.contentItem, "scanMenuButton"))
        const menu = child(window.contentItem, "toolbar").scanMenu
        tryCompare(menu, "opened", true)
        mouseClick(menuItem(menu, "preset_Home"))
        tryCompare(window.finder, "hasScanned", true)
        waitForRendering(window.contentItem)
    }

    function rowsOf(window, listName) {
        return child(child(window.contentItem, listName), "rows")
    }

    function test_opensOnThePlaceholderWithNothingToTrash() {
        const window = open(support.freshModel())
        compare(window.minimumWidth, 640)
        compare(window.minimumHeight, 520)
        const placeholder = child(window.contentItem, "placeholder")
        verify(placeholder.visible)
        compare(child(placeholder, "emptyStateTitle").text, "Find large & duplicate files")
        compare(child(placeholder, "emptyStateMessage").text,
                "Pick a folder to scan for big files and byte-identical duplicates you can safely remove.")
        compare(child(placeholder, "placeholderChooseFolder").text, "Choose Folder…")
        verify(!child(window.contentItem, "tabPicker").visible)
        verify(!child(window.contentItem, "rootPathLabel").visible)
        compare(child(window.contentItem, "selectedCount").text, "0 selected")
        compare(child(window.contentItem, "selectedSize").text, "Zero KB")
        verify(!child(window.contentItem, "trashButton").enabled)
        const labels = []
        const menu = child(window.contentItem, "toolbar").scanMenu
        for (let i = 0; i < menu.count; ++i)
            labels.push(menu.itemAt(i).text ?? "")
        compare(labels, window.finder.presets.map(place => place.label).concat(["", "Choose Folder…"]))
        waitForRendering(window.contentItem)
        verify(support.saveScreenshot(window.contentItem, "largefiles-start"))
    }

    function test_aScanListsTheLargestAndTheCopiesWithOneOfEachKept() {
        const window = open(support.freshModel())
        seed()
        scanHome(window)
        verify(!child(window.contentItem, "placeholder").visible)
        compare(child(window.contentItem, "rootPathLabel").text, "~")
        verify(child(window.contentItem, "tabPicker").visible)

        const largest = rowsOf(window, "largestList")
        verify(largest.visible)
        compare(largest.count, 7)
        compare(child(largest.itemAtIndex(0), "selectableRowTitle").text, "film.mov")
        compare(child(largest.itemAtIndex(6), "selectableRowSubtitle").text, "~/Documents/notes.txt")
        // Each group keeps the copy met first; the others stand ticked, here and in the footer.
        compare(child(window.contentItem, "selectedCount").text, "3 selected")
        compare(child(window.contentItem, "selectedSize").text, "8.5 MB")
        const ticked = []
        for (let i = 0; i < largest.count; ++i)
            ticked.push(child(largest.itemAtIndex(i), "selectableRowBox").checked)
        compare(ticked.filter(on => on).length, 3)
        verify(support.saveScreenshot(window.contentItem, "largefiles-largest"))

        mouseClick(child(window.contentItem, "segment_1"))
        compare(window.tab, 1)
        const copies = rowsOf(window, "duplicateList")
        verify(copies.visible && !largest.visible)
        compare(copies.count, 7)  // two headers, five files
        compare(child(copies.itemAtIndex(0), "groupCopies").text, "3 copies · 3 MB each")
        compare(child(copies.itemAtIndex(0), "groupSaving").text, "save 6 MB")
        compare(child(copies.itemAtIndex(4), "groupCopies").text, "2 copies · 2.5 MB each")
        const kept = child(copies.itemAtIndex(1), "selectableRowBox")
        verify(!kept.checked)
        verify(child(copies.itemAtIndex(2), "selectableRowBox").checked)
        waitForRendering(window.contentItem)
        verify(support.saveScreenshot(window.contentItem, "largefiles-duplicates"))

        // A tick of the kept copy counts once in the footer, though the file is in both lists.
        mouseClick(kept)
        verify(kept.checked)
        compare(child(window.contentItem, "selectedCount").text, "4 selected")
        compare(child(window.contentItem, "selectedSize").text, "11.5 MB")
        mouseClick(kept)
        compare(child(window.contentItem, "selectedCount").text, "3 selected")
    }

    function test_moveToTrashMovesTheCopiesRecordsThemAndScansAgain() {
        const model = support.freshModel()
        const window = open(model)
        seed()
        scanHome(window)
        const trashButton = child(window.contentItem, "trashButton")
        verify(trashButton.enabled)
        mouseClick(trashButton)
        // Straight to the Trash, no question asked; then the folder is scanned again.
        tryCompare(window.finder, "isTrashing", false)
        compare(support.countEntries(support.trashFolder() + "/files"), 3)
        compare(support.historyNames(model)[0], "3 files (duplicate/large)")
        tryCompare(window.finder, "hasScanned", true)
        compare(rowsOf(window, "largestList").count, 4)
        compare(child(window.contentItem, "selectedCount").text, "0 selected")
        verify(!trashButton.enabled)
        mouseClick(child(window.contentItem, "segment_1"))
        const empty = child(child(window.contentItem, "duplicateList"), "emptyResult")
        verify(empty.visible)
        compare(child(empty, "emptyStateTitle").text, "No duplicates found")
        compare(child(empty, "emptyStateMessage").text,
                "Duplicates are byte-identical copies — unique files don't appear here.")
    }

    // Files outside the home can't be ticked for the Trash, but each can still be found.
    function test_aFileThatCantBeTrashedCanStillBeRevealed() {
        const window = open(support.freshModel())
        window.finder.scan("/usr/share/common-licenses")
        tryCompare(window.finder, "hasScanned", true)
        waitForRendering(window.contentItem)
        const row = child(rowsOf(window, "largestList").itemAtIndex(0), "fileRow")
        verify(!child(row, "selectableRowBox").enabled)
        verify(child(row, "revealButton").enabled)
    }

    function test_thePanelsToolsOpenTheWindowOnTheirList() {
        const model = support.freshModel()
        const panel = createTemporaryObject(panelComponent, null, { model: model })
        panel.show()
        waitForRendering(panel.contentItem)
        windowRequests.clear()
        mouseClick(child(panel.contentItem, "tool-doc.on.doc"))
        compare(windowRequests.count, 1)
        compare(windowRequests.signalArguments[0][0], "largefiles")
        const window = open(model)
        compare(window.tab, 1)
        // Already open, the window follows the other button too.
        mouseClick(child(panel.contentItem, "tool-doc.text.magnifyingglass"))
        compare(windowRequests.signalArguments[1][0], "largefiles")
        compare(window.tab, 0)
    }
}
