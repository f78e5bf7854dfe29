// Quantities as a user sees them, in the language of a locale.
//
// The program starts the library as a host application does, switches to the given locale
// (en_US when none is given), and shows the units of length, what typed text reads as, the
// effect of the user's current unit, and ratios with their decorations.
//
//   zarsys-quantities-demo [LOCALE]        for instance de_DE or fr_FR

#include <ZARSysDefinedValue.h>
#include <ZARSysException.h>
#include <ZARSysLocalizationManager.h>
#include <ZARSysRatio.h>
#include <ZARSysSettingsManager.h>
#include <ZARSysValue.h>
#include <ZARSystem.h>

#include <QCoreApplication>
#include <QJsonDocument>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

// Texts of the demonstration come from the library's string tables.
QString heading(const char *name)
{
    const QString key =
        QStringLiteral("ZARQuantitiesDemo.label_%1.description").arg(QLatin1StringView(name));
    return ZARSysLocalizationManager::GetManager()->GetString(key);
}

void showUnits()
{
    // Magnitude labels are translated once, when the library starts; for a language chosen
    // later they are translated again here. Unit labels follow the language by themselves.
    const QByteArray magnitude = ZARSysValue::GetMagnitudeLabel(ZARSysValue::Length).toLatin1();
    out() << heading("Units") << " (" << ZARSysValue::tr(magnitude.constData()) << ")" << Qt::endl;
    for (ZARSysValue::Unit unit : ZARSysValue::GetMagnitudeUnits(ZARSysValue::Length)) {
        const ZARSysValue one(ZARSysValue::Length, ZARSysValue::ConvertToSystemUnit(unit, 1));
        out() << "    " << qSetFieldWidth(14) << Qt::left << ZARSysValue::GetUnitLabel(unit)
              << qSetFieldWidth(4) << ZARSysValue::GetUnitSuffix(unit) << qSetFieldWidth(0)
              << "1 = " << one.ToString(ZARSysValue::Millimeter, 'g', 8) << Qt::endl;
    }
}

void showParsing()
{
    const QLocale locale = ZARSysLocalizationManager::GetManager()->GetLocale();
    const QString decimal = locale.decimalPoint();
    out() << heading("Parsing") << Qt::endl;
    const QStringList texts = {
        QStringLiteral("12") + decimal + QStringLiteral("5 mm"),
        QStringLiteral("1in"),
        QStringLiteral("3") + decimal + QStringLiteral("5 cm"),
        QStringLiteral("2 ft"),
        QStringLiteral("7"),
        QStringLiteral("2 kg/m^2"),
    };
    for (const QString &text : texts) {
        // Text without a suffix, or with a suffix of another magnitude, is in millimetres.
        ZARSysValue length(ZARSysValue::Length, 0);
        length.SetValue(text, ZARSysValue::Millimeter);
        out() << "    " << qSetFieldWidth(12) << Qt::left << ('"' + text + '"') << qSetFieldWidth(0)
              << "-> " << length.ToString() << " = " << length.ToString(ZARSysValue::Inch, 'f', 3)
              << Qt::endl;
    }

    const ZARSysValue width(ZARSysValue::Length, 63.5);
    ZARSysValue::SetMagnitudeCurrentUnit(ZARSysValue::Length, ZARSysValue::Inch);
    out() << "    " << ZARSysValue::GetUnitLabel(ZARSysValue::Inch) << ": " << width.ToString()
          << "  JSON " << QJsonDocument(width.ToJsonObject()).toJson(QJsonDocument::Compact)
          << Qt::endl;
    // A quantity in a variant converts to text and number through the registered converters.
    const QVariant cell = QVariant::fromValue(ZARSysDefinedValue<ZARSysValue::Length>(width));
    out() << "    QVariant " << cell.metaType().name() << ": " << cell.toString() << ", "
          << cell.toDouble() << Qt::endl;
    ZARSysValue::SetMagnitudeCurrentUnit(ZARSysValue::Length, ZARSysValue::Millimeter);
    out() << "    " << ZARSysValue::GetUnitLabel(ZARSysValue::Millimeter) << ": "
          << width.ToString() << Qt::endl;
    out() << "    " << ZARSysValue().ToString() << Qt::endl;
}

void showRatios()
{
    out() << heading("Ratios") << Qt::endl;
    const ZARSysRatio ratio(0.125);
    for (ZARSysRatio::Decoration decoration : ZARSysRatio::GetDecorations()) {
        out() << "    " << qSetFieldWidth(20) << Qt::left
              << ZARSysRatio::GetDecorationLabel(decoration) << qSetFieldWidth(0)
              << ratio.ToString(decoration) << Qt::endl;
    }
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() > 2 || (args.size() == 2 && args.at(1).startsWith(QLatin1Char('-')))) {
        QTextStream(stderr) << "usage: zarsys-quantities-demo [LOCALE]" << Qt::endl;
        return 2;
    }

    // Starts the library, then gives it a settings source and a language, as a host does.
    const ZARSysInitContext context;
    QTemporaryDir folder;
    ZARSysSettingsManager::GetManager()->SetSource(
        new QSettings(folder.filePath(QStringLiteral("demo.ini")), QSettings::IniFormat));
    try {
        const QLocale locale(args.size() == 2 ? args.at(1) : QStringLiteral("en_US"));
        ZARSysLocalizationManager::GetManager()->SetLocale(locale);
        out() << "Locale " << locale.name() << Qt::endl << Qt::endl;
        showUnits();
        out() << Qt::endl;
        showParsing();
        out() << Qt::endl;
        showRatios();
    } catch (const ZARSysException &e) {
        QTextStream(stderr) << "error: " << e.GetText() << Qt::endl;
        return 1;
    }
    return 0;
}
