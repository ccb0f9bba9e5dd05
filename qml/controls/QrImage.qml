// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import "../flow/QrCode.js" as QrCode

/*! A text as a QR code: dark on white in either variant, for scanners expect it so, with the quiet margin around it. */
Rectangle {
    id: image

    property string text
    readonly property var rows: text === "" ? [] : QrCode.encode(text)
    /*! Modules of the code and of the margin in a row. */
    readonly property int modules: rows.length + 8
    /*! Whole pixels, so that all modules are of one size. */
    readonly property int pixels: Math.max(1, Math.floor(Math.min(width, height) / modules))

    onRowsChanged: canvas.requestPaint()

    implicitWidth: 40 * Theme.unit
    implicitHeight: implicitWidth
    color: "#ffffff"
    visible: rows.length > 0
    Accessible.role: Accessible.Graphic
    Accessible.name: text

    Canvas {
        id: canvas
        anchors.centerIn: parent
        width: image.rows.length * image.pixels
        height: width
        // It does not paint by itself what it was given while nobody saw it.
        onVisibleChanged: requestPaint()
        onPaint: {
            var context = getContext("2d");
            context.fillStyle = "#ffffff";
            context.fillRect(0, 0, width, height);
            context.fillStyle = "#000000";
            for (var y = 0; y < image.rows.length; ++y) {
                for (var x = 0; x < image.rows.length; ++x) {
                    if (image.rows[y][x])
                        context.fillRect(x * image.pixels, y * image.pixels, image.pixels, image.pixels);
                }
            }
        }
    }
}
