// SPDX-License-Identifier: BSD-3-Clause
//
// A haptic feedback service that can play theme effects, as a phone with a vibrator has one.

#include <QFeedbackThemeInterface>
#include <QObject>

class FeedbackPlugin : public QObject, public QFeedbackThemeInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.nokia.qt.QFeedbackThemeInterface/1.0")
    Q_INTERFACES(QFeedbackThemeInterface)

public:
    PluginPriority pluginPriority() override { return PluginNormalPriority; }
    bool play(QFeedbackEffect::Effect) override { return true; }
};

#include "feedbackplugin.moc"
