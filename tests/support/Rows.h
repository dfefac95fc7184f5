// Tables of rows: a function object that checks one row, called with the row's name and its cells.
#pragma once

#include <QtTest>

template <typename Call> class Rows;

template <typename Check, typename... Cells> class Rows<void (Check::*)(Cells...) const> {
public:
    Rows(Check check)
        : check(std::move(check))
    {
    }

    /// Checks a row. After a failure, which names its row, no further row is checked.
    void operator()(const QByteArray &name, Cells... cells) const
    {
        if (QTest::currentTestFailed())
            return;
        check(cells...);
        if (QTest::currentTestFailed())
            qWarning("This was the row \"%s\".", name.constData());
    }

private:
    Check check;
};

template <typename Check> Rows(Check) -> Rows<decltype(&Check::operator())>;
