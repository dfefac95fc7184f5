// The columns and rows of a data-driven test.
#pragma once

#include <QtTest>

/// How a value of a row is written: texts as literals in UTF-8, others as what they are.
template <typename Value> struct Cell {
    using Written = Value;
    static const Value &value(const Value &written) { return written; }
};
template <> struct Cell<QString> {
    using Written = const char *;
    static QString value(const char *written) { return QString::fromUtf8(written); }
};

/// Adds a column of each type when it is made, and a row at each call.
template <typename... Values> class Rows {
public:
    template <typename... Names> explicit Rows(Names... names)
    {
        (QTest::addColumn<Values>(names), ...);
    }

    void operator()(const QByteArray &name, const typename Cell<Values>::Written &...cells) const
    {
        (QTest::newRow(name) << ... << Cell<Values>::value(cells));
    }
};
