import QtQuick
import QtQuick.Controls
import QtTest
import Mopwell

// TestCase itself is never shown, so the components under test live in this item.
Item {
    id: host
    width: 600
    height: 400

    TestCase {
        id: testCase
        name: "Components"
        when: windowShown

        Component {
            id: emptyStateComponent
            EmptyState {
                width: 600
                height: 400
                icon: "checkmark.circle"
                title: "Nothing to clean"
            }
        }
        Component {
            id: emptyStateWithAction
            EmptyState {
                width: 600
                height: 400
                icon: "checkmark.circle"
                title: "No projects yet"
                message: "Choose a folder that holds your code, and build folders inside it show up here."
                Button { objectName: "chooseFolder"; text: "Choose Folder…" }
            }
        }
        Component {
            id: rowComponent
            SelectableRow {
                id: selectable
                width: 400
                title: "DerivedData"
                property int toggles: 0
                property int reveals: 0
                onToggle: toggles += 1
                ToolButton { objectName: "reveal"; text: "Reveal"; onClicked: selectable.reveals += 1 }
            }
        }
        Component {
            id: sizeComponent
            SizeText { font.family: "Cantarell"; font.pixelSize: 12 }
        }
        // The face of GNOME's desktop, whose figures are proportional: a "1" narrower than a "0".
        FontMetrics { id: proportional; font.family: "Cantarell"; font.pixelSize: 12 }
        Component {
            id: centredWindow
            Window {
                x: 0
                y: 0
                width: 200
                height: 100
                WindowCenterer {}
            }
        }

        // Rows and columns lay out their children before the next frame; clicks and sizes need it.
        function create(component, properties) {
            const item = createTemporaryObject(component, host, properties || {})
            verify(item !== null)
            waitForItemPolished(item)
            return item
        }

        function test_emptyStateShowsItsTextsAndActions() {
            const plain = create(emptyStateComponent)
            compare(findChild(plain, "emptyStateTitle").text, "Nothing to clean")
            verify(!findChild(plain, "emptyStateMessage").visible)
            verify(!findChild(plain, "emptyStateActions").visible)

            const full = create(emptyStateWithAction)
            const message = findChild(full, "emptyStateMessage")
            verify(message.visible)
            // The text column stays narrow in a wide space, so the message wraps.
            verify(message.width <= 340)
            verify(message.lineCount > 1)
            const action = findChild(full, "chooseFolder")
            verify(findChild(full, "emptyStateActions").visible)
            // Centred in the space it fills: as much room left of the button as right of it.
            const left = action.mapToItem(full, 0, 0).x
            fuzzyCompare(left, full.width - left - action.width, 1)
        }

        function test_selectableRowAsksItsOwnerToToggle() {
            const row = create(rowComponent)
            const box = findChild(row, "selectableRowBox")
            verify(!findChild(row, "selectableRowSubtitle").visible)
            verify(!findChild(row, "selectableRowSize").visible)
            mouseClick(box)
            compare(row.toggles, 1)
            // The box shows the owner's state, not its own idea of it.
            verify(!box.checked)
            row.isOn = true
            verify(box.checked)
            mouseClick(box)
            compare(row.toggles, 2)
            verify(box.checked)

            // A row that can't be ticked still offers what stands at its end.
            row.boxEnabled = false
            mouseClick(box)
            compare(row.toggles, 2)
            mouseClick(findChild(row, "reveal"))
            compare(row.reveals, 1)
        }

        function test_selectableRowsKeepTheirColumnsWhateverTheSize() {
            const small = create(rowComponent, { subtitle: "~/Library/Developer/Xcode/DerivedData", size: 0 })
            const large = create(rowComponent, { size: 1500000000 })
            verify(findChild(small, "selectableRowSubtitle").visible)
            compare(findChild(small, "selectableRowSize").text, "Zero KB")
            compare(findChild(large, "selectableRowSize").text, "1.5 GB")
            compare(findChild(small, "reveal").mapToItem(small, 0, 0).x, findChild(large, "reveal").mapToItem(large, 0, 0).x)
            compare(findChild(small, "selectableRowTitle").width, findChild(large, "selectableRowTitle").width)
        }

        function test_sizesLineUpDigitUnderDigit() {
            verify(proportional.advanceWidth("1") < proportional.advanceWidth("0"),
                   "the test needs the Cantarell face (fonts-cantarell)")
            const ones = create(sizeComponent, { text: "1.1 GB", holdsWidest: false })
            const eights = create(sizeComponent, { text: "8.8 GB", holdsWidest: false })
            compare(ones.implicitWidth, eights.implicitWidth)
            // In a column, every size takes the room of the widest one the formatter writes.
            const column = [create(sizeComponent, { text: "Zero KB" }), create(sizeComponent, { text: "1 byte" }),
                            create(sizeComponent, { text: "111.11 GB" }), ones, eights]
            ones.holdsWidest = true
            eights.holdsWidest = true
            for (const size of column)
                compare(size.implicitWidth, column[0].implicitWidth, size.text)
            verify(column[0].implicitWidth >= proportional.advanceWidth("Zero KB"))
            compare(ones.Accessible.name, "1.1 GB")
        }

        function test_windowCentererCentresItsWindowWhenShown() {
            const window = createTemporaryObject(centredWindow, null)
            window.show()
            const screen = window.screen
            tryCompare(window, "x", screen.virtualX + (screen.width - 200) / 2)
            compare(window.y, screen.virtualY + (screen.height - 100) / 2)
            // Moved away and shown again: back in the middle.
            window.hide()
            window.x = 5
            window.show()
            tryCompare(window, "x", screen.virtualX + (screen.width - 200) / 2)
        }
    }
}
