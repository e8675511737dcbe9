import QtQuick
import QtTest
import Mopwell
import ".."

ViewTestCase {
    id: testCase
    name: "AboutView"

    Component { id: windowComponent; AboutView {} }
    Component { id: updateComponent; SoftwareUpdateView {} }

    property var appModel: null

    function init() {
        appModel = support.freshModel()
        support.serveUpdates("")
    }

    function open(component) {
        return showWindow(component || windowComponent, { model: testCase.appModel })
    }

    function row(window, index) {
        return rowOf(child(window, "historyList"), index)
    }

    // Cleans one target through the confirmation, as the panel would, and waits for its record.
    function clean(id, permanently) {
        const before = support.historyNames(appModel).length
        appModel.requestCleanOf(id)
        appModel.confirmPending(permanently)
        tryVerify(() => support.historyNames(appModel).length === before + 1, 10000)
        tryVerify(() => !appModel.isScanning, 10000)
    }

    // Xorg's old log, and a thumbnail, each with text of its own.
    function seed() {
        support.writeText(".local/share/xorg/Xorg.0.log.old", "[    12.345] (II) Server terminated\n".repeat(400))
        support.writeText(".cache/thumbnails/normal/a1b2.png", "thumbnail bytes ".repeat(900))
        appModel.rescan()
        tryVerify(() => !appModel.isScanning, 10000)
    }

    function feed(version, shortVersion) {
        return '<?xml version="1.0"?><rss version="2.0" xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel>'
            + '<item><sparkle:releaseNotesLink>https://mopwell.org/notes/' + shortVersion + '</sparkle:releaseNotesLink>'
            + '<enclosure url="https://mopwell.org/download/Mopwell-' + shortVersion + '.tar.gz" sparkle:version="' + version
            + '" sparkle:shortVersionString="' + shortVersion + '"/></item></channel></rss>'
    }

    function test_withoutHistoryTheWindowSaysSo() {
        const window = open()
        compare(child(window, "version").text, "Version 0.1.0 (1)")
        // The header stands in the middle of the window, not at its left.
        const version = child(window, "version")
        fuzzyCompare(version.mapToItem(null, version.width / 2, 0).x, window.width / 2, 1)
        compare(child(window, "allTimeTotal").text, "Zero KB")
        verify(child(window, "noCleanups").visible)
        compare(child(window, "noCleanups").text, "No cleanups yet.")
        verify(!child(window, "openTrash").visible)
        verify(!child(window, "clearHistory").visible)
        verify(!child(window, "historyList").visible)
    }

    // A clean through the Trash can be put back, byte for byte; one that skipped it never can.
    function test_putBackBringsTheItemsHomeAndACleanWithoutTheTrashCanNever() {
        seed()
        const log = ".local/share/xorg/Xorg.0.log.old"
        const text = support.readText(log)
        clean("logs", false)
        verify(!support.exists(log))
        const logsFreed = appModel.totalFreedAllTime
        verify(logsFreed > 0)
        appModel.settings.moveToTrash = false
        clean("thumbnails", false)
        const total = appModel.totalFreedAllTime
        const window = open()
        const permanent = row(window, 0)
        compare(findChild(permanent, "historyName").text, "Thumbnails")
        compare(findChild(permanent, "historyIcon").symbol, "bolt.fill")
        verify(!findChild(permanent, "putBack").visible)
        verify(!findChild(permanent, "restoredLabel").visible)
        let entry = row(window, 1)
        compare(findChild(entry, "historyName").text, "Display server logs")
        compare(findChild(entry, "historyIcon").symbol, "trash")
        verify(!findChild(entry, "restoredLabel").visible)
        compare(findChild(entry, "historyFreed").color, Theme.primary)

        mouseClick(findChild(entry, "putBack"))
        entry = row(window, 1)
        verify(findChild(entry, "restoredLabel").visible)
        verify(!findChild(entry, "putBack").visible)
        compare(findChild(entry, "historyFreed").color, Theme.secondary)
        compare(support.readText(log), text)
        compare(appModel.totalFreedAllTime, total - logsFreed)
        compare(appModel.statusMessage, "Restored Display server logs")
        tryVerify(() => !appModel.isScanning, 10000)
        verify(support.saveScreenshot(window.contentItem, "about-history"))
    }

    function test_clearEmptiesTheListAndKeepsTheAllTimeTotal() {
        seed()
        clean("logs", false)
        const window = open()
        const total = child(window, "allTimeTotal").text
        verify(total !== "Zero KB")
        mouseClick(child(window, "clearHistory"))
        verify(child(window, "noCleanups").visible)
        compare(support.historyNames(appModel), [])
        compare(child(window, "allTimeTotal").text, total)
        // Kept in the store as well: the next start reads the same total and no history.
        const reread = support.reopenedModel(appModel)
        compare(reread.totalFreedAllTime, appModel.totalFreedAllTime)
        compare(support.historyNames(reread), [])
    }

    function test_linksOpenTheTrashAndTheWebsite() {
        support.catchOpenedUrls()
        seed()
        clean("logs", false)
        const window = open()
        mouseClick(child(window, "openTrash"))
        mouseClick(child(window, "website"))
        compare(support.openedUrls(), ["file://" + support.trashFolder() + "/files", "https://mopwell.org"])
    }

    function test_theUpdateWindowSaysWhatACheckFound_data() {
        return [
            { tag: "newer", version: "150", short: "1.5", heading: "Mopwell 1.5 is available", message: "You have version 1.4.", download: true },
            { tag: "equal", version: "140", short: "1.4", heading: "You're up to date", message: "Mopwell 1.4 is the newest version available.", download: false },
            { tag: "malformed", version: "1.5-final", short: "1.5", heading: "Couldn't check for updates", message: "The update information couldn't be read.", download: false },
        ]
    }

    function test_theUpdateWindowSaysWhatACheckFound(data) {
        support.catchOpenedUrls()
        const updater = support.serveUpdates(feed(data.version, data.short))
        const about = open()
        const check = child(about, "checkForUpdates")
        verify(check.enabled)
        mouseClick(check)
        verify(!check.enabled)   // one check at a time
        const window = open(updateComponent)
        compare(window.title, "Software Update")
        tryVerify(() => updater.stateName !== "checking", 5000)
        verify(check.enabled)
        compare(child(window, "updateHeading").text, data.heading)
        compare(child(window, "updateMessage").text, data.message)
        compare(child(window, "download").visible, data.download)
        compare(child(window, "releaseNotes").visible, data.download)
        compare(child(window, "dismissUpdate").text, data.download ? "Later" : "OK")
        verify(support.saveScreenshot(window.contentItem, "about-update-" + data.tag))
        if (data.download) {
            mouseClick(child(window, "releaseNotes"))
            mouseClick(child(window, "download"))
            compare(support.openedUrls(), ["https://mopwell.org/notes/1.5", "https://mopwell.org/download/Mopwell-1.5.tar.gz"])
            tryCompare(window, "visible", false)
        }
    }

    function test_aDevelopmentBuildCannotCheck() {
        const window = open()
        verify(!child(window, "checkForUpdates").enabled)
    }
}
