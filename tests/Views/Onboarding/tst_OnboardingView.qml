import QtQuick
import QtTest
import Mopwell
import "../LinuxHome.js" as LinuxHome

TestCase {
    id: testCase
    name: "OnboardingView"
    when: windowShown

    Component {
        id: windowComponent
        Window {
            id: host
            property alias view: loader.item
            property var model
            property bool reduceMotion: false
            width: 1000
            height: 700
            Loader {
                id: loader
                anchors.fill: parent
                active: false
                focus: true   // as in the welcome window: the keys reach the view
                sourceComponent: OnboardingView { model: host.model; reduceMotion: host.reduceMotion }
            }
            function build() { loader.active = true }
        }
    }
    Component {
        id: coachMarkComponent
        Window {
            property alias coachMark: mark
            width: 1000
            height: 200
            color: "#3a3f4b"
            MenuBarCoachMark { id: mark; anchors.fill: parent; reduceMotion: true }
        }
    }

    property var appModel: null

    function init() {
        appModel = support.freshModel()
    }

    function open(reduceMotion) {
        const window = createTemporaryObject(windowComponent, null, { model: testCase.appModel, reduceMotion: reduceMotion })
        verify(window !== null)
        window.build()
        window.show()
        waitForRendering(window.contentItem)
        return window
    }

    function child(window, name) {
        const item = findChild(window.view, name)
        verify(item !== null, "no item named " + name)
        return item
    }

    // Waits for the visible step's short fade to end, as a picture of it should.
    function settle(window) {
        const steps = child(window, "steps")
        tryCompare(steps.children[steps.currentIndex], "progress", 1)
        waitForRendering(window.contentItem)
    }

    // What the visible step shows, by object name, inside the card.
    function visibleChild(window, name) {
        const steps = child(window, "steps")
        return findChild(steps.children[steps.currentIndex], name)
    }

    function test_skippingAtTheStartCompletesTheWelcomeAsFinishingDoes_data() {
        return [
            { tag: "Skip for now", button: "skip", steps: 0 },
            { tag: "Escape", key: Qt.Key_Escape, steps: 0 },
            { tag: "Get Started", button: "getStarted", steps: 3 },
        ]
    }

    function test_skippingAtTheStartCompletesTheWelcomeAsFinishingDoes(data) {
        const window = open(true)
        const finished = createTemporaryObject(signalSpyComponent, testCase, { target: window.view, signalName: "finished" })
        for (let i = 0; i < data.steps; ++i)
            mouseClick(child(window, "continue"))
        if (data.key)
            keyClick(data.key)
        else
            mouseClick(child(window, data.button))
        compare(finished.count, 1)
        verify(appModel.settings.hasCompletedOnboarding)
        // The model is set going: the first scan runs or has run.
        tryVerify(() => !appModel.isScanning && appModel.lastScan.getTime() > 0, 10000)
        // Choices nobody made keep their defaults.
        verify(appModel.settings.moveToTrash)
        verify(!appModel.settings.developerMode)
    }

    Component { id: signalSpyComponent; SignalSpy {} }

    function test_theControlsFollowTheStep() {
        LinuxHome.seed(support)   // something to free on the last step
        const window = open(true)
        const marks = child(window, "progressMarks")
        const expectations = [
            { back: false, skip: true, next: true, start: false },
            { back: true, skip: true, next: true, start: false },
            { back: true, skip: true, next: true, start: false },
            { back: true, skip: false, next: false, start: true },
        ]
        for (let step = 0; step < 4; ++step) {
            const expected = expectations[step]
            compare(window.view.step, step)
            compare(child(window, "back").visible, expected.back, "back on step " + step)
            compare(child(window, "skip").visible, expected.skip, "skip on step " + step)
            compare(child(window, "continue").visible, expected.next, "continue on step " + step)
            compare(child(window, "getStarted").visible, expected.start, "get started on step " + step)
            compare(marks.Accessible.name, "Step " + (step + 1) + " of 4")
            const widths = []
            for (let i = 0; i < marks.children.length; ++i)
                if (marks.children[i].objectName === "progressMark")
                    widths.push(marks.children[i].width)
            compare(widths, [0, 1, 2, 3].map(index => index === step ? 20 : 7))
            if (step === 3)
                tryVerify(() => !appModel.isScanning, 10000)
            settle(window)
            verify(support.saveScreenshot(window.contentItem, "onboarding-" + ["welcome", "safety", "personalize", "ready"][step]))
            if (step < 3)
                keyClick(Qt.Key_Return)   // the default action: Continue
        }
        mouseClick(child(window, "back"))
        compare(window.view.step, 2)
        verify(!appModel.settings.hasCompletedOnboarding)
    }

    function test_choicesAreStoredAsTheyAreMade() {
        const window = open(true)
        mouseClick(child(window, "continue"))
        const trash = visibleChild(window, "onboardingMoveToTrash")
        verify(trash.checked)
        mouseClick(trash)
        verify(!appModel.settings.moveToTrash)

        mouseClick(child(window, "continue"))
        verify(visibleChild(window, "choiceSimple").selected)
        mouseClick(visibleChild(window, "choiceDeveloper"))
        verify(appModel.settings.developerMode)
        verify(visibleChild(window, "choiceDeveloper").selected)
        verify(!visibleChild(window, "choiceSimple").selected)
        // Only the optional caches this desktop's catalog has.
        verify(visibleChild(window, "optionalHeading").visible)
        compare(visibleChild(window, "onboardingCache_musiccache"), null)
        compare(visibleChild(window, "onboardingCache_maildownloads"), null)
        mouseClick(visibleChild(window, "onboardingCache_savedstate"))
        verify(appModel.settings.cleanSavedState)
        verify(!appModel.settings.hasCompletedOnboarding)
    }

    function test_theLastStepScansOnceAndRevealsWhatCanBeFreed() {
        LinuxHome.seed(support)
        const window = open(true)
        for (let i = 0; i < 3; ++i)
            mouseClick(child(window, "continue"))
        const hint = visibleChild(window, "activationHint")
        const hintY = hint.mapToItem(window.contentItem, 0, 0).y
        verify(window.view.didKickScan)
        tryVerify(() => !appModel.isScanning, 10000)
        verify(appModel.totalReclaimable > 0)
        compare(visibleChild(window, "revealNumber").text, Formatter.bytes(appModel.totalReclaimable))
        verify(visibleChild(window, "revealed").visible)
        verify(!visibleChild(window, "sizingUp").visible)
        // The number takes the spinner's place without moving the line below.
        compare(hint.mapToItem(window.contentItem, 0, 0).y, hintY)
        const scanned = appModel.lastScan.getTime()

        // Back and forward again: no second scan, the number shown at once.
        mouseClick(child(window, "back"))
        mouseClick(child(window, "continue"))
        verify(!appModel.isScanning)
        compare(appModel.lastScan.getTime(), scanned)
        compare(visibleChild(window, "revealNumber").text, Formatter.bytes(appModel.totalReclaimable))
    }

    function test_whileScanningTheStepSaysSo() {
        const window = open(true)
        window.view.didKickScan = true   // as if the scan had been started before
        support.setScanning(appModel, "logs")
        window.view.step = 3
        verify(visibleChild(window, "sizingUp").visible)
        verify(!visibleChild(window, "revealed").visible)
        support.setSize(appModel, "logs", 5000)
        appModel.rebuildTargets()   // a new list scans nothing: the scan is over
        verify(!appModel.isScanning)
        compare(visibleChild(window, "revealNumber").text, "5 KB")
        verify(visibleChild(window, "revealed").visible)
    }

    function test_motion_data() {
        return [{ tag: "reduced", reduceMotion: true }, { tag: "full", reduceMotion: false }]
    }

    function test_motion(data) {
        LinuxHome.seed(support)
        const window = open(data.reduceMotion)
        const card = child(window, "onboardingCard")
        // The card is there at once under reduced motion; otherwise it comes in after a moment.
        compare(window.view.cardShown, data.reduceMotion)
        tryCompare(window.view, "cardShown", true, 3000)
        tryCompare(card, "opacity", 1, 3000)

        appModel.rescan()
        tryVerify(() => !appModel.isScanning, 10000)
        window.view.didKickScan = true
        window.view.step = 3
        const number = visibleChild(window, "revealNumber")
        const total = Formatter.bytes(appModel.totalReclaimable)
        if (data.reduceMotion) {
            compare(number.text, total)             // no counting: the number at once
        } else {
            verify(number.text !== total, number.text)  // counting up from zero
            tryCompare(number, "text", total, 3000)
        }
    }

    function test_theCoachMarkFollowsTheIconButStaysOnScreen_data() {
        return [
            { tag: "icon at the far left", iconX: 10, centre: 152 },
            { tag: "icon at the far right", iconX: 995, centre: 848 },
            { tag: "icon in the middle", iconX: 480, centre: 480 },
            { tag: "icon unknown, 120 from the right", iconX: 880, centre: 848 },
        ]
    }

    function test_theCoachMarkFollowsTheIconButStaysOnScreen(data) {
        const window = createTemporaryObject(coachMarkComponent, null, {})
        window.coachMark.iconX = data.iconX
        window.show()
        waitForRendering(window.contentItem)
        const mark = window.coachMark
        compare(mark.bubbleCenterX, data.centre)
        const bubble = findChild(mark, "coachMark")
        compare(bubble.x + bubble.width / 2, data.centre)
        compare(bubble.y + bubble.height / 2, 88)
        compare(findChild(mark, "coachHeading").text, "Mopwell lives up here")
        if (data.iconX === 480)
            verify(support.saveScreenshot(window.contentItem, "onboarding-coachmark"))
        const dismissed = createTemporaryObject(signalSpyComponent, testCase, { target: mark, signalName: "dismissed" })
        mouseClick(findChild(mark, "gotIt"))
        compare(dismissed.count, 1)
    }

    function test_germanLooksLikeThis() {
        support.setLanguage("de")
        const window = open(true)
        mouseClick(child(window, "continue"))
        settle(window)
        verify(support.saveScreenshot(window.contentItem, "onboarding-german"))
        support.setLanguage("")
    }
}
