import QtQuick
import QtQuick.Controls
import Mopwell

// The "Confirm Cleanup" window: shows the clean the model is waiting on and passes the user's
// answer back. It is exactly as large as its content and opens centred. Whenever nothing is
// pending, be it at opening or because the model dropped the request, it closes itself.
Window {
    id: window

    required property AppModel model

    readonly property bool pending: model.hasPendingClean
    readonly property Item sheet: sheetLoader.item

    title: qsTr("Confirm Cleanup")
    color: pending ? Theme.windowBackground : "transparent"
    width: sheet ? sheet.implicitWidth : 1
    height: sheet ? sheet.implicitHeight : 1
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height

    function dismissIfIdle() {
        // Later, not inside the show or the change that got us here.
        if (!pending)
            Qt.callLater(() => { if (!window.pending) window.close() })
    }

    onPendingChanged: dismissIfIdle()
    onVisibleChanged: if (visible) dismissIfIdle()
    // Closing the window by its title bar is a "no" as well.
    onClosing: if (pending) model.cancelPending()

    // First in the content, as the window is sized from its first item's implicit size.
    Loader {
        id: sheetLoader
        anchors.fill: parent
        // A new request while the window is open updates the sheet in place; the sheet, and
        // with it the permanent-delete choice, starts afresh only after nothing was pending.
        active: window.pending
        sourceComponent: ConfirmSheet {
            title: window.model.pendingClean.title ?? ""
            sizeText: window.model.pendingClean.sizeText ?? ""
            whySafe: window.model.pendingClean.whySafe ?? ""
            items: window.model.pendingClean.items ?? []
            allowPermanentDelete: window.model.settings.developerMode
            onCancel: {
                window.model.cancelPending()
                window.close()
            }
            onConfirm: permanently => {
                window.model.confirmPending(permanently)
                window.close()
            }
        }
    }

    WindowCenterer {}
}
