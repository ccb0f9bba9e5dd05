// SPDX-License-Identifier: BSD-3-Clause
#ifndef REGISTRATION_H
#define REGISTRATION_H

/*! Registers every type of the QML module Kiv 1.0, always in the same order, so that type ids stay the same. */
void registerKivTypes();

#endif
