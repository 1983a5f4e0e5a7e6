#pragma once

#include "meridane/query/QueryError.h"

#include <QTest>

#include <initializer_list>
#include <string>
#include <string_view>

/// What the tests of wrong formulas and wrong queries share.
namespace wrong_text {

/// A text, and the message about it with the position in front.
struct Row {
    const char* text;
    const char* message;
};

/// Makes each row one of a test function's data, named after its text.
inline void addRows(std::initializer_list<Row> rows)
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("message");
    for (const Row& row : rows)
        QTest::newRow(row.text) << QByteArray(row.text) << QByteArray(row.message);
}

/// The message of an error with its position in front, such as "3: A number is missing".
inline std::string messageOf(const meridane::QueryError& error)
{
    return std::to_string(error.position) + ": " + error.message;
}

/// Compares the message of the current row with the one that `messageOf(text)` gives.
template <typename MessageOf>
void checkRow(MessageOf messageOf)
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, message);
    QCOMPARE(QByteArray::fromStdString(messageOf(text.toStdString())), message);
}

inline std::string repeated(std::string_view text, int count)
{
    std::string result;
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

} // namespace wrong_text
