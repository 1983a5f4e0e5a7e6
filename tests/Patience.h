#pragma once

#include <QTest>

/// How long a test waits for what must happen, in milliseconds: enough for a machine that does much else. Only a test
/// that fails waits so long.
constexpr int testPatience = 60000;

// QtTest itself waits for five seconds, which depends on the speed of the machine.
#undef QTRY_VERIFY
#define QTRY_VERIFY(expression) QTRY_VERIFY_WITH_TIMEOUT((expression), testPatience)
#undef QTRY_VERIFY2
#define QTRY_VERIFY2(expression, message) QTRY_VERIFY2_WITH_TIMEOUT((expression), (message), testPatience)
#undef QTRY_COMPARE
#define QTRY_COMPARE(expression, expected) QTRY_COMPARE_WITH_TIMEOUT((expression), (expected), testPatience)
