// SPDX-License-Identifier: BSD-3-Clause
import Kiv 1.0

/*! Keeps the satellite receiver at work before its page is on the screen. */
Gps {
}
