// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*! The curve of a Trace, with its name, the present value and the extremes. */
Item {
    id: plot

    property var trace
    readonly property var points: trace ? trace.points : []

    implicitHeight: 9 * Theme.unit
    Accessible.role: Accessible.Chart
    Accessible.name: trace ? trace.name + ", " + trace.text(trace.now) : ""

    onPointsChanged: canvas.requestPaint()

    Column {
        id: words
        anchors.left: parent.left
        width: 0.45 * parent.width
        anchors.verticalCenter: parent.verticalCenter

        Words {
            width: parent.width
            text: plot.trace ? plot.trace.name : ""
            color: Theme.muted
            font.pixelSize: Theme.small
            Accessible.ignored: true
        }
        FittedWords {
            width: parent.width
            text: plot.trace ? plot.trace.text(plot.trace.now) : ""
            largest: Theme.lead
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }
        Words {
            width: parent.width
            visible: plot.trace && !isNaN(plot.trace.minimum)
            //: The least and the greatest reading so far
            //% "%1 to %2"
            text: visible ? qsTrId("kiv-plot-range").arg(plot.trace.text(plot.trace.minimum))
                                                    .arg(plot.trace.text(plot.trace.maximum)) : ""
            color: Theme.muted
            font.pixelSize: Theme.small
            Accessible.ignored: true
        }
    }
    Canvas {
        id: canvas
        anchors.left: words.right
        anchors.leftMargin: Theme.gap
        anchors.right: parent.right
        height: parent.height

        onPaint: {
            var context = getContext("2d");
            context.clearRect(0, 0, width, height);
            context.strokeStyle = Theme.line;
            context.lineWidth = Theme.hairline;
            context.strokeRect(0, 0, width, height);
            var points = plot.points;
            if (points.length === 0 || isNaN(plot.trace.minimum))
                return;
            // A constant value is a line in the middle.
            var span = plot.trace.maximum - plot.trace.minimum || 1;
            var middle = (plot.trace.maximum + plot.trace.minimum) / 2;
            var edge = 2 * Theme.hairline;
            context.strokeStyle = Theme.accent;
            context.lineWidth = 2 * Theme.hairline;
            context.beginPath();
            var gap = true;
            points.forEach(function(value, place) {
                if (isNaN(value)) {
                    gap = true;
                    return;
                }
                var x = edge + (width - 2 * edge) * place / Math.max(1, points.length - 1);
                var y = height / 2 - (height - 4 * edge) * (value - middle) / span;
                if (gap)
                    context.moveTo(x, y);
                else
                    context.lineTo(x, y);
                gap = false;
            });
            context.stroke();
        }
    }
}
