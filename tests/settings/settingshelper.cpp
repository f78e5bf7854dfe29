// Runs one step of a settings scenario in its own process and prints what it sees:
//
//   settingshelper write INI KEY VALUE   sets KEY of the group "Test/Two" and prints the number
//                                        of SettingChanged signals
//   settingshelper read INI KEY          loads the group and prints KEY's value and type
//   settingshelper leak INI KEY VALUE    sets KEY while no source is set, then sets the source
//                                        and exits without destroying the group, leaving it to
//                                        the manager at unload

#include "testgroups.h"

#include <ZARSysSettingsManager.h>

#include <QCoreApplication>
#include <QSettings>
#include <QTextStream>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 4)
        return 2;
    const QString &command = args.at(1);
    const QString &ini = args.at(2);
    const QByteArray key = args.at(3).toUtf8();
    QTextStream out(stdout);
    ZARSysSettingsManager *manager = ZARSysSettingsManager::GetManager();

    if (command == QLatin1String("write") && args.size() == 5) {
        TwoSettings group;
        manager->SetSource(new QSettings(ini, QSettings::IniFormat));
        int changes = 0;
        QObject::connect(&group, &ZARSysSettings::SettingChanged, [&changes] { ++changes; });
        group.SetValue(key, args.at(4));
        out << changes << Qt::endl;
        return 0;
    }
    if (command == QLatin1String("read") && args.size() == 4) {
        TwoSettings group;
        manager->SetSource(new QSettings(ini, QSettings::IniFormat));
        const QVariant value = group.GetValue(key);
        out << value.toString() << ' ' << value.typeName() << Qt::endl;
        return 0;
    }
    if (command == QLatin1String("leak") && args.size() == 5) {
        auto *group = new TwoSettings;
        group->setProperty(key.constData(), args.at(4));
        manager->SetSource(new QSettings(ini, QSettings::IniFormat));
        out << (manager->GetSettings(group->GetFramework()) == group ? "registered" : "lost")
            << Qt::endl;
        return 0;
    }
    return 2;
}
