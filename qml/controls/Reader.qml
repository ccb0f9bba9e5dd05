// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*!
 * Lets the keys at the side of the phone reach all of a view that is longer than the screen: it is gone to like a button,
 * and turned page by page until its end.
 */
Rectangle {
    id: reader

    /*! The Flickable that is read. */
    property Flickable view

    /*! Shows the view's begin to who comes from before it, its end to who comes back to it. */
    function enter(forward) {
        show(forward ? view.originY : end());
    }

    /*! Whether there was more to be shown in this direction. */
    function turn(forward) {
        var before = view.contentY;
        show(before + (forward ? 0.8 : -0.8) * view.height);
        return Math.abs(view.contentY - before) >= 1;
    }

    function show(y) {
        view.contentY = Math.max(view.originY, Math.min(end(), y));
    }

    function end() {
        return view.originY + view.contentHeight - view.height;
    }

    parent: view
    anchors.fill: parent
    activeFocusOnTab: view.contentHeight > view.height
    visible: activeFocusOnTab
    color: "transparent"
    border.width: activeFocus ? 2 * Theme.hairline : 0
    border.color: Theme.accent
    Accessible.role: Accessible.Pane
}
