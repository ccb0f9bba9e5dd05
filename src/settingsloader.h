// SPDX-License-Identifier: BSD-3-Clause
#ifndef SETTINGSLOADER_H
#define SETTINGSLOADER_H

#include <QSettings>

#include <memory>

/*!
 * The device's settings out of all files "*.ini" whose name contains the filter word: those of
 * /usr/share/kiv/settings.d by name, then those of /run/kiv/settings.d by name, case-sensitively (B before a). A later
 * file replaces the values of earlier ones key by key. Null when there is no such file.
 *
 * The files are read as they are now, and only read. The result has no file of its own: what is set in it stays in it,
 * and no other settings object of this process sees it.
 */
std::unique_ptr<QSettings> loadSettings(const QString &filter);

/*! Whether a value of a settings file says yes: "true" in any case, or an integer other than 0. */
bool saysYes(const QVariant &value);

#endif
