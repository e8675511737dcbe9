import QtQuick
import QtTest
import Mopwell
import ".."

ViewTestCase {
    id: testCase
    name: "LargeFilesView"

    Component { id: windowComponent; LargeFilesView {} }

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
        return openWindow(windowComponent, { model: model })
    }

    // Scans the home folder the way a user does: the Scan menu's first place.
    function scanHome(window) {
        mouseClick(child(window, "scanMenuButton"))
        const menu = child(window, "toolbar").scanMenu
        tryCompare(menu, "opened", true)
        mouseClick(menuItem(menu, "preset_Home"))
        tryCompare(window.finder, "hasScanned", true)
        waitForRendering(window.contentItem)
    }

    function rowsOf(window, listName) {
        return child(child(window, listName), "rows")
    }

    function test_opensOnThePlaceholderWithNothingToTrash() {
        const window = open(support.freshModel())
        const placeholder = child(window, "placeholder")
        verify(placeholder.visible)
        compare(child(placeholder, "emptyStateTitle").text, "Find large & duplicate files")
        // The message wraps in its narrow column, and the button stands centred under it.
        const message = child(placeholder, "emptyStateMessage")
        compare(message.text, "Pick a folder to scan for big files and byte-identical duplicates you can safely remove.")
        verify(message.width <= 340 && message.lineCount > 1)
        const choose = child(placeholder, "placeholderChooseFolder")
        compare(choose.text, "Choose Folder…")
        const left = choose.mapToItem(placeholder, 0, 0).x
        fuzzyCompare(left, placeholder.width - left - choose.width, 1)
        verify(!child(window, "tabPicker").visible)
        verify(!child(window, "rootPathLabel").visible)
        compare(child(window, "selectedCount").text, "0 selected")
        compare(child(window, "selectedSize").text, "Zero KB")
        verify(!child(window, "trashButton").enabled)
        const labels = []
        const menu = child(window, "toolbar").scanMenu
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
        verify(!child(window, "placeholder").visible)
        compare(child(window, "rootPathLabel").text, "~")
        verify(child(window, "tabPicker").visible)

        const largest = rowsOf(window, "largestList")
        verify(largest.visible)
        compare(largest.count, 7)
        compare(child(largest.itemAtIndex(0), "selectableRowTitle").text, "film.mov")
        compare(child(largest.itemAtIndex(6), "selectableRowSubtitle").text, "~/Documents/notes.txt")
        // Each group keeps the copy met first; the others stand ticked, here and in the footer.
        compare(child(window, "selectedCount").text, "3 selected")
        compare(child(window, "selectedSize").text, "8.5 MB")
        const ticked = []
        for (let i = 0; i < largest.count; ++i)
            ticked.push(child(largest.itemAtIndex(i), "selectableRowBox").checked)
        compare(ticked.filter(on => on).length, 3)
        // Whatever its size, every row leaves its name the same room.
        for (let i = 1; i < largest.count; ++i)
            compare(child(largest.itemAtIndex(i), "selectableRowTitle").width, child(largest.itemAtIndex(0), "selectableRowTitle").width)
        verify(support.saveScreenshot(window.contentItem, "largefiles-largest"))

        mouseClick(child(window, "segment_1"))
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
        compare(child(window, "selectedCount").text, "4 selected")
        compare(child(window, "selectedSize").text, "11.5 MB")
        mouseClick(kept)
        compare(child(window, "selectedCount").text, "3 selected")
    }

    function test_moveToTrashMovesTheCopiesRecordsThemAndScansAgain() {
        const model = support.freshModel()
        const window = open(model)
        seed()
        scanHome(window)
        const trashButton = child(window, "trashButton")
        verify(trashButton.enabled)
        mouseClick(trashButton)
        // Straight to the Trash, no question asked; then the folder is scanned again.
        tryCompare(window.finder, "isTrashing", false)
        compare(trashedCount(), 3)
        compare(support.historyNames(model)[0], "3 files (duplicate/large)")
        tryCompare(window.finder, "hasScanned", true)
        compare(rowsOf(window, "largestList").count, 4)
        compare(child(window, "selectedCount").text, "0 selected")
        verify(!trashButton.enabled)
        mouseClick(child(window, "segment_1"))
        const empty = child(child(window, "duplicateList"), "emptyResult")
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

    // The panel's Large Files and Duplicates buttons choose the list, before the window opens
    // and while it is open.
    function test_theWindowShowsTheListThePanelAskedFor() {
        const model = support.freshModel()
        model.largeFilesTab = 1
        const window = open(model)
        compare(window.tab, 1)
        model.largeFilesTab = 0
        compare(window.tab, 0)
    }
}
