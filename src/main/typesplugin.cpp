// SPDX-License-Identifier: BSD-3-Clause
//
// The module as a plug-in, for the one tool that describes modules, which takes nothing else. Never installed: the
// program registers its types itself.
#include "registration.h"

#include <QQmlExtensionPlugin>

class KivTypesPlugin : public QQmlExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    void registerTypes(const char *) override { registerKivTypes(); }
};

#include "typesplugin.moc"
