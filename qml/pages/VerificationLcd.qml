// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*!
 * Pictures over the whole panel on which a bad pixel, line or colour shows, then a number of dots at random places: who
 * counts them has looked, and has seen that part of the panel, too.
 */
TestPage {
    id: page

    /*! Plain colours first: every subpixel on, off and alone. */
    readonly property var pictures: ["white", "black", "red", "green", "blue", "greys", "colours", "fine", "coarse"]
    /*! After so long a picture goes by itself, so that a dead touch panel does not keep it. */
    readonly property int pictureMs: 10000
    readonly property int unattendedMs: 2500
    readonly property int dotsMs: 6000
    readonly property int mostDots: 9
    /*! Ink and paper for the dots. */
    readonly property var inks: [["#000000", "#ffffff"], ["#ffffff", "#000000"], ["#ffff00", "#0000ff"],
                                 ["#ffffff", "#ff0000"], ["#000000", "#00ff00"]]

    property int picture: -1
    property var dots: []
    property var ink: inks[0]
    readonly property bool dotsShown: picture >= pictures.length

    function showPictures() {
        picture = 0;
        fullScreen = true;
        next.interval = unattended ? unattendedMs : pictureMs;
        next.restart();
    }

    function advance() {
        if (!isOpen || !fullScreen)
            return;
        if (dotsShown) {
            next.stop();
            fullScreen = false;
            return;
        }
        if (picture + 1 < pictures.length) {
            ++picture;
            next.restart();
        } else if (unattended) {
            // Round and round, for as long as the panel is to work.
            exercised = true;
            showPictures();
        } else if (challenge.solved) {
            next.stop();
            fullScreen = false;
        } else {
            challenge.start();
        }
    }

    /*! Places in a grid fine enough that no two dots touch, moved about within their cells. */
    function scatter(count) {
        var columns = 6;
        var rows = 10;
        var cells = [];
        for (var i = 0; i < columns * rows; ++i)
            cells.push(i);
        var places = [];
        while (places.length < count) {
            var cell = cells.splice(Math.floor(Math.random() * cells.length), 1)[0];
            places.push({ x: (cell % columns + 0.3 + 0.4 * Math.random()) / columns,
                          y: (Math.floor(cell / columns) + 0.3 + 0.4 * Math.random()) / rows });
        }
        return places;
    }

    function showDots(count) {
        ink = inks[Math.floor(Math.random() * inks.length)];
        dots = scatter(count);
        picture = pictures.length;
        fullScreen = true;
        next.interval = dotsMs;
        next.restart();
    }

    instructions: dotsShown ? ""
                  //% "Look at every picture for dots, lines and stains. Tap for the next one. At the end, count the dots."
                  : qsTrId("kiv-lcd-instructions")
    evidence: false
    //% "Pass unlocks when you have seen the pictures, counted the dots and answered the questions."
    evidenceHint: qsTrId("kiv-lcd-hint")

    onOpened: showPictures()
    onClosing: {
        next.stop();
        challenge.stop();
        fullScreen = false;
    }

    cover: Item {
        id: panel
        objectName: "panel"

        readonly property string shown: page.dotsShown ? "dots" : page.picture < 0 ? "" : page.pictures[page.picture]

        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true

        Rectangle {
            objectName: "paper"
            anchors.fill: parent
            color: page.dotsShown ? page.ink[1]
                   : ({ "white": "#ffffff", "red": "#ff0000", "green": "#00ff00", "blue": "#0000ff" })[panel.shown]
                     || "#000000"
        }
        // Steps must not show where the panel has enough shades.
        Column {
            anchors.fill: parent
            visible: panel.shown === "greys" || panel.shown === "colours"

            Repeater {
                model: panel.shown === "greys" ? ["#ffffff", "#ffffff"] : ["#ff0000", "#00ff00", "#0000ff"]

                Rectangle {
                    width: panel.width
                    height: panel.height / (panel.shown === "greys" ? 2 : 3)
                    gradient: Gradient {
                        orientation: Gradient.Horizontal
                        // The second grey runs the other way: what stays on one side is the panel's.
                        GradientStop { position: panel.shown === "greys" && index === 1 ? 1 : 0; color: "#000000" }
                        GradientStop { position: panel.shown === "greys" && index === 1 ? 0 : 1; color: modelData }
                    }
                }
            }
        }
        // Neighbours that differ: a short between two lines shows as a line.
        Image {
            objectName: "checkers"
            anchors.fill: parent
            visible: panel.shown === "fine"
            fillMode: Image.Tile
            horizontalAlignment: Image.AlignLeft
            verticalAlignment: Image.AlignTop
            smooth: false
            source: visible ? "../pictures/checkers.png" : ""
        }
        Grid {
            id: coarse
            readonly property int cells: panel.shown === "coarse" ? rows * columns : 0
            columns: 9
            rows: 16
            visible: cells > 0

            Repeater {
                model: coarse.cells

                Rectangle {
                    width: panel.width / coarse.columns
                    height: panel.height / coarse.rows
                    color: (index + Math.floor(index / coarse.columns) * (coarse.columns + 1)) % 2 ? "#000000" : "#ffffff"
                }
            }
        }
        Repeater {
            model: page.dotsShown ? page.dots : []

            Rectangle {
                objectName: "dot"
                width: 2 * Theme.unit
                height: width
                radius: width / 2
                x: modelData.x * panel.width - radius
                y: modelData.y * panel.height - radius
                color: page.ink[0]
            }
        }
        // Only for a moment, lest it hide what is to be seen.
        Rectangle {
            id: hint
            anchors.centerIn: parent
            width: 0.8 * parent.width
            height: words.height + 2 * Theme.margin
            radius: Theme.radius
            color: Theme.neutralTint
            visible: page.picture === 0 && brief.running

            Words {
                id: words
                x: Theme.margin
                y: Theme.margin
                width: parent.width - 2 * Theme.margin
                horizontalAlignment: Text.AlignHCenter
                text: qsTrId("kiv-lcd-instructions")
            }
        }
        Timer {
            id: brief
            interval: 2500
            running: true
        }
        MouseArea {
            anchors.fill: parent
            Accessible.role: Accessible.Button
            //% "Next picture"
            Accessible.name: qsTrId("kiv-lcd-next")
            onClicked: page.advance()
        }
    }

    Timer {
        id: next
        onTriggered: page.advance()
    }

    Challenge {
        id: challenge
        width: parent.width
        visible: running && !page.fullScreen
        ready: !page.fullScreen
        //% "How many dots were on the panel?"
        question: qsTrId("kiv-lcd-question")
        choices: {
            var all = [];
            for (var count = 1; count <= page.mostDots; ++count)
                all.push({ value: count, text: Number(count).toLocaleString(Qt.locale(), "f", 0) });
            return all;
        }
        //% "Show the dots again"
        againText: qsTrId("kiv-lcd-again")
        onPosed: page.showDots(value)
        onFailed: page.judge(FactoryUtils.Fail, reason)
    }
    Checks {
        id: checks
        width: parent.width
        asking: page.isOpen && challenge.solved && page.verdict === ""
        questions: [
            //% "Was a dot, line or stain in a picture that does not belong there?"
            { name: "spot", text: qsTrId("kiv-lcd-spot"), good: false,
              //% "The panel has a dot, line or stain."
              bad: qsTrId("kiv-lcd-spot-bad") },
            //% "Were all colours and shades there, without steps?"
            { name: "shades", text: qsTrId("kiv-lcd-shades"),
              //% "Colours or shades were missing."
              bad: qsTrId("kiv-lcd-shades-bad") }
        ]
        //% "The operator counted the dots and found no fault in the pictures."
        onPassed: page.judge(FactoryUtils.Pass, qsTrId("kiv-lcd-good"))
        onFailed: page.judge(FactoryUtils.Fail, reason)
    }
    PushButton {
        objectName: "pictures"
        width: parent.width
        visible: checks.visible
        glyph: "retry"
        //% "Show the pictures again"
        text: qsTrId("kiv-lcd-pictures-again")
        onClicked: page.showPictures()
    }
}
