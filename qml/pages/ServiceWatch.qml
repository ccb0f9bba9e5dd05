// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*!
 * Whether a system service still answers. A type asks its service once, when it is made, and is not told when the service
 * goes; so a new one is made every few seconds while `active`. The element calls heard() or refused().
 */
Item {
    id: watch

    property Component element
    property bool active: false
    property int interval: 4000
    /*! "asking" until the first answer, then "answers", "refuses" or "silent". */
    readonly property alias standing: asked.standing
    readonly property bool lost: standing === "refuses" || standing === "silent"

    function heard() {
        settle("answers");
    }

    function refused() {
        settle("refuses");
    }

    function settle(standing) {
        if (!active)
            return;
        asked.answered = true;
        asked.standing = standing;
    }

    function ask() {
        var former = asked.element;
        if (former && !asked.answered)
            asked.standing = "silent";
        asked.answered = false;
        // The new one listens before the former stops.
        asked.element = element.createObject(watch);
        if (former)
            former.destroy();
    }

    visible: false
    onActiveChanged: {
        if (active || !asked.element)
            return;
        asked.element.destroy();
        asked.element = null;
    }

    QtObject {
        id: asked
        property var element: null
        property bool answered: false
        property string standing: "asking"
    }
    Timer {
        interval: watch.interval
        running: watch.active
        repeat: true
        triggeredOnStart: true
        onTriggered: watch.ask()
    }
}
