import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The settings' first section: starting at login, how often the figures refresh, what the status
// icon shows, and the language.
SettingsSection {
    id: section

    required property AppModel model
    required property SettingsModel settingsModel
    readonly property AppSettings settings: model.settings

    objectName: "generalSection"
    title: qsTr("General")

    ToggleSwitch {
        objectName: "launchAtLogin"
        Layout.fillWidth: true
        text: qsTr("Launch at login")
        enabled: section.settingsModel.loginAvailable
        checked: section.settingsModel.loginAtStart
        // The model decides: after a failure the switch shows the state the entry is really in.
        onToggled: {
            section.settingsModel.loginAtStart = checked
            checked = Qt.binding(() => section.settingsModel.loginAtStart)
        }
    }
    SettingsCaption {
        objectName: "loginUnavailable"
        visible: !section.settingsModel.loginAvailable
        text: qsTr("Available once Mopwell is installed.")
    }
    SettingsCaption {
        objectName: "loginError"
        visible: section.settingsModel.loginError.length > 0
        error: true
        text: section.settingsModel.loginError
    }
    LabeledRow {
        label: qsTr("Refresh every")
        SettingsStepper {
            objectName: "refreshStepper"
            from: 2
            to: 60
            value: section.settings.refreshInterval
            textFromValue: v => qsTr("%1 s").arg(v)
            onValueModified: section.settingsModel.setRefreshInterval(value)
        }
    }
    LabeledRow {
        label: DesktopWords.statusIconShows
        SettingsPicker {
            objectName: "menuBarDisplayPicker"
            options: [
                { value: "percent", label: qsTr("Percentage used") },
                { value: "free", label: qsTr("Free space") },
                { value: "icon", label: DesktopWords.statusIconShowsNoText }
            ]
            value: section.settings.menuBarDisplay
            onPicked: chosen => section.settings.menuBarDisplay = chosen
        }
    }
    LabeledRow {
        label: qsTr("Language")
        SettingsPicker {
            objectName: "languagePicker"
            options: section.settingsModel.languages.map(language => ({ value: language.code, label: language.name }))
            value: section.settingsModel.language
            onPicked: chosen => section.settingsModel.setLanguage(chosen)
        }
    }
    RowLayout {
        objectName: "relaunchRow"
        visible: section.settingsModel.relaunchNeeded
        spacing: 8
        SettingsCaption { text: qsTr("Relaunch to apply the new language.") }
        Button {
            objectName: "relaunch"
            text: qsTr("Relaunch")
            font: Theme.caption1
            onClicked: section.settingsModel.relaunch()
        }
    }
}
