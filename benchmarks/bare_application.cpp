// The reference for the start of a whole process: a Qt program that constructs its application
// object, writes one line and ends, and does nothing else.

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    std::puts("bare QCoreApplication");
    return 0;
}
