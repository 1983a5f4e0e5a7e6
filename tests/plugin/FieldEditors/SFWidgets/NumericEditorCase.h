#pragma once

#include "plugin/FieldEditors/SFWidgets/NumericEditorRun.h"

#include <QTest>

/// A test that is run once for each of the six numeric editors: its data function calls `editors`.
class NumericEditorCase : public QObject {
protected:
    /// A row for each type word.
    static void editors()
    {
        QTest::addColumn<QString>("type");
        for (const char* type : {"SFFloat", "SFDouble", "SFInt32", "SFShort", "SFUInt32", "SFUShort"})
            QTest::newRow(type) << QString::fromLatin1(type);
    }

    /// The type word of the row.
    static QString type()
    {
        QFETCH(QString, type);
        return type;
    }

    /// The text of an integer in the editor's line: a float shows six decimals, all others no more than they need.
    static QString shown(const QString& value)
    {
        return type() == QLatin1String("SFFloat") ? value + QLatin1String(".000000") : value;
    }

    /// The slider's positions in a step of one: real sliders have a hundred from 0 to 10, integer ones from 0 to 100.
    static int positionsOfOne()
    {
        return type() == QLatin1String("SFFloat") || type() == QLatin1String("SFDouble") ? 10 : 1;
    }
};
