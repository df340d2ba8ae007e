// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QTest>

/// What comes to hold while events are served, within five seconds or as many milliseconds as are given. In
/// place of the toolkit's QTRY_VERIFY and QTRY_COMPARE, whose expansion narrows numbers in Qt 6.8, which our
/// warnings refuse.
#define EVENTUALLY_VERIFY(expression) QVERIFY(QTest::qWaitFor([&] { return static_cast<bool>(expression); }))

#define EVENTUALLY_VERIFY_WITHIN(expression, milliseconds)                                                   \
    QVERIFY(QTest::qWaitFor([&] { return static_cast<bool>(expression); }, milliseconds))

#define EVENTUALLY_COMPARE(actual, expected)                                                                 \
    do {                                                                                                     \
        static_cast<void>(QTest::qWaitFor([&] { return (actual) == (expected); }));                          \
        QCOMPARE(actual, expected);                                                                          \
    } while (false)
