// SPDX-License-Identifier: BSD-3-Clause
#include "factoryutils.h"

FactoryUtils::FactoryUtils(QObject *parent) : QObject(parent)
{
}

QString FactoryUtils::untest() const
{
    return QStringLiteral("00");
}

QString FactoryUtils::pass() const
{
    return QStringLiteral("01");
}

QString FactoryUtils::fail() const
{
    return QStringLiteral("02");
}

QString FactoryUtils::notApplicable() const
{
    return QStringLiteral("03");
}
