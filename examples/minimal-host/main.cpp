// The start-up of a host application, and nothing more.
//
// Every application built on ZARSystem begins the same way: the Qt application object, a
// ZARSysInitContext that starts the library and the modules linked with it, a settings source
// for the settings manager, and the user's language. This program does exactly that, then
// proves that all of it took effect: it reads a length typed in the user's notation and prints
// it in the user's current unit of length, which comes from the settings file.
//
//   zarsys-minimal-host [--locale NAME] [--length-unit UNIT] [SETTINGS.ini]
//
// NAME is a locale such as de_DE (default: the system's). UNIT is the name of a unit of length
// (Millimeter, Inch, ...); it becomes the current unit and is stored in the settings file, so
// that the next run with the same file shows lengths in it. Without a file the program works
// in a temporary folder and forgets everything. It is a GUI application: on a machine without
// a display, run it with QT_QPA_PLATFORM=offscreen.

#include <ZARSysException.h>
#include <ZARSysLocalizationManager.h>
#include <ZARSysSettingsManager.h>
#include <ZARSysValue.h>
#include <ZARSystem.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

// A module linked into the host registers its start-up work while it is loaded, long before
// main() runs. The library calls it from the ZARSysInitContext below, after its own catalogues
// (such as the units of ZARSysValue) are ready.
const bool moduleRegistered =
    ZARSysRegisterInit([] { out() << "Start-up callback of the module ran" << Qt::endl; });

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Starts ZARSystem as a host application does and reads a length."));
    parser.addHelpOption();
    const QCommandLineOption localeOption(QStringLiteral("locale"),
                                          QStringLiteral("The language, such as de_DE."),
                                          QStringLiteral("NAME"));
    const QCommandLineOption unitOption(
        QStringLiteral("length-unit"),
        QStringLiteral("Make UNIT (Millimeter, Inch, ...) the current unit of length."),
        QStringLiteral("UNIT"));
    parser.addOption(localeOption);
    parser.addOption(unitOption);
    parser.addPositionalArgument(QStringLiteral("SETTINGS.ini"),
                                 QStringLiteral("The settings file (default: a temporary one)."),
                                 QStringLiteral("[SETTINGS.ini]"));
    parser.process(app);
    if (parser.positionalArguments().size() > 1)
        parser.showHelp(2);

    // 1. Start the library. It lives as long as the context: keep it until main() returns.
    const ZARSysInitContext context;

    // 2. Give the settings manager its source, once. The manager owns it from now on, and
    // loads every settings group registered so far from it (the current units among them).
    QTemporaryDir scratch;
    const QString file = parser.positionalArguments().isEmpty()
        ? scratch.filePath(QStringLiteral("settings.ini"))
        : parser.positionalArguments().constFirst();
    ZARSysSettingsManager::GetManager()->SetSource(new QSettings(file, QSettings::IniFormat));

    try {
        // 3. The language: translators, string tables, and the notation of numbers.
        const QLocale locale =
            parser.isSet(localeOption) ? QLocale(parser.value(localeOption)) : QLocale::system();
        ZARSysLocalizationManager::GetManager()->SetLocale(locale);

        if (parser.isSet(unitOption)) {
            const auto unit = ZARSysValue::GetUnitFromString(parser.value(unitOption));
            if (ZARSysValue::GetUnitMagnitude(unit) != ZARSysValue::Length) {
                QTextStream(stderr)
                    << "not a unit of length: " << parser.value(unitOption) << Qt::endl;
                return 2;
            }
            // Written through to the settings file at once.
            ZARSysValue::SetMagnitudeCurrentUnit(ZARSysValue::Length, unit);
        }

        // 4. The proof. Users type numbers in their own notation ("30,48cm" in German), so the
        // sample text is written with the locale as well.
        const QString typed = locale.toString(30.48) + QStringLiteral("cm");
        ZARSysValue length(ZARSysValue::Length, 0);
        length.SetValue(typed, ZARSysValue::Millimeter);

        const ZARSysValue::Unit current = ZARSysValue::GetMagnitudeCurrentUnit(ZARSysValue::Length);
        out() << "Library started: " << (_ZARSystemLoaded ? "yes" : "no") << Qt::endl
              << "Settings: " << file << Qt::endl
              << "Locale: " << locale.name() << Qt::endl
              << "Current unit of length: " << ZARSysValue::GetUnitLabel(current) << " ("
              << ZARSysValue::GetUnitSuffix(current) << ")" << Qt::endl
              << '"' << typed << "\" -> " << length.ToString() << Qt::endl;
    } catch (const ZARSysException &e) {
        QTextStream(stderr) << "error: " << e.GetText() << Qt::endl;
        return 1;
    }
    return 0;
}
