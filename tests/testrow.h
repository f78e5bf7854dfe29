#ifndef TESTROW_H
#define TESTROW_H

#include <QTest>

// Adds a row of test data named name, with one value for each column in order.
template<typename... Values>
void addRow(const char *name, const Values &...values)
{
    (QTest::newRow(name) << ... << values);
}

#endif // TESTROW_H
