// SPDX-License-Identifier: BSD-3-Clause
#ifndef MEDIAREGISTRY_H
#define MEDIAREGISTRY_H

/*!
 * Keeps GStreamer, which comes with the pages for cameras and videos, from writing its list of plugins into the user's
 * cache. A list that other programs have left there is still read, for without one GStreamer has to look at every
 * plugin when it starts. Does nothing where the user has said by GST_REGISTRY where the list is. To be called before
 * GStreamer is loaded.
 */
void keepMediaRegistryUnwritten();

#endif
