// A client of the installed library: a start-up callback, a settings group of its own,
// persisted through the manager, an exception caught by its class, a message in one of the
// library's logging categories, and the icon theme from the installed loom-default.rcc.

#include <ZARSysDefinedValue.h>
#include <ZARSysException.h>
#include <ZARSysLocalizationManager.h>
#include <ZARSysLogging.h>
#include <ZARSysResourceManager.h>
#include <ZARSysSettings.h>
#include <ZARSysSettingsManager.h>
#include <ZARSystem.h>

#include <QGuiApplication>
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

static int startups = 0;
static const bool registered = ZARSysRegisterInit([] { ++startups; });

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 2)
        return 2;

    const ZARSysInitContext context;
    if (startups != 1 || !_ZARSystemLoaded)
        return 1;
    qCDebug(LOG_CAT_ZAR_DEFAULT, "client started");

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
    // Quantities through a variant, and the catalogues in the installed library's resources.
    using Length = ZARSysDefinedValue<ZARSysValue::Length>;
    QVariant width(QStringLiteral("2in"));
    if (!width.convert(QMetaType::fromType<Length>()) || width.toDouble() != 50.8
        || QMetaType::fromName("ZARSysDefinedValue<1>") != QMetaType::fromType<Length>())
        return 1;
    ZARSysLocalizationManager::GetManager()->SetLocale(QLocale(QStringLiteral("de_DE")));
    if (ZARSysValue::GetUnitLabel(ZARSysValue::Inch) != QStringLiteral("Zoll")
        || width.toString() != QStringLiteral("50,8mm"))
        return 1;

    // Start-up registered the theme from Resources/ beside the installed library.
    ZARSysInitResources();
    QIcon::setThemeName(QStringLiteral("no-such-theme"));
    const QString path =
        ZARSysResourceManager::GetImageResourcePath(QStringLiteral("button-collapse-down"));
    if (path != QStringLiteral(":/icons/loom-default/images/button-collapse-down.png")
        || ZARSysResourceManager::GetImage(QStringLiteral("button-collapse-down")).size()
            != QSize(32, 32)
        || ZARSysResourceManager::GetSelectedIcon().pixmap(32).isNull())
        return 1;

    std::puts("client: ok");
    return 0;
}

#include "main.moc"
