import QtQuick
import QtTest
import Mopwell

TestCase {
    id: testCase
    name: "SettingsView"
    when: windowShown

    Component { id: windowComponent; SettingsView {} }
    SignalSpy { id: posts; target: Shell; signalName: "posted" }

    property var appModel: null

    function init() {
        appModel = support.freshModel()
        support.setApplicationIdentifier("")
        support.serveUpdates("")
        posts.clear()
    }

    function open() {
        const window = createTemporaryObject(windowComponent, null, { model: testCase.appModel })
        verify(window !== null)
        window.show()
        waitForRendering(window.contentItem)
        return window
    }

    function child(window, name) {
        const item = findChild(window.contentItem, name)
        verify(item !== null, "no item named " + name)
        return item
    }

    function findAll(item, name) {
        let found = item.objectName === name ? [item] : []
        for (let i = 0; i < item.children.length; ++i)
            found = found.concat(findAll(item.children[i], name))
        return found
    }

    // Scrolls the form so the item is in view, as a user would before clicking it.
    function reveal(window, item) {
        const flick = child(window, "settingsScroll").contentItem
        const y = item.mapToItem(flick.contentItem, 0, 0).y
        flick.contentY = Math.max(0, Math.min(flick.contentHeight - flick.height, y - 60))
        waitForRendering(window.contentItem)
        return item
    }

    function click(window, name) {
        const item = reveal(window, child(window, name))
        mouseClick(item)
        return item
    }

    // The titles of the sections on screen, top to bottom ("" for the one without a title).
    function sectionTitles(window) {
        waitForRendering(window.contentItem)   // laid out again after sections came or went
        const titles = []
        const visit = item => {
            if (item.objectName === "sectionTitle" && item.parent.visible && item.parent.parent.visible)
                titles.push({ y: item.mapToItem(window.contentItem, 0, 0).y, text: item.visible ? item.text : "" })
            for (let i = 0; i < item.children.length; ++i)
                visit(item.children[i])
        }
        visit(window.contentItem)
        titles.sort((a, b) => a.y - b.y)
        return titles.map(title => title.text)
    }

    // Steps a stepper by key presses, as arrow keys on the focused control do.
    function step(window, name, key, times) {
        const stepper = reveal(window, child(window, name))
        stepper.forceActiveFocus()
        for (let i = 0; i < times; ++i)
            keyClick(key)
        return stepper
    }

    // A chooser that picks `relative` below the home; a folder the user picks exists.
    function choose(window, relative) {
        window.chooseFolder = (title, chosen) => chosen("file://" + support.home + "/" + relative)
    }

    function test_twelveSectionsInOrderTheLastThreeOnlyForDevelopers() {
        const window = open()
        compare(window.title, "Mopwell Settings")
        compare(window.width, 360)
        compare(window.height, 460)
        const simple = ["General", "Updates", "Automatic cleanup", "Low-space alert", "", "Cleanup",
                        "Extra system caches", "Custom folders to clean", "Developer mode"]
        compare(sectionTitles(window), simple)
        verify(!child(window, "sortBySize").visible)
        verify(support.saveScreenshot(window.contentItem, "settings-simple"))

        click(window, "developerMode")
        verify(appModel.settings.developerMode)
        compare(sectionTitles(window), simple.concat(["Build-folder cleanup", "Never touch these (pinned)",
                                                      "Project folders to scan"]))
        verify(child(window, "sortBySize").visible)
        reveal(window, child(window, "pinnedSection"))
        verify(support.saveScreenshot(window.contentItem, "settings-developer"))

        // Turning the mode off hides what belongs to it and forgets none of it.
        appModel.settings.finderMinAgeDays = 3
        appModel.settings.sortBySize = true
        click(window, "developerMode")
        compare(sectionTitles(window), simple)
        verify(!child(window, "sortBySize").visible)
        compare(appModel.settings.finderMinAgeDays, 3)
        verify(appModel.settings.sortBySize)
        compare(appModel.settings.projectRoots.length, 2)
    }

    function test_steppersStayInTheirRangeAndWordTheirValue_data() {
        return [
            { tag: "refresh at the top", name: "refreshStepper", setting: "refreshInterval", start: 59, key: Qt.Key_Up, times: 3, end: 60, text: "60 s" },
            { tag: "refresh at the bottom", name: "refreshStepper", setting: "refreshInterval", start: 3, key: Qt.Key_Down, times: 3, end: 2, text: "2 s" },
            { tag: "threshold", name: "thresholdStepper", setting: "lowSpaceThresholdGB", start: 199, key: Qt.Key_Up, times: 2, end: 200, text: "200 GB" },
            { tag: "threshold at the bottom", name: "thresholdStepper", setting: "lowSpaceThresholdGB", start: 2, key: Qt.Key_Down, times: 2, end: 1, text: "1 GB" },
            { tag: "any age", name: "minimumAgeStepper", setting: "finderMinAgeDays", start: 1, key: Qt.Key_Down, times: 1, end: 0, text: "Any age" },
            { tag: "one day", name: "minimumAgeStepper", setting: "finderMinAgeDays", start: 0, key: Qt.Key_Up, times: 1, end: 1, text: "1 day" },
            { tag: "two days", name: "minimumAgeStepper", setting: "finderMinAgeDays", start: 1, key: Qt.Key_Up, times: 1, end: 2, text: "2 days" },
            { tag: "a year at most", name: "minimumAgeStepper", setting: "finderMinAgeDays", start: 364, key: Qt.Key_Up, times: 4, end: 365, text: "365 days" },
        ]
    }

    function test_steppersStayInTheirRangeAndWordTheirValue(data) {
        appModel.settings.developerMode = true
        appModel.settings[data.setting] = data.start
        const window = open()
        const stepper = step(window, data.name, data.key, data.times)
        compare(appModel.settings[data.setting], data.end)
        compare(stepper.value, data.end)
        compare(stepper.displayText, data.text)
    }

    function test_launchAtLogin_data() {
        return [
            { tag: "switched on", obstacle: false },
            { tag: "failing falls back", obstacle: true },
        ]
    }

    function test_launchAtLogin(data) {
        support.setApplicationIdentifier("org.mopwell.Mopwell")
        if (data.obstacle)
            support.writeText(".config/autostart", "a file where the folder belongs")
        const window = open()
        const toggle = child(window, "launchAtLogin")
        verify(toggle.enabled)
        verify(!child(window, "loginUnavailable").visible)
        verify(!toggle.checked)
        mouseClick(toggle)
        const entry = ".config/autostart/org.mopwell.Mopwell.desktop"
        if (data.obstacle) {
            // The error in red under the switch, and the switch back at the real state.
            verify(child(window, "loginError").visible)
            verify(child(window, "loginError").text.startsWith("Couldn't add Mopwell to the programs that start at login: "))
            compare(child(window, "loginError").color, Theme.red)
            verify(!toggle.checked)
            verify(!support.exists(entry))
            return
        }
        verify(toggle.checked)
        verify(!child(window, "loginError").visible)
        verify(support.readText(entry).indexOf("Exec=") > 0)
        mouseClick(toggle)
        verify(!toggle.checked)
        verify(!support.exists(entry))
    }

    function test_withoutAnIdentityLaunchAtLoginIsOff() {
        const window = open()
        verify(!child(window, "launchAtLogin").enabled)
        compare(child(window, "loginUnavailable").text, "Available once Mopwell is installed.")
        verify(child(window, "loginUnavailable").visible)
    }

    function test_aNewScheduleCountsFromNow() {
        support.setNow(1.9e9)
        const window = open()
        compare(child(window, "scheduleCaption").text, "Mopwell only cleans when you ask.")
        const picker = reveal(window, child(window, "schedulePicker"))
        picker.forceActiveFocus()
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Down)
        compare(appModel.settings.cleanupSchedule, "weekly")
        compare(picker.displayText, "Every week")
        compare(appModel.settings.lastAutoCleanup.getTime(), 1.9e12)
        verify(child(window, "scheduleCaption").text.startsWith("Quietly clears recoverable caches & logs to the Trash"))
        support.setNow(-1)
    }

    function test_customFoldersAreCheckedAddedOnceAndRemoved() {
        support.writeFile("Downloads/scratch/old.zip", 4000)
        const window = open()
        verify(child(window, "emptyFolders").visible)
        const section = child(window, "customFoldersSection")
        const add = findChild(section, "addFolder")
        const error = findChild(section, "folderError")

        const cases = [
            ["Downloads/scratch", ""],
            ["Downloads/scratch", "Already added."],
            ["Downloads/nothing-here", "Folder doesn't exist."],
            ["", "That location is protected and can't be cleaned."],
        ]
        for (const [relative, refusal] of cases) {
            choose(window, relative)
            reveal(window, add)
            mouseClick(add)
            compare(error.text, refusal, relative)
            compare(error.visible, refusal.length > 0, relative)
        }
        compare(error.color, Theme.red)
        compare(appModel.settings.customFolders, [support.home + "/Downloads/scratch"])
        reveal(window, error)
        verify(support.saveScreenshot(window.contentItem, "settings-folder-error"))

        // The next folder chosen replaces the message; a success clears it.
        support.writeFile("Scratch/tmp.bin", 10)
        choose(window, "Scratch")
        mouseClick(reveal(window, add))
        verify(!error.visible)
        compare(findAll(section, "folderPath").map(label => label.text),
                [support.home + "/Downloads/scratch", support.home + "/Scratch"])

        mouseClick(reveal(window, findChild(section, "removeFolder")))
        compare(appModel.settings.customFolders, [support.home + "/Scratch"])
    }

    function test_pinnedAndProjectFoldersAreKeptOnceEach_data() {
        return [
            { tag: "pinned", section: "pinnedSection", setting: "ignoredFinderPaths", before: [] },
            { tag: "projects", section: "projectFoldersSection", setting: "projectRoots",
              before: ["src", "dev"] },
        ]
    }

    function test_pinnedAndProjectFoldersAreKeptOnceEach(data) {
        appModel.settings.developerMode = true
        support.writeFile("code/app/package.json", 10)
        const window = open()
        const section = child(window, data.section)
        const before = data.before.map(name => support.home + "/" + name)
        compare(appModel.settings[data.setting], before)
        compare(findChild(section, "emptyFolders").visible, before.length === 0)
        choose(window, "code/app")
        for (let i = 0; i < 2; ++i)
            mouseClick(reveal(window, findChild(section, "addFolder")))
        const after = before.concat([support.home + "/code/app"])
        compare(appModel.settings[data.setting], after)
        // Written through to the store under its key: a new model reads the same.
        const reread = support.reopenedModel(appModel)
        compare(reread.settings[data.setting], after)

        mouseClick(reveal(window, findChild(section, "removeFolder")))
        compare(appModel.settings[data.setting], after.slice(1))
    }

    function test_extraCachesOfferOnlyWhatTheCatalogHas() {
        const window = open()
        const section = child(window, "optionalCachesSection")
        verify(section.visible)
        // This desktop's catalog keeps session state, and has no music or mail caches.
        verify(findChild(section, "optionalCache_savedstate") !== null)
        compare(findChild(section, "optionalCache_musiccache"), null)
        compare(findChild(section, "optionalCache_maildownloads"), null)
        const toggle = click(window, "optionalCache_savedstate")
        verify(appModel.settings.cleanSavedState)
        verify(toggle.checked)
        // The list is rebuilt and measured again.
        tryVerify(() => appModel.isScanning || appModel.lastScan.getTime() > 0, 5000)
    }

    function test_simpleSwitchesAndPickersWriteTheirSettings() {
        const window = open()
        compare(child(window, "trashCaption").text,
                "Recoverable — items go to the Trash. (CLI tools like Homebrew/Docker still delete directly.)")
        click(window, "moveToTrash")
        verify(!appModel.settings.moveToTrash)
        compare(child(window, "trashCaption").text, "Permanent — items are deleted immediately.")

        click(window, "lowSpaceAlerts")
        verify(!appModel.settings.lowSpaceAlertsEnabled)
        verify(child(window, "thresholdStepper").enabled)   // the threshold still marks the status icon

        const picker = reveal(window, child(window, "menuBarDisplayPicker"))
        compare(picker.displayText, "Percentage used")
        picker.forceActiveFocus()
        keyClick(Qt.Key_Down)
        compare(appModel.settings.menuBarDisplay, "free")
        keyClick(Qt.Key_Down)
        compare(appModel.settings.menuBarDisplay, "icon")
        compare(picker.displayText, DesktopWords.statusIconShowsNoText)

        click(window, "showWelcome")
        compare(posts.count, 1)
        compare(posts.signalArguments[0][0], "mopwell.showOnboarding")
    }

    function test_languagesAreNamedInThemselvesAndAskForARelaunch() {
        const window = open()
        const picker = reveal(window, child(window, "languagePicker"))
        compare(picker.options.map(option => option.label), ["System default", "English", "Deutsch", "Français"])
        compare(picker.displayText, "System default")
        verify(!child(window, "relaunchRow").visible)
        picker.forceActiveFocus()
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Down)
        compare(picker.displayText, "Deutsch")
        compare(window.settingsModel.language, "de")
        verify(child(window, "relaunchRow").visible)
        compare(findChild(child(window, "relaunchRow"), "relaunch").text, "Relaunch")
    }

    function test_updatesAreCheckedWhereTheBuildHasAFeed() {
        let window = open()
        verify(child(window, "devBuild").visible)
        compare(child(window, "devBuild").text, "Dev build")
        verify(!child(window, "checkForUpdates").enabled)

        const updater = support.serveUpdates('<rss version="2.0" xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel>'
            + '<item><sparkle:version>140</sparkle:version><link>https://mopwell.org/</link></item></channel></rss>')
        verify(!child(window, "devBuild").visible)
        verify(child(window, "automaticUpdates").checked)
        click(window, "automaticUpdates")
        verify(!updater.automaticallyChecksForUpdates)
        click(window, "checkForUpdates")
        tryCompare(updater, "stateName", "upToDate")
    }

    function test_germanLooksLikeThis() {
        support.setLanguage("de")
        appModel.settings.developerMode = true
        const window = open()
        verify(support.saveScreenshot(window.contentItem, "settings-german"))
        support.setLanguage("")
    }
}
