// SPDX-License-Identifier: BSD-3-Clause
#ifndef WLANADDRESS_H
#define WLANADDRESS_H

#include <QString>

/*!
 * The hardware address of the first wireless network interface by name, as the kernel writes it. Empty when there is no
 * such interface or its address cannot be read.
 * Source: /sys/class/net, an interface with an entry "wireless" or "phy80211", else one named "wlan..."; its "address".
 */
QString readWlanAddress();

#endif
