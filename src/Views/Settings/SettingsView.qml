import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts
import Mopwell

// The "Mopwell Settings" window: every choice on one scrolling form of grouped sections, 360 by
// 460 points. Most controls write a setting straight away; what must follow a change (rebuilding
// the target list, a rescan, restarting the refresh timer) happens right after it. The last three
// sections exist only in developer mode.
Window {
    id: window

    required property AppModel model
    readonly property AppSettings settings: model.settings
    readonly property var updater: Shell.updater
    readonly property alias settingsModel: settingsModel
    readonly property var optionalCaches: OptionalCaches.rows(model)

    // Asks for a folder and hands its URL to `chosen`; nothing happens when the user cancels.
    // Replaceable, so tests choose without a dialog.
    property var chooseFolder: function (title, chosen) {
        folderDialog.title = title
        folderDialog.chosen = chosen
        folderDialog.open()
    }

    // After a choice that changes which targets exist: a new list, measured afresh.
    function refreshTargets() {
        model.rebuildTargets()
        model.rescan()
    }

    title: qsTr("Mopwell Settings")
    width: 360
    height: 460
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    color: Theme.windowBackground

    SettingsModel {
        id: settingsModel
        model: window.model
    }

    // First in the content, as the window is sized from its first item.
    ScrollView {
        id: scroller
        objectName: "settingsScroll"
        anchors.fill: parent
        implicitWidth: 360
        implicitHeight: 460
        contentWidth: availableWidth
        clip: true

        ColumnLayout {
            id: form
            width: scroller.availableWidth
            spacing: 18

            Item { Layout.preferredHeight: 0 }

            GeneralSection {
                Layout.fillWidth: true
                Layout.leftMargin: 16
                Layout.rightMargin: 16
                model: window.model
                settingsModel: settingsModel
            }

            SettingsSection {
                objectName: "updatesSection"
                Layout.fillWidth: true
                Layout.leftMargin: 16
                Layout.rightMargin: 16
                title: qsTr("Updates")
                ToggleSwitch {
                    objectName: "automaticUpdates"
                    Layout.fillWidth: true
                    text: qsTr("Check for updates automatically")
                    checked: window.updater ? window.updater.automaticallyChecksForUpdates : false
                    onToggled: {
                        if (window.updater)
                            window.updater.automaticallyChecksForUpdates = checked
                    }
                }
                RowLayout {
                    spacing: 8
                    Button {
                        objectName: "checkForUpdates"
                        text: qsTr("Check for Updates…")
                        font: Theme.callout
                        enabled: window.updater ? window.updater.canCheckForUpdates : false
                        onClicked: window.updater.checkForUpdates()
                    }
                    SettingsCaption {
                        objectName: "devBuild"
                        visible: window.updater ? !window.updater.isConfigured : false
                        text: window.updater ? window.updater.statusText : ""
                    }
                }
            }

            SettingsSection {
                objectName: "automaticCleanupSection"
                Layout.fillWidth: true
                Layout.leftMargin: 16
                Layout.rightMargin: 16
                title: qsTr("Automatic cleanup")
                LabeledRow {
                    label: qsTr("Clean caches automatically")
                    SettingsPicker {
                        objectName: "schedulePicker"
                        options: [
                            { value: "off", label: qsTr("Off") },
                            { value: "daily", label: qsTr("Every day") },
                            { value: "weekly", label: qsTr("Every week") }
                        ]
                        value: window.settings.cleanupSchedule
                        onPicked: chosen => settingsModel.setCleanupSchedule(chosen)
                    }
                }
                SettingsCaption {
                    objectName: "scheduleCaption"
                    text: window.settings.cleanupSchedule === "off"
                          ? qsTr("Mopwell only cleans when you ask.")
                          : qsTr("Quietly clears recoverable caches & logs to the Trash, then notifies you. Never empties the Trash or touches build folders.")
                }
            }

            SettingsSection {
                objectName: "lowSpaceSection"
                Layout.fillWidth: true
                Layout.leftMargin: 16
                Layout.rightMargin: 16
                title: qsTr("Low-space alert")
                ToggleSwitch {
                    objectName: "lowSpaceAlerts"
                    Layout.fillWidth: true
                    text: qsTr("Notify when low on space")
                    checked: window.settings.lowSpaceAlertsEnabled
                    onToggled: window.settings.lowSpaceAlertsEnabled = checked
                }
                // Stays usable with the alert off: the threshold also marks the status icon.
                LabeledRow {
                    label: qsTr("Threshold")
                    SettingsStepper {
                        objectName: "thresholdStepper"
                        from: 1
                        to: 200
                        value: window.settings.lowSpaceThresholdGB
                        textFromValue: v => qsTr("%1 GB").arg(v)
                        onValueModified: window.settings.lowSpaceThresholdGB = value
                    }
                }
            }

            SettingsSection {
                Layout.fillWidth: true
                Layout.leftMargin: 16
                Layout.rightMargin: 16
                Button {
                    objectName: "showWelcome"
                    text: qsTr("Show welcome screen…")
                    font: Theme.callout
                    onClicked: Shell.post("mopwell.showOnboarding")
                }
            }

            SettingsSection {
                objectName: "cleanupSection"
                Layout.fillWidth: true
                Layout.leftMargin: 16
                Layout.rightMargin: 16
                title: qsTr("Cleanup")
                ToggleSwitch {
                    objectName: "moveToTrash"
                    Layout.fillWidth: true
                    text: qsTr("Move cleaned items to the Trash")
                    checked: window.settings.moveToTrash
                    onToggled: window.settings.moveToTrash = checked
                }
                SettingsCaption {
                    objectName: "trashCaption"
                    text: window.settings.moveToTrash
                          ? qsTr("Recoverable — items go to the Trash. (CLI tools like Homebrew/Docker still delete directly.)")
                          : qsTr("Permanent — items are deleted immediately.")
                }
            }

            SettingsSection {
                objectName: "optionalCachesSection"
                visible: window.optionalCaches.length > 0
                Layout.fillWidth: true
                Layout.leftMargin: 16
                Layout.rightMargin: 16
                title: qsTr("Extra system caches")
                Repeater {
                    model: window.optionalCaches
                    delegate: ColumnLayout {
                        id: cacheRow
                        required property var modelData
                        Layout.fillWidth: true
                        spacing: 2
                        ToggleSwitch {
                            objectName: "optionalCache_" + cacheRow.modelData.id
                            Layout.fillWidth: true
                            text: cacheRow.modelData.title
                            checked: window.settings[cacheRow.modelData.setting]
                            onToggled: {
                                window.settings[cacheRow.modelData.setting] = checked
                                window.refreshTargets()
                            }
                        }
                        SettingsCaption { text: cacheRow.modelData.caption }
                    }
                }
            }

            FolderListSection {
                objectName: "customFoldersSection"
                Layout.fillWidth: true
                Layout.leftMargin: 16
                Layout.rightMargin: 16
                title: qsTr("Custom folders to clean")
                footer: qsTr("Extra folders you want Mopwell to empty when cleaning — e.g. a Downloads or scratch folder. Their contents are removed (to the Trash). Add only folders whose contents you're happy to clear.")
                paths: window.settings.customFolders
                icon: "folder"
                emptyText: qsTr("No custom folders added.")
                addTitle: qsTr("Add Folder…")
                error: settingsModel.folderError
                onAddRequested: window.chooseFolder(addTitle, url => settingsModel.addCustomFolder(url))
                onRemoveRequested: path => settingsModel.removeCustomFolder(path)
            }

            DeveloperSections {
                Layout.fillWidth: true
                Layout.leftMargin: 16
                Layout.rightMargin: 16
                window: window
            }

            Item { Layout.preferredHeight: 0 }
        }
    }

    FolderDialog {
        id: folderDialog
        property var chosen: null
        acceptLabel: qsTr("Add")
        onAccepted: if (chosen) chosen(selectedFolder)
    }

    WindowCenterer {}
}
