// Starts the library as a host does and works with the current unit of one magnitude:
//
//   unitshelper INI MAGNITUDE        prints the current unit's string
//   unitshelper INI MAGNITUDE UNIT   makes UNIT current and prints its string
//
// MAGNITUDE and UNIT are strings of the catalogue ("Length", "Inch").

#include <ZARSysSettingsManager.h>
#include <ZARSysValue.h>
#include <ZARSystem.h>

#include <QCoreApplication>
#include <QSettings>
#include <QTextStream>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 3 && args.size() != 4)
        return 2;

    ZARSysInitContext context;
    ZARSysSettingsManager::GetManager()->SetSource(new QSettings(args.at(1), QSettings::IniFormat));
    const ZARSysValue::Magnitude magnitude = ZARSysValue::GetMagnitudeFromString(args.at(2));
    if (magnitude == ZARSysValue::InvalidMagnitude)
        return 2;
    if (args.size() == 4)
        ZARSysValue::SetMagnitudeCurrentUnit(magnitude, ZARSysValue::GetUnitFromString(args.at(3)));
    QTextStream(stdout) << ZARSysValue::GetUnitString(ZARSysValue::GetMagnitudeCurrentUnit(
        magnitude)) << Qt::endl;
    return 0;
}
