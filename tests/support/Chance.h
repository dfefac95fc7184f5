// Random tests: how many runs, from which seed, and choices.
#pragma once

#include <QRandomGenerator>
#include <QtTest>

/// A number from the environment, or the usual one.
inline int setting(const char *name, int usual)
{
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : usual;
}

/// Adds a row for each run, with its seed in the column "seed": from DRAVIKON_TEST_SEED in the
/// environment, or from 1.
inline void addSeeds(int runs)
{
    QTest::addColumn<int>("seed");
    const int first = setting("DRAVIKON_TEST_SEED", 1);
    for (int seed = first; seed < first + qMax(1, runs); ++seed)
        QTest::addRow("seed %d", seed) << seed;
}

template <typename List> const auto &oneOf(const List &list, QRandomGenerator &random)
{
    return list[random.bounded(int(std::size(list)))];
}
