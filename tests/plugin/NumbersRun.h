#pragma once

#include "FieldEditors/MFWidgets/DvMFInt32Widget.h"
#include "ListRun.h"

/// The editor of whole numbers with the list 1 to `rows`.
struct NumbersRun : ListRun<DvMFInt32Widget> {
    explicit NumbersRun(int rows)
    {
        QStringList numbers;
        for (int number = 1; number <= rows; ++number)
            numbers << QString::number(number);
        node->mfInt32.set(QStringLiteral("[%1]").arg(numbers.join(QLatin1Char(','))).toLatin1().constData());
        services.selectField(&node->mfInt32);
        ListRun::show(node->mfInt32);
    }
    QString text() const { return textOf(node->mfInt32).remove(QLatin1Char(' ')); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        table->setFocus();
        QTest::keyClick(table, key, modifiers);
        settle();
    }
};
