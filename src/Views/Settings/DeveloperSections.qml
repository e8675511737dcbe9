import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The developer-mode switch and, while it is on, the sections for build folders: how old they
// must be, which projects are never touched, and where projects live. Turning the mode off hides
// them and keeps their values.
ColumnLayout {
    id: sections

    required property var window
    readonly property AppSettings settings: window.settings
    readonly property SettingsModel settingsModel: window.settingsModel
    readonly property bool developerMode: settings.developerMode

    spacing: 18

    SettingsSection {
        objectName: "developerSection"
        Layout.fillWidth: true
        title: qsTr("Developer mode")
        ToggleSwitch {
            objectName: "developerMode"
            Layout.fillWidth: true
            text: qsTr("Show developer cleanups")
            checked: sections.developerMode
            onToggled: {
                sections.settings.developerMode = checked
                sections.window.refreshTargets()
            }
        }
        SettingsCaption {
            text: DesktopWords.developerModeReveals
        }
        ToggleSwitch {
            objectName: "sortBySize"
            visible: sections.developerMode
            Layout.fillWidth: true
            text: qsTr("Sort cleanups by size (largest first)")
            checked: sections.settings.sortBySize
            onToggled: sections.settings.sortBySize = checked
        }
        SettingsCaption {
            visible: sections.developerMode
            text: qsTr("Tools like Project Cleanup and App & Tool Updates are in the panel's “More” menu.")
        }
    }

    SettingsSection {
        objectName: "buildFolderSection"
        visible: sections.developerMode
        Layout.fillWidth: true
        title: qsTr("Build-folder cleanup")
        LabeledRow {
            label: qsTr("Only clean folders older than")
            SettingsStepper {
                objectName: "minimumAgeStepper"
                from: 0
                to: 365
                value: sections.settings.finderMinAgeDays
                textFromValue: v => sections.settingsModel.minimumAgeText(v)
                onValueModified: sections.settingsModel.setFinderMinAgeDays(value)
            }
        }
        SettingsCaption {
            text: qsTr("Skips node_modules / build folders modified more recently — protects projects you're actively working on.")
        }
    }

    FolderListSection {
        objectName: "pinnedSection"
        visible: sections.developerMode
        Layout.fillWidth: true
        title: qsTr("Never touch these (pinned)")
        paths: sections.settings.ignoredFinderPaths
        icon: "pin.fill"
        emptyText: qsTr("No pinned folders. Pin a project to keep its build folders off the cleanup list.")
        addTitle: qsTr("Pin Folder…")
        onAddRequested: sections.window.chooseFolder(addTitle, url => sections.settingsModel.addPinnedFolder(url))
        onRemoveRequested: path => sections.settingsModel.removePinnedFolder(path)
    }

    FolderListSection {
        objectName: "projectFoldersSection"
        visible: sections.developerMode
        Layout.fillWidth: true
        title: qsTr("Project folders to scan")
        footer: qsTr("Where your code lives. Mopwell looks <i>inside</i> these for regenerable build output (node_modules, .next, target, …) to offer up in Project Cleanup. The folders themselves are never removed — only the build artifacts found within them.")
        paths: sections.settings.projectRoots
        icon: "folder.badge.gearshape"
        emptyText: qsTr("No project folders — add the folders where your code lives.")
        addTitle: qsTr("Add Project Folder…")
        onAddRequested: sections.window.chooseFolder(addTitle, url => sections.settingsModel.addProjectFolder(url))
        onRemoveRequested: path => sections.settingsModel.removeProjectFolder(path)
    }
}
