import QtQuick
import QtTest
import Mopwell
import ".."
import "../LinuxHome.js" as LinuxHome

ViewTestCase {
    id: testCase
    name: "ConfirmWindowView"

    Component { id: windowComponent; ConfirmWindowView {} }
    Component {
        id: sheetWindowComponent
        Window {
            property alias sheet: sheet
            width: 380
            height: sheet.implicitHeight
            ConfirmSheet { id: sheet; anchors.fill: parent }
        }
    }

    // A model waiting to clean the logs folder, which holds one file.
    function modelWithPendingLogs(knownSize) {
        const model = support.freshModel()
        support.writeFile(".local/share/xorg/Xorg.0.log.old", 5000)
        support.setSize(model, "logs", knownSize)
        model.requestCleanOf("logs")
        verify(model.hasPendingClean)
        return model
    }

    function open(model) {
        return openWindow(windowComponent, { model: model })
    }

    // The sheet alone, as a tool window would show it.
    function showSheet(properties) {
        const window = createTemporaryObject(sheetWindowComponent, null, {})
        for (const key in properties)
            window.sheet[key] = properties[key]
        window.show()
        waitForRendering(window.contentItem)
        return window
    }

    function test_aSingleTargetShowsWhatGoesAndWhy_data() {
        return [{ tag: "measured", size: 5000, picture: "confirm-single" },
                { tag: "size unknown", size: -1, picture: "confirm-nosize" }]
    }

    function test_aSingleTargetShowsWhatGoesAndWhy(data) {
        const window = open(modelWithPendingLogs(data.size))
        compare(window.title, "Confirm Cleanup")
        compare(child(window, "confirmTitle").text, "Clean Display server logs")
        compare(child(window, "confirmSize").visible, data.size >= 0)
        if (data.size >= 0)
            compare(child(window, "confirmSize").text, "Frees about 5 KB. This data regenerates automatically.")
        compare(child(window, "confirmWhySafeText").text,
                "Old diagnostic logs. Apps write fresh ones as needed — nothing you use is lost.")
        compare(child(window, "confirmCount").text, "1 item")
        const row = child(window, "confirmList").itemAtIndex(0)
        compare(findChild(row, "confirmItemLabel").text, support.home + "/.local/share/xorg")
        verify(!findChild(row, "confirmItemSize").visible)
        // Developer mode is off: no way around the Trash.
        verify(!child(window, "confirmPermanent").visible)
        compare(child(window, "confirmButton").text, "Clean")
        // The window is the sheet's size (that it can't be resized, WindowRegistryTest says).
        compare(window.height, window.sheet.implicitHeight)
        verify(window.height > 150)
        verify(support.saveScreenshot(window.contentItem, data.picture))
    }

    function test_listHeight_data() {
        return [
            { tag: "one", count: 1, height: 37, text: "1 item" },
            { tag: "five", count: 5, height: 169, text: "5 items" },
            { tag: "six stops at the cap", count: 6, height: 200, text: "6 items" },
            { tag: "forty scroll", count: 40, height: 200, text: "40 items" },
        ]
    }

    function test_listHeight(data) {
        const items = []
        for (let i = 0; i < data.count; ++i)
            items.push({ label: "/tmp/item" + i, size: i % 2 ? 1500000 : -1 })
        const window = showSheet({ items: items })
        const list = findChild(window.sheet, "confirmList")
        compare(list.height, data.height)
        compare(findChild(window.sheet, "confirmCount").text, data.text)
        // Every item is listed, however many.
        compare(list.count, data.count)
        list.positionViewAtEnd()
        const last = list.itemAtIndex(data.count - 1)
        compare(findChild(last, "confirmItemLabel").text, "/tmp/item" + (data.count - 1))
        compare(findChild(last, "confirmItemSize").visible, (data.count - 1) % 2 === 1)
        if ((data.count - 1) % 2)
            compare(findChild(last, "confirmItemSize").text, "1.5 MB")
    }

    function test_aLongLabelIsCutInTheMiddleAndShownWholeForSelecting() {
        const path = "/home/someone/Library/Developer/Xcode/DerivedData/AVeryLongProjectName-abcdefghijklmnop/Build/Intermediates.noindex"
        const window = showSheet({ items: [{ label: path, size: 1234567890 }, { label: path, size: 0 }] })
        const list = findChild(window.sheet, "confirmList")
        const row = list.itemAtIndex(0)
        const label = findChild(row, "confirmItemLabel")
        verify(label.text.indexOf("…") > 0, label.text)
        verify(path.startsWith(label.text.split("…")[0]))
        verify(path.endsWith(label.text.split("…")[1]))
        compare(findChild(row, "confirmItemSize").text, "1.23 GB")
        // Sizes keep one column: a shorter size leaves the label no more room.
        const other = list.itemAtIndex(1)
        compare(findChild(other, "confirmItemSize").text, "Zero KB")
        compare(findChild(other, "confirmItemLabel").width, label.width)
        compare(findChild(other, "confirmItemLabel").text, label.text)
        mouseClick(label)
        compare(label.text, path)
        label.selectAll()
        compare(label.selectedText, path)
    }

    function test_aSheetWithoutItemsOrReassuranceShowsOnlyTheHeadAndButtons() {
        const window = showSheet({ title: "Build folders" })
        verify(!findChild(window.sheet, "confirmWhySafe").visible)
        verify(!findChild(window.sheet, "confirmSize").visible)
        verify(!findChild(window.sheet, "confirmList").parent.visible)
        verify(window.sheet.implicitHeight < 120)
    }

    function test_developerModeOffersToSkipTheTrashForThisCleanOnly() {
        const model = support.freshModel()
        LinuxHome.seed(support)
        model.settings.developerMode = true
        model.rebuildTargets()
        model.rescan()
        tryVerify(() => !model.isScanning, 10000)
        model.requestCleanAll()
        const window = open(model)
        const count = model.pendingClean.items.length
        verify(count >= 7)
        compare(child(window, "confirmCount").text, count + " items")
        compare(child(window, "confirmList").height, 200)
        compare(child(window, "confirmTitle").text, "Clean all enabled items")

        const box = child(window, "confirmPermanent")
        const button = child(window, "confirmButton")
        verify(box.visible)
        compare(box.text, "Delete permanently (skip the Trash)")
        mouseClick(box)
        compare(button.text, "Delete")
        verify(support.saveScreenshot(window.contentItem, "confirm-all-permanent"))

        mouseClick(button)
        tryCompare(window, "visible", false)
        verify(!model.hasPendingClean)
        tryVerify(() => model.statusMessage.startsWith("Freed"), 10000)
        compare(support.countEntries(support.home + "/.local/share/xorg"), 0)
        // Gone for good, and the Trash setting itself is left as it was.
        compare(trashedCount(), 0)
        verify(model.settings.moveToTrash)
    }

    function test_theChoiceStartsOffForEveryNewConfirmation() {
        const model = modelWithPendingLogs(5000)
        model.settings.developerMode = true
        let window = open(model)
        mouseClick(child(window, "confirmPermanent"))
        compare(child(window, "confirmButton").text, "Delete")
        mouseClick(child(window, "confirmPermanent"))
        compare(child(window, "confirmButton").text, "Clean")
        mouseClick(child(window, "confirmPermanent"))
        mouseClick(child(window, "confirmCancel"))
        tryCompare(window, "visible", false)

        model.requestCleanOf("logs")
        window.show()
        verify(!child(window, "confirmPermanent").checked)
        compare(child(window, "confirmButton").text, "Clean")
    }

    function test_returnOrClickConfirms_data() {
        return [{ tag: "Return key", byKey: true }, { tag: "click", byKey: false }]
    }

    function test_returnOrClickConfirms(data) {
        const model = modelWithPendingLogs(5000)
        const window = open(model)
        if (data.byKey)
            keyClick(Qt.Key_Return)
        else
            mouseClick(child(window, "confirmButton"))
        tryCompare(window, "visible", false)
        verify(!model.hasPendingClean)
        tryVerify(() => model.statusMessage.startsWith("Freed"), 10000)
        compare(support.countEntries(support.home + "/.local/share/xorg"), 0)
        // Without the permanent choice a clean goes to the Trash.
        verify(trashedCount() > 0)
    }

    function test_escapeCancelButtonClosingTheWindowOrTheModelCancels_data() {
        return [{ tag: "Escape" }, { tag: "Cancel button" }, { tag: "title bar close" }, { tag: "the model drops it" }]
    }

    function test_escapeCancelButtonClosingTheWindowOrTheModelCancels(data) {
        const model = modelWithPendingLogs(5000)
        const window = open(model)
        if (data.tag === "Escape")
            keyClick(Qt.Key_Escape)
        else if (data.tag === "Cancel button")
            mouseClick(child(window, "confirmCancel"))
        else if (data.tag === "title bar close")
            window.close()
        else
            model.cancelPending()
        tryCompare(window, "visible", false)
        verify(!model.hasPendingClean)
        wait(50)
        compare(support.countEntries(support.home + "/.local/share/xorg"), 1)
        compare(model.statusMessage, "")
    }

    function test_closesItselfWhenOpenedWithNothingPending() {
        const empty = createTemporaryObject(windowComponent, null, { model: support.freshModel() })
        empty.show()
        tryCompare(empty, "visible", false)
    }

    function test_aNewRequestWhileOpenReplacesWhatIsShown() {
        const model = modelWithPendingLogs(5000)
        const window = open(model)
        model.requestCleanAll()
        compare(child(window, "confirmTitle").text, "Clean all enabled items")
        compare(child(window, "confirmCount").text, model.pendingClean.items.length + " items")
        compare(window.height, window.sheet.implicitHeight)
        verify(window.visible)
    }
}
