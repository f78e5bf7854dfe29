// A client of the installed library: a settings group of its own, persisted through the
// manager, and an exception caught by its class.

#include <ZARSysException.h>
#include <ZARSysSettings.h>
#include <ZARSysSettingsManager.h>

#include <QCoreApplication>
#include <QSettings>

#include <cstdio>

class ClientSettings : public ZARSysSettings
{
    Q_OBJECT
    Q_PROPERTY(int count MEMBER count)

public:
    ClientSettings()
        : ZARSysSettings("Client")
    { }

    int count = 0;
};

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 2)
        return 2;

    ClientSettings settings;
    ZARSysSettingsManager::GetManager()->SetSource(
        new QSettings(QString::fromLocal8Bit(argv[1]), QSettings::IniFormat));
    int changes = 0;
    QObject::connect(&settings, &ZARSysSettings::SettingChanged, [&changes] { ++changes; });
    settings.SetValue("count", 42);
    if (changes != 1
        || ZARSysSettingsManager::GetManager()->GetSource()->value("Client/count") != QVariant(42))
        return 1;

    try {
        throw ZARSysFileNotFoundException(QStringLiteral("/nowhere"));
    } catch (const ZARSysFileException &e) {
        if (e.GetPath() != QLatin1String("/nowhere"))
            return 1;
    }
    std::puts("client: ok");
    return 0;
}

#include "main.moc"
