import QtQuick
import QtTest

// What the window tests share: opening a window as the shell would, finding its parts by name,
// and the menu entries, list rows and Trash they look at.
TestCase {
    when: windowShown

    // A window of `component` made with `properties`, shown and holding the focus.
    function openWindow(component, properties) {
        const window = createTemporaryObject(component, null, properties)
        verify(window !== null)
        window.show()
        window.requestActivate()
        tryCompare(window, "active", true)
        return window
    }

    // A window of `component` made with `properties`, shown and drawn once.
    function showWindow(component, properties) {
        const window = createTemporaryObject(component, null, properties)
        verify(window !== null)
        window.show()
        waitForRendering(window.contentItem)
        return window
    }

    // The item called `name` inside `parent`: a window's content, a dialog's or any item's.
    function child(parent, name) {
        const found = findChild(parent.contentItem !== undefined && parent.title !== undefined ? parent.contentItem : parent, name)
        verify(found !== null, "no item named " + name)
        return found
    }

    function menuItem(menu, name) {
        for (let i = 0; i < menu.count; ++i) {
            if (menu.itemAt(i).objectName === name)
                return menu.itemAt(i)
        }
        fail("no menu item " + name)
    }

    // The delegate at `index` of a list, once the list has made it.
    function rowOf(list, index) {
        tryVerify(() => list.itemAtIndex(index) !== null)
        return list.itemAtIndex(index)
    }

    function trashedCount() {
        return support.countEntries(support.trashFolder() + "/files")
    }
}
