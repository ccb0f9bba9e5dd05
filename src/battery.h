// SPDX-License-Identifier: BSD-3-Clause
#ifndef BATTERY_H
#define BATTERY_H

#include <QObject>
#include <QString>

/*!
 * The kernel's readings of the phone's battery, and the switch of its charger.
 *
 * The battery is the first entry below /sys/class/power_supply whose "type" is "Battery"; it is looked for once, at
 * construction. Every reading opens its attribute file anew. Numbers are in the kernel's own unit, unscaled but for the
 * temperature; NaN where the attribute is missing or no number. Texts are null where the attribute is missing.
 */
class Battery : public QObject
{
    Q_OBJECT

public:
    explicit Battery(QObject *parent = nullptr);

    /*! Microamperes, negative on kernels that count discharging so. Source: current_now. */
    Q_INVOKABLE double currentNow() const;
    /*! Microvolts at which the battery counts as empty. Source: voltage_min_design. */
    Q_INVOKABLE double minimumVoltage() const;
    /*! Microvolts at which the battery counts as full. Source: voltage_max_design. */
    Q_INVOKABLE double maximumVoltage() const;
    /*! Microvolts. Source: voltage_now. */
    Q_INVOKABLE double voltageNow() const;
    /*! Microwatt-hours. Source: energy_empty. */
    Q_INVOKABLE double minimumEnergy() const;
    /*! Microwatt-hours. Source: energy_full. */
    Q_INVOKABLE double maximumEnergy() const;
    /*! Microwatt-hours. Source: energy_now. */
    Q_INVOKABLE double energyNow() const;
    /*! Microwatt-hours. Source: energy_empty_design. */
    Q_INVOKABLE double minimumDesignEnergy() const;
    /*! Microwatt-hours. Source: energy_full_design. */
    Q_INVOKABLE double maximumDesignEnergy() const;
    /*! Such as "Good" or "Overheat". Source: health. */
    Q_INVOKABLE QString health() const;
    /*! Such as "Charging" or "Full". Source: status. */
    Q_INVOKABLE QString status() const;
    /*! Degrees Celsius. Source: temp, in tenths of a degree. */
    Q_INVOKABLE double temperature() const;
    /*! Whether a battery is in the phone; false where the kernel does not say. Source: present. */
    Q_INVOKABLE bool present() const;

    /*! Lets the charger charge, by way of the privileged command of this program. Blocks until that has ended; a
     *  failure goes unnoticed. */
    Q_INVOKABLE void enableCharger() const;
    /*! Keeps the charger from charging; otherwise as enableCharger(). */
    Q_INVOKABLE void disableCharger() const;

private:
    QByteArray readAttribute(const char *name) const;
    double readNumber(const char *name) const;
    QString readText(const char *name) const;

    QString m_devicePath;
};

#endif
