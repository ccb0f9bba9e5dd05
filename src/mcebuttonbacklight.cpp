// SPDX-License-Identifier: BSD-3-Clause
#include "mcebuttonbacklight.h"

MceButtonBacklight::MceButtonBacklight(QObject *parent) : QObject(parent)
{
}
