// SPDX-License-Identifier: BSD-3-Clause
#include "radiopreference.h"

#include <QFile>
#include <QTextStream>

namespace
{
const QString SubscriptionConfiguration = QStringLiteral("/etc/ofono/ril_subscription.conf");
const QString PreferenceSection = QStringLiteral("[4gOn]");
}

RadioPreference::RadioPreference(QObject *parent) : QObject(parent)
{
}

bool RadioPreference::getResult() const
{
    QFile file(SubscriptionConfiguration);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;

    QTextStream lines(&file);
    QString line;
    while (lines.readLineInto(&line)) {
        if (line == PreferenceSection)
            return true;
    }
    return false;
}
