// SPDX-License-Identifier: BSD-3-Clause
#include "battery.h"

#include "sysfile.h"

#include <QDebug>
#include <QDirIterator>
#include <QProcess>

#include <limits>

namespace
{
const QString PowerSupplyDirectory = QStringLiteral("/sys/class/power_supply");
const char BatteryType[] = "Battery";
const QString ChargerCommand = QStringLiteral("/usr/bin/kiv");

/*! The first line as text, without the blanks around it and without carriage returns. Null as readFirstLine()'s. */
QByteArray readTextLine(const QString &path)
{
    return readFirstLine(path).replace("\r", "").trimmed();
}

QString findBattery()
{
    QDirIterator entries(PowerSupplyDirectory, QDir::AllDirs | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        const QString path = entries.next();
        if (readTextLine(path + QStringLiteral("/type")) == BatteryType)
            return path;
    }
    return QString();
}
}

Battery::Battery(QObject *parent) : QObject(parent), m_devicePath(findBattery())
{
    if (m_devicePath.isEmpty())
        qWarning() << "Could not find suitable battery device";
}

double Battery::currentNow() const
{
    return readNumber("current_now");
}

double Battery::minimumVoltage() const
{
    return readNumber("voltage_min_design");
}

double Battery::maximumVoltage() const
{
    return readNumber("voltage_max_design");
}

double Battery::voltageNow() const
{
    return readNumber("voltage_now");
}

double Battery::minimumEnergy() const
{
    return readNumber("energy_empty");
}

double Battery::maximumEnergy() const
{
    return readNumber("energy_full");
}

double Battery::energyNow() const
{
    return readNumber("energy_now");
}

double Battery::minimumDesignEnergy() const
{
    return readNumber("energy_empty_design");
}

double Battery::maximumDesignEnergy() const
{
    return readNumber("energy_full_design");
}

QString Battery::health() const
{
    return readText("health");
}

QString Battery::status() const
{
    return readText("status");
}

double Battery::temperature() const
{
    constexpr double TenthsPerDegree = 10.0;
    return readNumber("temp") / TenthsPerDegree;
}

bool Battery::present() const
{
    bool ok = false;
    const int value = readAttribute("present").toInt(&ok, 10);
    return ok && value != 0;
}

void Battery::enableCharger() const
{
    QProcess::execute(ChargerCommand, {QStringLiteral("enable_charger")});
}

void Battery::disableCharger() const
{
    QProcess::execute(ChargerCommand, {QStringLiteral("disable_charger")});
}

QByteArray Battery::readAttribute(const char *name) const
{
    if (m_devicePath.isEmpty())
        return QByteArray();
    return readTextLine(m_devicePath + QLatin1Char('/') + QLatin1String(name));
}

double Battery::readNumber(const char *name) const
{
    bool ok = false;
    const double value = readAttribute(name).toDouble(&ok);
    return ok ? value : std::numeric_limits<double>::quiet_NaN();
}

QString Battery::readText(const char *name) const
{
    const QByteArray raw = readAttribute(name);
    // Only up to the first NUL: some drivers hand out their whole fixed-size field.
    return raw.isNull() ? QString() : QString::fromUtf8(raw.constData());
}
