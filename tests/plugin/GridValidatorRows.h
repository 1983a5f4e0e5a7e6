#pragma once

#include <QDoubleValidator>
#include <QTest>

/// The rows of a test of the validators that a grid of lines gets by kind: of single values and of rows alike.
inline void addGridValidatorRows()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("isReal");
    QTest::addColumn<double>("bottom");
    QTest::addColumn<double>("top");
    QTest::newRow("16-bit integers") << 1 << false << -32768.0 << 32767.0;
    QTest::newRow("integers") << 2 << false << -2147483648.0 << 2147483647.0;
    QTest::newRow("floats") << 3 << true << -3.4028234663852886e+38 << 3.4028234663852886e+38;
    const QDoubleValidator plain;
    QTest::newRow("numbers") << 4 << true << plain.bottom() << plain.top();
}
