// SPDX-License-Identifier: BSD-3-Clause
#ifndef ZEL_H
#define ZEL_H

#include <QObject>
#include <QVariantMap>

class QDBusPendingCallWatcher;

/*!
 * The smart cover, as its daemon com.orvel.zeld on the system bus sees it: asked for once, at construction, and
 * followed by the daemon's PropertiesChanged from then on. A change signal says that the daemon has reported the
 * property, not that its value differs.
 */
class Zel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool ready READ ready NOTIFY readyChanged)
    Q_PROPERTY(bool docked READ docked NOTIFY dockedChanged)
    Q_PROPERTY(QString zelId READ zelId NOTIFY zelIdChanged)
    Q_PROPERTY(bool error READ error NOTIFY errorChanged)

public:
    explicit Zel(QObject *parent = nullptr);

    /*! Whether the daemon is ready to recognise covers; false until it has said so. Source: Ready. */
    bool ready() const;
    /*! Whether a cover is on the phone; false until the daemon has said so. Source: Docked. */
    bool docked() const;
    /*! The cover's identifier; empty while there is none. Source: ZELID. */
    QString zelId() const;
    /*! Whether the question at construction failed, as without a daemon. Once true, it stays so. */
    bool error() const;

Q_SIGNALS:
    void readyChanged();
    void dockedChanged();
    void zelIdChanged();
    void errorChanged();

private Q_SLOTS:
    void getPropertiesFinished(QDBusPendingCallWatcher *watcher);
    void propertiesChanged(const QString &interfaceName, const QVariantMap &changedProperties,
                           const QStringList &invalidatedProperties);

private:
    void updateProperties(const QVariantMap &properties);
    void updateProperty(const QString &name, const QVariant &value);

    int m_ready = 0;
    int m_docked = 0;
    QString m_zelId;
    bool m_error = false;
};

#endif
