import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The third step: how much detail the user wants, and which optional caches to include. Each
// choice is stored at once; the target list follows when the welcome ends.
StaggeredColumn {
    id: step

    required property AppModel model
    readonly property AppSettings settings: model.settings
    readonly property var optionalCaches: OptionalCaches.rows(model)

    spacing: 14

    Label {
        Layout.fillWidth: true
        horizontalAlignment: Text.AlignHCenter
        text: DesktopWords.howDoYouUseThisComputer
        font.pixelSize: 28
        font.weight: Font.Bold
        color: Theme.primary
        wrapMode: Text.WordWrap
    }
    Label {
        Layout.fillWidth: true
        horizontalAlignment: Text.AlignHCenter
        text: qsTr("This just decides how much detail you see — you can switch any time.")
        font: Theme.title3
        color: Theme.secondary
        wrapMode: Text.WordWrap
    }
    RowLayout {
        Layout.fillWidth: true
        spacing: 12
        ChoiceCard {
            objectName: "choiceSimple"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            text: qsTr("Just clean up")
            subtitle: DesktopWords.everydayCachesInOneGo
            symbol: "sparkles"
            selected: !step.settings.developerMode
            onClicked: step.settings.developerMode = false
        }
        ChoiceCard {
            objectName: "choiceDeveloper"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            text: qsTr("I'm a developer")
            subtitle: DesktopWords.developerToolsExamples
            symbol: "chevron.left.forwardslash.chevron.right"
            selected: step.settings.developerMode
            onClicked: step.settings.developerMode = true
        }
    }
    Label {
        objectName: "optionalHeading"
        visible: step.optionalCaches.length > 0
        Layout.topMargin: 6
        text: qsTr("RECLAIM A LITTLE MORE — OPTIONAL")
        font.pixelSize: Theme.caption1.pixelSize
        font.weight: Font.DemiBold
        font.letterSpacing: 0.6
        color: Theme.secondary
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 10
        Repeater {
            model: step.optionalCaches
            delegate: ChipRow {
                id: cacheRow
                required property var modelData
                Layout.fillWidth: true
                symbol: modelData.symbol
                title: modelData.title
                subtitle: modelData.subtitle
                ToggleSwitch {
                    objectName: "onboardingCache_" + cacheRow.modelData.id
                    Accessible.name: cacheRow.modelData.title
                    checked: step.settings[cacheRow.modelData.setting]
                    onToggled: step.settings[cacheRow.modelData.setting] = checked
                }
            }
        }
    }
}
