import QtQuick
import QtTest
import Mopwell
import ".."

ViewTestCase {
    id: testCase
    name: "SnapshotsView"

    Component { id: windowComponent; SnapshotsView {} }

    property var appModel: null

    // Snapper with one configuration and `count` snapshots of it, newest last. Its delete
    // leaves only the newest behind.
    function installSnapper(count) {
        let entries = '{"number": 0, "date": "", "description": "current"}'
        for (let n = 1; n <= count; ++n)
            entries += ', {"number": ' + (n * 2) + ', "date": "2024-0' + n + '-15 09:30:00", "description": "timeline", "used-space": 2500000000}'
        const newest = '{"number": ' + (count * 2) + ', "date": "2024-0' + count + '-15 09:30:00", "description": "timeline", "used-space": 2500000000}'
        support.installTool("snapper", 'case "$*" in\n'
            + '  *list-configs*) echo \'{"configs": [{"config": "root", "subvolume": "/"}]}\' ;;\n'
            + '  *delete*) touch "$0.deleted" ;;\n'
            + '  *list*) if [ -e "$0.deleted" ]; then echo \'{"root": [' + newest + ']}\'; '
            + 'else echo \'{"root": [' + entries + ']}\'; fi ;;\n'
            + 'esac')
    }

    function open() {
        const window = showWindow(windowComponent, { model: testCase.appModel })   // the listing starts once shown
        tryCompare(window.snapshots, "isLoading", false)
        return window
    }

    function row(window, index) {
        return rowOf(child(window, "snapshotList"), index)
    }

    // A fresh home first: the stubs' profile files go into it.
    function init() {
        support.clearTools()
        appModel = support.freshModel()
    }

    function cleanup() {
        support.clearTools()
    }

    function test_theNewestIsKeptAndTheRestWillBeRemoved() {
        installSnapper(3)
        const window = open()
        compare(child(window, "snapshotList").count, 3)
        compare(child(window, "snapshotCount").text, "3 local snapshots")
        const reclaimable = child(window, "reclaimable")
        verify(reclaimable.visible)
        compare(reclaimable.text, "≈ <b>7.5 GB</b> reclaimable")

        const newest = row(window, 0)
        compare(newest.name, "root #6 — timeline")
        verify(newest.displayDate.indexOf("2024") >= 0)
        verify(findChild(newest, "keptBadge").visible)
        verify(!findChild(newest, "willRemove").visible)
        compare(newest.opacity, 0.6)
        verify(findChild(row(window, 2), "willRemove").visible)

        const button = child(window, "reclaim")
        compare(button.text, "Free Up Space (2)")
        verify(button.enabled)
        mouseMove(window.contentItem, 10, 300)   // no help text over the picture
        waitForRendering(window.contentItem)
        verify(support.saveScreenshot(window.contentItem, "snapshots-list"))

        mouseClick(child(window, "keepNewest"))
        compare(button.text, "Free Up Space (3)")
        verify(!findChild(row(window, 0), "keptBadge").visible)
        compare(row(window, 0).opacity, 1)
    }

    function test_freeingUpAsksForRightsOnceAndShowsWhatIsLeft() {
        installSnapper(3)
        support.installTool("pkexec", 'exec "$@"')
        const window = open()
        mouseClick(child(window, "reclaim"))
        tryCompare(window.snapshots, "isWorking", false, 10000)
        compare(support.toolCalls("pkexec"), ["[/bin/sh][-c][snapper -c root delete --sync 4 2]"])
        const status = child(window, "statusMessage")
        verify(status.visible)
        verify(status.text === DesktopWords.snapshotsRemovedLater || status.text.startsWith("Reclaimed "), status.text)
        compare(child(window, "snapshotList").count, 1)
        // The one left is the newest, kept: nothing to remove unless it may go too.
        const button = child(window, "reclaim")
        compare(button.text, "Free Up Space")
        verify(!button.enabled)
        verify(findChild(row(window, 0), "keptBadge").visible)
        mouseClick(child(window, "keepNewest"))
        compare(button.text, "Free Up Space (1)")
        verify(button.enabled)
    }

    function test_aDismissedPasswordDialogRemovesNothing() {
        installSnapper(3)
        support.installTool("pkexec", "exit 126")
        const window = open()
        mouseClick(child(window, "reclaim"))
        tryCompare(window.snapshots, "isWorking", false, 10000)
        compare(child(window, "statusMessage").text, "Cancelled — nothing was removed.")
        compare(child(window, "snapshotList").count, 3)
        verify(support.toolCalls("snapper").every(call => call.indexOf("[delete]") < 0))
    }

    function test_withoutASnapshotToolTheWindowIsEmpty() {
        const window = open()
        const empty = child(window, "emptyState")
        verify(empty.visible)
        compare(findChild(empty, "emptyStateTitle").text, "No local snapshots")
        compare(findChild(empty, "emptyStateMessage").text, "There's nothing to reclaim right now.")
        verify(!child(window, "summary").visible)
        verify(!child(window, "reclaim").enabled)
        waitForRendering(window.contentItem)
        verify(support.saveScreenshot(window.contentItem, "snapshots-empty"))
    }
}
