// SPDX-License-Identifier: BSD-3-Clause
.pragma library

/*! Scrolls what the item stands in as far as is needed to see it. */
function reveal(item) {
    var view = item.parent;
    while (view && view.contentY === undefined)
        view = view.parent;
    if (!view)
        return;
    var top = item.mapToItem(view.contentItem, 0, 0).y;
    if (top < view.contentY)
        view.contentY = top;
    else if (top + item.height > view.contentY + view.height)
        view.contentY = top + item.height - view.height;
}
