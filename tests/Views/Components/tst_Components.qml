import QtQuick
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
            id: rowComponent
            SelectableRow {
                width: 400
                title: "DerivedData"
                property int toggles: 0
                onToggle: toggles += 1
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

        // The box shows the owner's answer, never its own idea: a click the owner ignores changes
        // nothing. (What the rows of a window do with ticks, the large-files test drives.)
        function test_selectableRowAsksItsOwnerToToggle() {
            const row = create(rowComponent)
            const box = findChild(row, "selectableRowBox")
            mouseClick(box)
            compare(row.toggles, 1)
            verify(!box.checked)
            row.isOn = true
            verify(box.checked)
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
