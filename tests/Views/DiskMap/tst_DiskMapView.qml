import QtQuick
import QtTest
import Mopwell
import ".."
import "../LinuxHome.js" as LinuxHome

ViewTestCase {
    id: testCase
    name: "DiskMapView"

    Component { id: windowComponent; DiskMapView {} }

    // A folder of a few files and one subfolder, every item a different size.
    function seed() {
        support.writeFile("Maps/Videos/film.mov", 600000)
        support.writeFile("Maps/Videos/clip.mp4", 200000)
        support.writeFile("Maps/photo.jpg", 300000)
        support.writeFile("Maps/notes.txt", 100000)
        support.writeFile("Maps/song.mp3", 150000)
        return support.home + "/Maps"
    }

    function open(model) {
        return openWindow(windowComponent, { model: model })
    }

    function scanned(window, path) {
        window.diskMap.scan(path)
        tryCompare(window.diskMap, "isScanning", false)
        const canvas = child(window, "treemap")
        tryVerify(() => canvas.tileCount > 0)
        waitForRendering(window.contentItem)
        return canvas
    }

    function centreOf(canvas, index) {
        const rect = canvas.tileRect(index)
        verify(rect.width > 0, "entry " + index + " has no tile")
        return Qt.point(rect.x + rect.width / 2, rect.y + rect.height / 2)
    }

    // The pointer comes to rest over `point` of the map, as a moving mouse does.
    function hover(canvas, point) {
        mouseMove(canvas, point.x - 2, point.y - 2)
        wait(50)
        mouseMove(canvas, point.x, point.y)
    }

    function indexNamed(window, name) {
        const children = window.diskMap.children
        for (let i = 0; i < children.length; ++i) {
            if (children[i].name === name)
                return i
        }
        fail("no entry " + name)
    }

    function test_startScreenOffersEveryPlaceAndAFolderChoice() {
        const model = support.freshModel()
        for (const folder of ["Documents", "Downloads", "Desktop"])
            support.writeFile(folder + "/.keep", 0)
        const window = open(model)
        verify(child(window, "startScreen").visible)
        verify(!child(window, "mapScreen").visible)
        // A card for each place of this desktop (which places, ScanPreset's test says).
        verify(window.diskMap.presets.every(place => place.path !== "/Applications"))
        for (const place of window.places)
            child(window, "placeCard_" + place.label)
        compare(child(window, "chooseFolderCard").label, "Choose Folder…")
        verify(support.saveScreenshot(window.contentItem, "diskmap-start"))

        // A card scans its place, and the map shows at once.
        mouseClick(findChild(window.contentItem, "placeCard_Home"))
        verify(child(window, "mapScreen").visible)
        compare(window.diskMap.rootPath, support.home)
        tryCompare(window.diskMap, "isScanning", false)
    }

    function test_aScanShowsTilesAndTheListAndZoomsInAndOut() {
        const window = open(support.freshModel())
        const canvas = scanned(window, seed())
        const list = child(window, "sideList")
        compare(list.count, 4)
        compare(canvas.tileCount, 4)
        compare(window.diskMap.children[0].name, "Videos")
        verify(child(window, "legend").visible)
        verify(!child(window, "mapPlaceholder").visible)
        compare(child(window, "detailName").text, "~/Maps")

        // A row's texts for assistive technology.
        const first = list.itemAtIndex(0)
        compare(first.Accessible.name, "Videos, folder")
        verify(first.Accessible.description.endsWith("percent. " + DesktopWords.openFolderHint))

        // Hovering tells what lies under the pointer.
        hover(canvas, centreOf(canvas, indexNamed(window, "photo.jpg")))
        const tooltip = child(window, "mapTooltip")
        tryVerify(() => tooltip.visible)
        compare(child(window, "tooltipName").text, "photo.jpg")
        verify(child(window, "tooltipDetail").text.endsWith(" · Images"))
        compare(child(window, "detailName").text, "photo.jpg")
        verify(tooltip.x >= 0 && tooltip.x + tooltip.width <= canvas.width)
        waitForRendering(window.contentItem)
        verify(support.saveScreenshot(window.contentItem, "diskmap-hover"))

        // A double click enters the folder; Escape comes back.
        const videos = centreOf(canvas, indexNamed(window, "Videos"))
        mouseDoubleClickSequence(canvas, videos.x, videos.y)
        compare(window.diskMap.breadcrumb.length, 2)
        tryCompare(canvas, "tileCount", 2)
        compare(list.count, 2)
        keyClick(Qt.Key_Escape)
        compare(window.diskMap.breadcrumb.length, 1)
        compare(list.count, 4)

        // The arrows move the selection, in the list too; Return enters only a folder, Left leaves.
        window.diskMap.clearSelection()
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Down)
        compare(window.diskMap.selectedName, "photo.jpg")
        verify(list.itemAtIndex(1).selected)
        keyClick(Qt.Key_Return)
        compare(window.diskMap.breadcrumb.length, 1)
        keyClick(Qt.Key_Up)
        keyClick(Qt.Key_Return)
        compare(window.diskMap.breadcrumb.length, 2)
        keyClick(Qt.Key_Left)
        compare(window.diskMap.breadcrumb.length, 1)
    }

    // A Linux home keeps its app data in dot-folders: the map shows them, and says they're hidden.
    function test_hiddenFoldersAreMappedAndMarkedAsHidden() {
        const window = open(support.freshModel())
        LinuxHome.seed(support)
        support.writeFile("Documents/report.pdf", 2000000)
        const canvas = scanned(window, support.home)
        const names = window.diskMap.children.map(node => node.name)
        verify(names.indexOf(".cache") >= 0 && names.indexOf(".mozilla") >= 0, names)

        const cache = centreOf(canvas, indexNamed(window, ".cache"))
        hover(canvas, cache)
        tryVerify(() => child(window, "mapTooltip").visible)
        verify(child(window, "tooltipDetail").text.endsWith(" · hidden"), child(window, "tooltipDetail").text)
        mouseClick(canvas, cache.x, cache.y)
        compare(child(window, "detailName").text, ".cache")
        verify(child(window, "detailHidden").visible)

        const documents = centreOf(canvas, indexNamed(window, "Documents"))
        mouseMove(canvas, documents.x, documents.y)
        mouseClick(canvas, documents.x, documents.y)
        compare(child(window, "detailName").text, "Documents")
        verify(!child(window, "detailHidden").visible)
        verify(!child(window, "tooltipDetail").text.endsWith(" · hidden"))
    }

    // The arrows, Return and Escape stay with the map whatever was clicked in the toolbar, with
    // no click on the map to take them back.
    function test_theMapKeepsTheKeyboardAfterEveryToolbarControl() {
        const model = support.freshModel()
        support.writeFile("Downloads/Album/cover.jpg", 400000)
        support.writeFile("Downloads/readme.txt", 20000)
        const window = open(model)
        const map = window.diskMap
        const mapsFolder = seed()
        scanned(window, mapsFolder)
        // Down selects the first entry, a folder; Return enters it and Escape comes back.
        function keysReachTheMap(after) {
            tryCompare(map, "isScanning", false)
            waitForRendering(window.contentItem)
            map.clearSelection()
            keyClick(Qt.Key_Down)
            compare(map.selectedIndex, 0, after)
            keyClick(Qt.Key_Return)
            compare(map.breadcrumb.length, 2, after)
            keyClick(Qt.Key_Escape)
            compare(map.breadcrumb.length, 1, after)
        }
        keysReachTheMap("a scan")
        for (const mode of ["age", "type"]) {
            mouseClick(child(window, "segment_" + mode))
            keysReachTheMap(mode)
        }
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Return)
        waitForRendering(window.contentItem)
        mouseClick(child(window, "crumb_0"))
        keysReachTheMap("the breadcrumb")
        mouseClick(child(window, "rescanButton"))
        keysReachTheMap("Rescan")

        mouseClick(child(window, "scanMenuButton"))
        const menu = child(window, "toolbar").scanMenu
        tryCompare(menu, "opened", true)
        mouseClick(menuItem(menu, "preset_Downloads"))
        tryCompare(map, "rootPath", support.home + "/Downloads")
        keysReachTheMap("the Scan menu")

        // A scan of the whole disk runs long enough to be stopped.
        map.scan("/")
        tryVerify(() => map.hasRoot)
        const stop = child(window, "stopButton")
        tryVerify(() => stop.visible && stop.width > 0)
        mouseClick(stop)
        verify(!map.isScanning)
        map.scan(mapsFolder)
        tryVerify(() => map.childCount === 4)
        keysReachTheMap("Stop")
    }

    // Screen readers meet the map as one element: nothing drawn on it, the tooltip and the
    // placeholder included, is read out on its own.
    function test_theTreemapIsOneAccessibleElement() {
        const window = open(support.freshModel())
        const canvas = scanned(window, seed())
        const area = child(window, "mapArea")
        compare(area.Accessible.name, "Disk usage treemap")
        verify(area.Accessible.description.endsWith(". Use the list on the right to browse items."))
        hover(canvas, centreOf(canvas, indexNamed(window, "photo.jpg")))
        tryVerify(() => child(window, "mapTooltip").visible)
        // A text is read out once a screen reader asks, whether or not it says so yet.
        const exposed = []
        const walk = item => {
            for (let i = 0; i < item.children.length; ++i) {
                const inner = item.children[i]
                const said = inner.Accessible
                const readable = said ? said.role !== Accessible.NoRole : inner.text !== undefined && inner.font !== undefined
                if (readable && !(said && said.ignored))
                    exposed.push(inner.objectName + " " + inner)
                walk(inner)
            }
        }
        walk(area)
        compare(exposed, [])
    }

    // "#", "%" and spaces are part of a folder's name, not of the address the dialog is given.
    function test_theFolderDialogStartsAtTheMappedFolderAndScansTheChoice() {
        const name = "Odd #1 100% sure"
        const model = support.freshModel()
        support.writeFile(name + "/inside.txt", 5000)
        const window = open(model)
        scanned(window, support.home + "/" + name)
        window.diskMap.pickFolderAndScan()
        const dialog = window.folderDialog
        compare(dialog.acceptLabel, "Scan")
        // A url shows its spaces plainly, and keeps "#" and "%" encoded as parts of the name.
        compare(dialog.currentFolder.toString(), "file://" + support.home + "/Odd %231 100%25 sure")
        dialog.selectedFolder = "file://" + support.home + "/Maps%20%25%23"
        dialog.accept()
        compare(window.diskMap.rootPath, support.home + "/Maps %#")
        tryCompare(window.diskMap, "isScanning", false)
        verify(child(window, "mapArea").activeFocus, "the keys go back to the map")
    }

    function test_ageColouringSwapsTheLegend() {
        const window = open(support.freshModel())
        seed()
        const aged = [["Projects/site/app.js", 90000, 2], ["Projects/site/logo.png", 260000, 40],
                      ["Projects/old/report.pdf", 420000, 200], ["Projects/old/backup.zip", 700000, 900],
                      ["Projects/clip.mov", 380000, 120], ["Projects/theme.mp3", 160000, 300]]
        for (const [path, bytes, days] of aged) {
            support.writeFile(path, bytes)
            support.setAgeInDays(path, days)
        }
        support.writeFile("Projects/todo.txt", 20000)
        scanned(window, support.home + "/Projects")
        verify(child(window, "typeLegend").visible)
        mouseClick(child(window, "segment_age"))
        compare(window.colorMode, "age")
        verify(child(window, "ageLegend").visible)
        verify(!child(window, "typeLegend").visible)
        // The rows take the age scale (DiskMapLookTest has its colours): a file written just now
        // green, one of 300 days most of the way to red.
        const list = child(window, "sideList")
        const fresh = findChild(list.itemAtIndex(list.count - 1), "rowSwatch").color
        verify(fresh.g > 0.8 && fresh.r < 0.5)
        const old = findChild(list.itemAtIndex(indexNamed(window, "theme.mp3")), "rowSwatch").color
        verify(old.r > 0.8 && old.g < 0.5)
        // Two digits or three, the sizes keep one column and leave the names the same room.
        for (let i = 1; i < list.count; ++i) {
            const row = list.itemAtIndex(i)
            compare(findChild(row, "rowName").width, findChild(list.itemAtIndex(0), "rowName").width,
                    findChild(row, "rowSize").text)
        }
        waitForRendering(window.contentItem)
        verify(support.saveScreenshot(window.contentItem, "diskmap-age"))
    }

    function test_moveToTrashAsksThenTrashesAndKeepsARecord() {
        const model = support.freshModel()
        const window = open(model)
        const canvas = scanned(window, seed())
        const notes = centreOf(canvas, indexNamed(window, "notes.txt"))
        mouseClick(canvas, notes.x, notes.y)
        compare(window.diskMap.selectedName, "notes.txt")
        const trashButton = child(window, "trashButton")
        verify(trashButton.visible && trashButton.enabled)
        verify(child(window, "revealButton").visible)

        // Declining leaves everything in place.
        mouseClick(trashButton)
        const dialog = child(window, "trashConfirmation")
        tryCompare(dialog, "opened", true)
        compare(findChild(dialog.contentItem, "alertHeading").text, "Move “notes.txt” to the Trash?")
        compare(findChild(dialog.contentItem, "alertMessage").text,
                "Frees " + window.diskMap.selectedNode.sizeText + ". You can put it back from the Trash.")
        mouseClick(findChild(dialog.contentItem, "alertCancel"))
        tryCompare(dialog, "visible", false)
        compare(window.pendingTrash, null)
        compare(trashedCount(), 0)

        mouseClick(trashButton)
        tryCompare(dialog, "opened", true)
        mouseClick(findChild(dialog.contentItem, "alertConfirm"))
        tryCompare(dialog, "visible", false)
        compare(trashedCount(), 1)
        compare(support.historyNames(model)[0], "notes.txt")
        // The map is rescanned without it.
        tryVerify(() => !window.diskMap.isScanning && window.diskMap.childCount === 3)
    }

    function test_theFoldedNodeOffersNoWayToTheTrash() {
        const window = open(support.freshModel())
        // Many equal files: a folder shows at most sixty and folds the rest together.
        for (let i = 0; i < 70; ++i)
            support.writeFile("Many/file" + (100 + i) + ".dat", 4096)
        const canvas = scanned(window, support.home + "/Many")
        const last = window.diskMap.childCount - 1
        verify(window.diskMap.childNode(last).isSynthetic)
        const folded = centreOf(canvas, last)
        hover(canvas, folded)
        mouseClick(canvas, folded.x, folded.y, Qt.RightButton)
        const menu = window.nodeMenu
        tryVerify(() => menu.opened)
        // Its files are kept below it, so it can be entered, but nothing else.
        verify(menuItem(menu, "menuZoomIn").visible)
        for (const name of ["menuFolded", "menuReveal", "menuOpen", "menuTrash"])
            verify(!menuItem(menu, name).visible, name)
        menu.close()
        window.diskMap.select(last)
        verify(!child(window, "trashButton").visible)
        verify(!child(window, "revealButton").visible)
        window.requestTrash(window.diskMap.selectedNode)
        compare(window.pendingTrash, null)
    }
}
