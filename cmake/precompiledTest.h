// SPDX-License-Identifier: GPL-2.0-or-later
// The same for the tests, which include these headers besides.
#include "precompiled.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
