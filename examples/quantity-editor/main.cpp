// A Qt Widgets form of quantities: typed in any unit, shown in the user's units and language.
//
// The host starts the library as every application on ZARSystem does (see minimal-host), then
// shows a QuantityEditor filled with the values a real application would take from its
// document. Type "1in" or "2,5 cm" into a field and press Return; choose another unit or
// language below the fields.
//
//   zarsys-quantity-editor [--settings FILE.ini] [--locale NAME] [--screenshot FILE.png]
//
// The current units chosen in the form are stored in the settings file; without --settings
// that is a temporary one, forgotten at exit. --screenshot renders the form once, without a
// display, into FILE.png and exits.

#include "QuantityEditor.h"

#include <ZARSysException.h>
#include <ZARSysLocalizationManager.h>
#include <ZARSysSettingsManager.h>
#include <ZARSystem.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QPixmap>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

#include <cstring>

int main(int argc, char **argv)
{
    // A screenshot needs no display. The platform is chosen when the application object is
    // built, so the option is looked for before the parser runs.
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--screenshot") == 0
            && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Edits quantities in any unit."));
    parser.addHelpOption();
    const QCommandLineOption settingsOption(
        QStringLiteral("settings"), QStringLiteral("The settings file (default: a temporary one)."),
        QStringLiteral("FILE.ini"));
    const QCommandLineOption localeOption(QStringLiteral("locale"),
                                          QStringLiteral("The language, such as de_DE."),
                                          QStringLiteral("NAME"));
    const QCommandLineOption screenshotOption(
        QStringLiteral("screenshot"), QStringLiteral("Render the form into FILE.png and exit."),
        QStringLiteral("FILE.png"));
    parser.addOptions({settingsOption, localeOption, screenshotOption});
    parser.process(app);

    const ZARSysInitContext context;
    QTemporaryDir scratch;
    const QString file = parser.isSet(settingsOption)
        ? parser.value(settingsOption)
        : scratch.filePath(QStringLiteral("settings.ini"));
    ZARSysSettingsManager::GetManager()->SetSource(new QSettings(file, QSettings::IniFormat));
    try {
        ZARSysLocalizationManager::GetManager()->SetLocale(
            parser.isSet(localeOption) ? QLocale(parser.value(localeOption)) : QLocale::system());
    } catch (const ZARSysException &e) {
        QTextStream(stderr) << "error: " << e.GetText() << Qt::endl;
        return 1;
    }

    QuantityEditor editor;
    // Values are kept in the system unit of their magnitude; SetValue(number, unit) converts.
    ZARSysValue width(ZARSysValue::Length, 0);
    width.SetValue(3, ZARSysValue::Meter);
    ZARSysValue height(ZARSysValue::Length, 0);
    height.SetValue(1.5, ZARSysValue::Meter);
    ZARSysValue feedRate(ZARSysValue::LinearFeedRate, 0);
    feedRate.SetValue(12, ZARSysValue::MetersPerMinute);
    ZARSysValue rotation(ZARSysValue::Angle, 0);
    rotation.SetValue(90, ZARSysValue::Degree);
    editor.setValue(QuantityEditor::SheetWidth, width);
    editor.setValue(QuantityEditor::SheetHeight, height);
    editor.setValue(QuantityEditor::FeedRate, feedRate);
    editor.setValue(QuantityEditor::Rotation, rotation);
    editor.show();

    if (parser.isSet(screenshotOption)) {
        const QString shot = parser.value(screenshotOption);
        if (!editor.grab().save(shot)) {
            QTextStream(stderr) << "error: cannot write " << shot << Qt::endl;
            return 1;
        }
        return 0;
    }
    return app.exec();
}
