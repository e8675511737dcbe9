import QtQuick
import QtTest
import Mopwell
import ".."

ViewTestCase {
    id: testCase
    name: "UninstallerView"

    Component { id: windowComponent; UninstallerView {} }

    readonly property string icon: '<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 64 64">' +
        '<rect x="4" y="4" width="56" height="56" rx="14" fill="#f28c28"/>' +
        '<rect x="14" y="22" width="36" height="26" rx="5" fill="#fff"/>' +
        '<circle cx="32" cy="35" r="9" fill="#f28c28"/><circle cx="32" cy="35" r="5" fill="#fff"/></svg>'

    // An AppImage in the home with its menu entry, icon, settings, cache and tray helper.
    function seed() {
        support.writeFile("Applications/PhotoTool.AppImage", 40000)
        support.writeText(".local/share/applications/phototool.desktop",
                          "[Desktop Entry]\nType=Application\nName=PhotoTool\nIcon=phototool\n" +
                          "Exec=$HOME/Applications/PhotoTool.AppImage %U\nStartupWMClass=phototool\n")
        support.writeText(".local/share/icons/hicolor/scalable/apps/phototool.svg", icon)
        support.writeFile(".config/phototool/settings.ini", 3000)
        support.writeFile(".cache/phototool/thumbs.db", 20000)
        support.writeText(".config/autostart/phototool-tray.desktop", "[Desktop Entry]\nType=Application\n")
    }

    function open() {
        const model = support.freshModel()
        seed()
        return openWindow(windowComponent, { model: model })
    }

    function text(window, name) { return child(window, name).text }

    // Through the chooser, as a user picks the app.
    function chooseFromList(window) {
        mouseClick(child(window, "chooseApp"))
        tryCompare(window.appPicker, "opened", true)
        const row = child(window.appPicker.contentItem, "app_PhotoTool")
        compare(child(row, "listedName").text, "PhotoTool")
        compare(child(row, "listedIdentifier").text, "phototool")
        waitForRendering(window.contentItem)
        support.saveScreenshot(window.contentItem, "uninstaller-choose")
        mouseClick(row)
        tryCompare(window.appPicker, "visible", false)
        tryCompare(window.uninstaller, "hasApp", true)
        tryCompare(window.uninstaller, "isScanning", false)
        waitForRendering(window.contentItem)
    }

    function test_emptyWindowSaysWhatItDoesAndOffersTheChooser() {
        const window = open()
        verify(child(window, "emptyArea").visible)
        verify(!child(window, "appArea").visible)
        compare(text(window, "toolHeaderTitle"), "Uninstall an App")
        compare(text(window, "toolHeaderSubtitle"),
                "Remove an app together with its leftover caches, preferences, and support files — all moved to the Trash, so you can undo it.")
        compare(text(window, "chooseApp"), "Choose App…")
        verify(!child(window, "resultMessage").visible)
        waitForRendering(window.contentItem)
        support.saveScreenshot(window.contentItem, "uninstaller-empty")
    }

    function test_choosingAnAppListsItWithEverythingItLeftAllChosen() {
        const window = open()
        chooseFromList(window)
        compare(text(window, "appName"), "PhotoTool")
        compare(text(window, "appIdentifier"), "phototool")
        tryCompare(child(window, "appIcon"), "status", Image.Ready)
        compare(text(window, "foundCount"), "6 found")
        compare(text(window, "selectedCount"), "6 selected")
        compare(text(window, "selectAll"), "Deselect All")
        const labels = window.uninstaller.items.map(item => item.label)
        compare(labels, ["Application", "Menu entry", "Preferences", "App cache", "Icon", "Launch agent"])
        compare(window.uninstaller.items[0].path, "~/Applications/PhotoTool.AppImage")
        verify(child(window, "moveToTrash").enabled)
        support.saveScreenshot(window.contentItem, "uninstaller-app")

        // Select All switches between everything and nothing.
        mouseClick(child(window, "selectAll"))
        compare(text(window, "selectedCount"), "0 selected")
        compare(text(window, "selectedSize"), "Zero KB")
        compare(text(window, "selectAll"), "Select All")
        verify(!child(window, "moveToTrash").enabled)
        mouseClick(child(window, "selectAll"))
        compare(text(window, "selectedCount"), "6 selected")

        mouseClick(child(window, "chooseDifferent"))
        verify(child(window, "emptyArea").visible)
        compare(window.uninstaller.itemCount, 0)
    }

    function test_movingTheChosenItemsToTheTrashRecordsThemAndTheyCanBePutBack() {
        const window = open()
        const model = window.model
        chooseFromList(window)
        const cacheRow = child(window, "itemRow_App cache")
        mouseClick(child(cacheRow, "itemBox"))
        compare(text(window, "selectedCount"), "5 selected")
        compare(text(window, "selectAll"), "Select All")

        mouseClick(child(window, "moveToTrash"))
        tryCompare(window.uninstaller, "hasApp", false)
        verify(child(window, "emptyArea").visible)
        const message = child(window, "resultMessage")
        verify(message.visible)
        verify(/^Removed PhotoTool — freed .+\. Items are in the Trash\.$/.test(message.text), message.text)
        verify(!support.exists("Applications/PhotoTool.AppImage"))
        verify(!support.exists(".config/phototool"))
        verify(support.exists(".cache/phototool/thumbs.db"))
        compare(support.historyNames(model)[0], "Uninstalled PhotoTool")
        waitForRendering(window.contentItem)
        support.saveScreenshot(window.contentItem, "uninstaller-result")

        support.restoreNewest(model)
        verify(support.exists("Applications/PhotoTool.AppImage"))
        verify(support.exists(".config/phototool/settings.ini"))
        verify(support.exists(".local/share/applications/phototool.desktop"))
        compare(model.statusMessage, "Restored Uninstalled PhotoTool")
    }

    function test_aResultGoesAfterItsTimeButNeverTakesANewerMessageWithIt() {
        const window = open()
        window.uninstaller.messageLifetime = 400
        chooseFromList(window)
        mouseClick(child(window, "moveToTrash"))
        tryVerify(() => text(window, "resultMessage").startsWith("Removed PhotoTool"))
        // A refusal replaces the result before the result's time is up, and outlives it.
        window.uninstaller.load("/usr/bin/env")
        const refusal = text(window, "resultMessage")
        verify(refusal.indexOf("software centre") >= 0, refusal)
        wait(700)
        compare(text(window, "resultMessage"), refusal)
        verify(!window.uninstaller.hasApp)

        seed()
        chooseFromList(window)
        mouseClick(child(window, "moveToTrash"))
        tryVerify(() => text(window, "resultMessage").startsWith("Removed PhotoTool"))
        tryCompare(child(window, "resultMessage"), "visible", false, 3000)
    }
}
