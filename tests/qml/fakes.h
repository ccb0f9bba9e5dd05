// SPDX-License-Identifier: BSD-3-Clause
#ifndef FAKES_H
#define FAKES_H

/*!
 * Registers the Kiv module with pretended types of the same names, written in QML, in place of the real ones. What they
 * report is set on the singleton Phone of the module KivFake, whose type id this returns. To have both, name another
 * module.
 */
int registerFakeTypes(const char *module = "Kiv");

class QQmlEngine;

/*! Lets the engine find pretended modules of Qt's instead of this machine's. They ask the singleton Phone, too. */
void addFakeModules(QQmlEngine *engine);

#endif
