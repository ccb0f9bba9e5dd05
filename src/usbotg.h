// SPDX-License-Identifier: BSD-3-Clause
#ifndef USBOTG_H
#define USBOTG_H

#include <QObject>
#include <QRegExp>

class QDBusObjectPath;

/*!
 * Whether a USB drive is plugged into the phone, by the device units that systemd announces on the system bus and
 * withdraws. A drive that was there before goes unnoticed until it is plugged in anew. A switch, not a count: of two
 * drives, the first to go turns it off.
 */
class UsbOtg : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool massStorage READ massStorage NOTIFY massStorageChanged)

public:
    explicit UsbOtg(QObject *parent = nullptr);

    /*! Source: UnitNew and UnitRemoved of units named "dev-sd*.device". */
    bool massStorage() const;

Q_SIGNALS:
    void massStorageChanged();

private Q_SLOTS:
    void newUnit(const QString &stringParam, const QDBusObjectPath &objectPath);
    void unitRemoved(const QString &stringParam, const QDBusObjectPath &objectPath);

private:
    void setMassStorage(bool massStorage);

    QRegExp m_unitPattern;
    bool m_massStorage = false;
};

#endif
