// SPDX-License-Identifier: BSD-3-Clause
.pragma library

// The longest part of a text that must stay on one line. Chinese has no blanks and breaks after any character, but not
// before a mark that ends something.
function longest(text) {
    var parts = text.split(/\s+|(?=[\u2e80-\u2fff\u3005-\u3007\u3021-\u9fff\uf900-\ufaff])/);
    return parts.reduce(function(a, b) { return b.length > a.length ? b : a; }, "");
}
