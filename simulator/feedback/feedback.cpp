// SPDX-License-Identifier: BSD-3-Clause
//
// A simulated phone's vibrator. Nobody can feel it, so it writes down each time that it moves.

#include <QFeedbackHapticsInterface>
#include <QFeedbackThemeInterface>
#include <QFile>
#include <QHash>
#include <QObject>
#include <QVariant>

#include <time.h>

namespace
{
// One line for every pulse: when it began, in milliseconds since the machine's start, how long it lasts, how strong it
// is.
const QString Record = QStringLiteral("/run/kiv-phone/vibrator/pulses");
// The phone has a motor as long as this is there.
const QString Motor = QStringLiteral("/run/kiv-phone/vibrator/motor");
constexpr int ThemeMs = 40;

qint64 milliseconds()
{
    timespec now;
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1000 + now.tv_nsec / 1000000;
}

/*! A motor that is stuck has nothing to write in its file. */
void move(int duration, double intensity)
{
    QFile motor(Motor);
    if (!motor.open(QIODevice::ReadOnly) || motor.readAll().trimmed() == "stuck")
        return;
    QFile record(Record);
    if (record.open(QIODevice::Append | QIODevice::Unbuffered))
        record.write(QStringLiteral("%1 %2 %3\n").arg(milliseconds()).arg(duration).arg(intensity).toLatin1());
}
}

class Vibrator : public QObject, public QFeedbackHapticsInterface, public QFeedbackThemeInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.orvel.kiv.SimulatedVibrator")
    Q_INTERFACES(QFeedbackHapticsInterface QFeedbackThemeInterface)

public:
    Vibrator() : m_actuator(createFeedbackActuator(this, 0)) { }

    PluginPriority pluginPriority() override { return PluginHighPriority; }

    QList<QFeedbackActuator *> actuators() override
    {
        return QFile::exists(Motor) ? QList<QFeedbackActuator *>{m_actuator} : QList<QFeedbackActuator *>();
    }
    void setActuatorProperty(const QFeedbackActuator &, ActuatorProperty, const QVariant &) override { }
    QVariant actuatorProperty(const QFeedbackActuator &, ActuatorProperty property) override
    {
        switch (property) {
        case Name:
            return QStringLiteral("simulated");
        case State:
            return int(QFeedbackActuator::Ready);
        case Enabled:
            return true;
        }
        return QVariant();
    }
    bool isActuatorCapabilitySupported(const QFeedbackActuator &, QFeedbackActuator::Capability) override
    {
        return false;
    }

    void updateEffectProperty(const QFeedbackHapticsEffect *, EffectProperty) override { }
    void setEffectState(const QFeedbackHapticsEffect *effect, QFeedbackEffect::State state) override
    {
        if (state == QFeedbackEffect::Running) {
            m_ends.insert(effect, milliseconds() + effect->duration());
            move(effect->duration(), effect->intensity());
        } else {
            m_ends.remove(effect);
        }
    }
    QFeedbackEffect::State effectState(const QFeedbackHapticsEffect *effect) override
    {
        return milliseconds() < m_ends.value(effect, 0) ? QFeedbackEffect::Running : QFeedbackEffect::Stopped;
    }

    bool play(QFeedbackEffect::Effect) override
    {
        move(ThemeMs, 1);
        return QFile::exists(Motor);
    }

private:
    QFeedbackActuator *const m_actuator;
    QHash<const QFeedbackHapticsEffect *, qint64> m_ends;
};

#include "feedback.moc"
