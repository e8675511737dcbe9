import QtQuick
import QtTest
import Mopwell
import ".."

ViewTestCase {
    id: testCase
    name: "AppUpdatesView"

    Component { id: windowComponent; AppUpdatesView {} }

    property var appModel: null

    // What `brew outdated --greedy --json=v2` prints.
    function outdatedJson(extraFormula) {
        const formulae = [
            { name: "openssl@3", installed_versions: ["3.1.0", "3.1.1"], current_version: "3.1.2" },
            { name: "node", installed_versions: ["20.8.0"], current_version: "21.1.0" }
        ]
        if (extraFormula)
            formulae.push({ name: extraFormula, installed_versions: ["1"], current_version: "2" })
        return JSON.stringify({
            formulae: formulae,
            casks: [ { name: "Firefox", installed_versions: "118.0.1", current_version: "119.0" } ]
        })
    }

    // Homebrew whose list empties once everything has been upgraded.
    function installBrew(extraFormula) {
        support.installTool("brew", 'case "$1" in\n'
            + '  outdated) if [ -e "$0.done" ]; then echo "{}"; else cat <<\'END\'\n' + outdatedJson(extraFormula) + '\nEND\n  fi ;;\n'
            + '  upgrade) if [ "$2" = --greedy ]; then touch "$0.done"; fi ;;\n'
            + 'esac')
    }

    function open() {
        return showWindow(windowComponent, { model: testCase.appModel })
    }

    function row(window, index) {
        return rowOf(child(window, "packageList"), index)
    }

    function init() {
        support.clearTools()
        appModel = support.freshModel()
    }

    function cleanup() {
        support.clearTools()
    }

    function test_listsOutdatedPackagesWithTheirVersions() {
        installBrew()
        const window = open()
        tryCompare(window.updates, "stateName", "ready")
        compare(child(window, "packageList").count, 3)
        compare(row(window, 0).name, "Firefox")
        compare(row(window, 1).name, "node")
        compare(row(window, 0).symbol, "app.dashed")
        compare(findChild(row(window, 0), "packageVersions").text, "118.0.1 → 119.0")
        compare(row(window, 2).name, "openssl@3")
        compare(row(window, 2).symbol, "terminal")
        compare(findChild(row(window, 2), "packageVersions").text, "3.1.1 → 3.1.2")
        verify(child(window, "updateAll").enabled)
        compare(support.toolCalls("brew"), ["[outdated][--greedy][--json=v2]"])
        waitForRendering(window.contentItem)
        verify(support.saveScreenshot(window.contentItem, "updates-list"))
    }

    function test_updatingOnePackagePassesItsNameAsOneWord() {
        installBrew("x; touch $HOME/owned")
        const window = open()
        tryCompare(window.updates, "stateName", "ready")
        const row2 = row(window, 3)
        compare(row2.name, "x; touch $HOME/owned")
        mouseClick(findChild(row2, "update"))
        compare(child(window, "status").text, "Updating x; touch $HOME/owned…")
        verify(!child(window, "recheck").enabled)
        tryCompare(window.updates, "busy", false, 10000)
        compare(child(window, "status").text, "Updated x; touch $HOME/owned.")
        compare(support.toolCalls("brew")[1], "[upgrade][x; touch $HOME/owned]")
        verify(!support.exists("owned"))
    }

    function test_updateAllRunsEverythingAndSaysDone() {
        installBrew()
        const window = open()
        tryCompare(window.updates, "stateName", "ready")
        mouseClick(child(window, "updateAll"))
        compare(child(window, "status").text, "Updating everything…")
        tryCompare(window.updates, "busy", false, 10000)
        compare(child(window, "status").text, "Done.")
        verify(support.toolCalls("brew").indexOf("[upgrade][--greedy]") >= 0)
        const upToDate = child(window, "upToDateState")
        verify(upToDate.visible)
        compare(findChild(upToDate, "emptyStateTitle").text, "Everything's up to date")
        // Without a message or buttons, none takes room under the title.
        verify(!findChild(upToDate, "emptyStateMessage").visible && !findChild(upToDate, "emptyStateActions").visible)
        verify(!child(window, "updateAll").enabled)
    }

    function test_recheckPassesThroughCheckingAndBack() {
        support.installTool("brew", 'sleep 0.3; echo "{}"')
        const window = open()
        tryCompare(window.updates, "stateName", "ready")
        mouseClick(child(window, "recheck"))
        compare(window.updates.stateName, "checking")
        verify(child(window, "checkingView").visible)
        tryCompare(window.updates, "stateName", "ready")
        verify(child(window, "upToDateState").visible)
    }

    function test_flatpakAppsJoinTheList() {
        support.installTool("flatpak", 'case "$1" in\n'
            + "  list) printf 'org.gnome.Maps\\t44.0\\tMaps\\n' ;;\n"
            + "  remote-ls) printf 'org.gnome.Maps\\t45.1\\n' ;;\n"
            + 'esac')
        const window = open()
        tryCompare(window.updates, "stateName", "ready")
        compare(child(window, "packageList").count, 1)
        compare(row(window, 0).name, "Maps")
        compare(row(window, 0).symbol, "app.dashed")
        compare(findChild(row(window, 0), "packageVersions").text, "44.0 → 45.1")
        verify(child(window, "headerText").text.indexOf(">flatpak update</font>") >= 0)
        mouseClick(findChild(row(window, 0), "update"))
        tryCompare(window.updates, "busy", false, 10000)
        verify(support.toolCalls("flatpak").indexOf("[update][--user][-y][--noninteractive][org.gnome.Maps]") >= 0)
    }

    function test_withoutAPackageManagerTheWindowSaysWhereToGetOne() {
        const window = open()
        tryCompare(window.updates, "stateName", "unavailable")
        const state = child(window, "unavailableState")
        verify(state.visible)
        compare(findChild(state, "emptyStateTitle").text, window.updates.unavailableTitle)
        verify(findChild(state, "installLink").text.indexOf("https://brew.sh") >= 0)
        verify(!child(window, "updateAll").enabled)
        waitForRendering(window.contentItem)
        verify(support.saveScreenshot(window.contentItem, "updates-unavailable"))
    }
}
