// SPDX-License-Identifier: BSD-3-Clause
.pragma library

/*! The words as one text, with what this language puts between them. */
function enumerate(words) {
    //: Between the words of a list, with its blank
    //% ", "
    return words.join(qsTrId("kiv-list-separator"));
}
