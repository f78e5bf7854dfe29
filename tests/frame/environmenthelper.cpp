// Starts the library with the flags given on the command line ("0" or nothing) and prints
// what start-up left in the process: one "name=value" line each, "<unset>" for a variable that
// is not set.

#include <ZARSysPlatform.h>
#include <ZARSystem.h>

#include <QCoreApplication>
#include <QFile>
#include <QMetaType>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void print(const char *name, const QString &value)
{
    std::printf("%s=%s\n", name, value.toUtf8().constData());
}

// As the operating system holds it for the process: on Windows the search path is written
// past the C runtime's copy of the environment, which qEnvironmentVariable() reads.
void printVariable(const char *name)
{
    const auto value =
        ZARSysPlatform::ReadEnvironmentVariable(QString::fromLatin1(name).toStdU16String());
    print(name, value ? QString::fromStdU16String(*value) : u"<unset>"_s);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QList<int> flags;
    for (const QString &flag : app.arguments().mid(1))
        flags.append(flag.toInt());

    print("loaded-before", QString::number(_ZARSystemLoaded));
    const ZARSysInitContext context(flags);
    print("loaded", QString::number(_ZARSystemLoaded));
    printVariable("QTWEBENGINEPROCESS_PATH");
    printVariable("QT_QPA_PLATFORM_PLUGIN_PATH");
    printVariable("PATH");
    print("workbench", ZARSysWebEngineContext::GetWorkbenchShortPath());
    print("icons", QString::number(QFile::exists(u":/icons/loom-default/index.theme"_s)));
    print("filter-type", QString::number(QMetaType::fromName("ZARSysVariantFilter").isValid()));
    return 0;
}
