import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The first-run welcome: four steps on a card over a slowly moving background. It explains what
// Mopwell does and never does, takes the user's first choices, starts the first scan and shows
// what can be freed. "Get Started" and "Skip for now" end it the same way, with the choices made
// so far and the defaults for the rest; the shell then closes it and points at the status icon.
Item {
    id: view

    required property AppModel model
    readonly property AppSettings settings: model.settings
    property bool reduceMotion: Accessibility.reduceMotion

    readonly property int lastStep: 3
    property int step: 0
    property int heroPulse: 0
    property bool didKickScan: false
    property bool cardShown: false
    property real revealValue: 0

    // The welcome is done; the shell closes it and shows the coach mark.
    signal finished()

    function finish() {
        settings.hasCompletedOnboarding = true
        model.rebuildTargets()
        finished()
        model.start()
    }

    function goTo(next) {
        step = Math.max(0, Math.min(lastStep, next))
    }

    // Reaching the last step starts the first scan once, and shows what is known when no scan
    // runs; a scan that ends while the step is up reveals its result.
    function arriveAtActivation() {
        if (!didKickScan) {
            didKickScan = true
            model.rebuildTargets()
            model.start()
        }
        if (!model.isScanning)
            reveal()
    }

    function reveal() {
        revealValue = model.totalReclaimable
    }

    onStepChanged: {
        heroPulse += 1
        if (step === lastStep)
            arriveAtActivation()
    }

    readonly property bool scanning: model.isScanning
    onScanningChanged: if (!scanning && step === lastStep) reveal()

    Component.onCompleted: {
        if (reduceMotion)
            cardShown = true
        else
            cardDelay.start()
    }

    Timer {
        id: cardDelay
        interval: 900
        onTriggered: view.cardShown = true
    }

    Keys.onReturnPressed: step === lastStep ? finish() : goTo(step + 1)
    Keys.onEnterPressed: step === lastStep ? finish() : goTo(step + 1)
    Keys.onEscapePressed: if (step < lastStep) finish()
    focus: true

    AuroraBackground {
        anchors.fill: parent
        still: view.reduceMotion
    }
    GrainOverlay {
        anchors.fill: parent
    }

    Rectangle {
        id: card
        objectName: "onboardingCard"
        anchors.centerIn: parent
        anchors.verticalCenterOffset: view.cardShown || view.reduceMotion ? 0 : 24
        width: 560
        height: 560
        radius: 22
        color: Theme.windowBackground
        border.color: Theme.separator
        opacity: view.cardShown ? 1 : 0
        scale: view.cardShown || view.reduceMotion ? 1 : 0.96
        Behavior on opacity { enabled: !view.reduceMotion; NumberAnimation { duration: 600; easing.type: Easing.OutCubic } }
        Behavior on scale { enabled: !view.reduceMotion; NumberAnimation { duration: 700; easing.type: Easing.OutCubic } }
        Behavior on anchors.verticalCenterOffset { enabled: !view.reduceMotion; NumberAnimation { duration: 700; easing.type: Easing.OutCubic } }

        StackLayout {
            id: steps
            objectName: "steps"
            anchors.fill: parent
            anchors.margins: 36
            anchors.bottomMargin: 84
            currentIndex: view.step

            WelcomeStep { pulse: view.heroPulse; still: view.reduceMotion }
            SafetyStep { settings: view.settings; pulse: view.heroPulse; still: view.reduceMotion }
            PersonalizeStep { model: view.model; pulse: view.heroPulse; still: view.reduceMotion }
            ActivationStep {
                model: view.model
                pulse: view.heroPulse
                still: view.reduceMotion
                revealValue: view.revealValue
            }
        }

        RowLayout {
            objectName: "controls"
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.margins: 24
            spacing: 12

            ToolButton {
                objectName: "back"
                visible: view.step >= 1
                implicitWidth: 30
                implicitHeight: 30
                contentItem: SymbolIcon { implicitWidth: 14; implicitHeight: 14; symbol: "chevron.left"; color: Theme.primary }
                Accessible.name: qsTr("Back")
                ToolTip.visible: hovered
                ToolTip.text: qsTr("Back")
                onClicked: view.goTo(view.step - 1)
            }
            ProgressMarks {
                objectName: "progressMarks"
                step: view.step
                lastStep: view.lastStep
                still: view.reduceMotion
            }
            Item { Layout.fillWidth: true }
            Button {
                objectName: "skip"
                visible: view.step < view.lastStep
                text: qsTr("Skip for now")
                flat: true
                onClicked: view.finish()
            }
            ProminentButton {
                objectName: "continue"
                visible: view.step < view.lastStep
                text: qsTr("Continue")
                onClicked: view.goTo(view.step + 1)
            }
            ProminentButton {
                objectName: "getStarted"
                visible: view.step === view.lastStep
                text: qsTr("Get Started")
                onClicked: view.finish()
            }
        }
    }
}
