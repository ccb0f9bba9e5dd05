// SPDX-License-Identifier: BSD-3-Clause
#ifndef PAGECACHE_H
#define PAGECACHE_H

/*!
 * Lets the QML engine use the pages' ahead-of-time compiled form, "main.qmlc" beside "main.qml", and keeps it from
 * writing a cache of its own below the user's home. A page that is not the one that was compiled, or whose compiled
 * form is missing or was made for another Qt, is compiled in memory. Call it before the first engine exists.
 */
void usePrecompiledPagesOnly();

#endif
