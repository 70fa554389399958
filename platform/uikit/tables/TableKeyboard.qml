// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
import QtQuick
import UIKit

/// Has the keyboard for the rows of a table: the current one moves by arrow, page, Home and End, and
/// is chosen by Return and Space. One that is higher than the table is read to its end first.
FocusGroup {
    id: root

    required property UITableView control
    required property ListView list

    readonly property bool tall: (list.currentItem?.height ?? 0) > list.height

    /// The next row that way that is not known to have nothing to say; -1 for none.
    function beside(entry: int, step: int): int {
        const next = control.entries.adjacentRow(entry, step)
        const drawn = list.itemAtIndex(next) as TableEntryView
        return drawn && !accessibleItem(drawn) ? beside(next, step) : next
    }
    function topEntry(): int {
        return list.indexAt(0, Math.max(list.originY, list.contentY))
    }
    /// What a row is to screen readers: itself, or else its first control; null for neither.
    function accessibleItem(entry: TableEntryView): Item {
        return entry?.cell?.accessibilityLabel ? entry.item as Item : firstControl(entry)
    }
    /// What Tab comes to first in a row that says nothing itself; null for nothing.
    function firstControl(entry: TableEntryView): Item {
        const inside = entry?.cell?.accessibilityLabel ? null : entry?.nextItemInFocusChain()
        return inside && entry.contains(entry.mapFromItem(inside, 1, 1)) ? inside : null
    }

    function goTo(entry: int) {
        if (entry < 0)
            return
        const down = entry > list.currentIndex
        list.currentIndex = entry
        if (beside(entry, -1) < 0 && (down || !tall))
            list.positionViewAtBeginning() // the header is seen as well
        else if (beside(entry, 1) < 0 && !(down && tall))
            list.positionViewAtEnd()
        else
            list.positionViewAtIndex(entry, !tall ? ListView.Contain : down ? ListView.Beginning : ListView.End)
    }
    function tallInSight(): bool {
        const top = list.currentItem?.y ?? 0
        return tall && top < list.contentY + list.height && top + (list.currentItem?.height ?? 0) > list.contentY
    }
    /// False if of the current row there is no more to be seen that way.
    function scrollWithin(step: int, by: real): bool {
        const top = list.currentItem?.y ?? 0
        const bottom = top + (list.currentItem?.height ?? 0)
        const rest = step > 0 ? bottom - list.contentY - list.height : list.contentY - top
        if (!tallInSight() || rest < 1)
            return false
        list.contentY += step * Math.min(rest, by)
        return true
    }
    function moveByLine(step: int) {
        const next = beside(list.currentIndex, step)
        if (scrollWithin(step, 2 * Metrics.row))
            return
        if (next >= 0)
            goTo(next)
        else if (step > 0)
            list.positionViewAtEnd() // what stands below the last row is seen as well
        else
            list.positionViewAtBeginning()
    }
    function moveByPage(step: int) {
        if (tallInSight()) {
            if (!scrollWithin(step, list.height - Metrics.row))
                goTo(beside(list.currentIndex, step))
            return
        }
        const edge = list.indexAt(0, list.contentY + (step > 0 ? list.height - 1 : 0))
        if (edge >= 0)
            list.positionViewAtIndex(edge, step > 0 ? ListView.Beginning : ListView.End)
        list.returnToBounds()
        goTo(beside(edge >= 0 ? edge - step : step > 0 ? list.count : -1, edge >= 0 ? step : -step))
    }
    /// The current row is chosen; in one that says nothing its first control gets the keyboard.
    function choose() {
        const inside = firstControl(list.currentItem as TableEntryView)
        if (inside)
            inside.forceActiveFocus(Qt.TabFocusReason)
        else
            control.activateEntry(list.currentIndex)
    }

    onFocusVisibleChanged: if (focusVisible && list.currentIndex < 0)
        goTo(beside(topEntry() - 1, 1))

    Keys.onUpPressed: moveByLine(-1)
    Keys.onDownPressed: moveByLine(1)
    Keys.onReturnPressed: choose()
    Keys.onEnterPressed: choose()
    Keys.onSpacePressed: event => {
        if (!event.isAutoRepeat)
            choose()
    }
    Keys.onPressed: event => {
        event.accepted = true
        switch (event.key) {
        case Qt.Key_Home:
            goTo(beside(-1, 1))
            list.positionViewAtBeginning()
            break
        case Qt.Key_End:
            goTo(beside(list.count, -1))
            list.positionViewAtEnd()
            break
        case Qt.Key_PageUp:
            moveByPage(-1)
            break
        case Qt.Key_PageDown:
            moveByPage(1)
            break
        default:
            event.accepted = false
        }
    }
}
