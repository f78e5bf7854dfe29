// Settings that outlive the process.
//
// The program starts the library as a host application does, gives the settings manager an
// INI file as its source, changes the values of a settings group in a batch, and then starts
// itself a second time to read them back.
//
//   zarsys-settings-demo [FILE.ini]
//
// Without a file it works in a temporary folder. With one, run it again to see the values of
// the previous run loaded at start-up.

#include <ZARSysException.h>
#include <ZARSysSettings.h>
#include <ZARSysSettingsManager.h>
#include <ZARSystem.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

// A module's settings group: declared settings with their defaults, persisted under the
// group "Demo/Cutting" of the source.
class CuttingSettings : public ZARSysSettings
{
    Q_OBJECT
    Q_PROPERTY(QString machine MEMBER machine)
    Q_PROPERTY(double feedRate MEMBER feedRate)
    Q_PROPERTY(int runs MEMBER runs)

public:
    CuttingSettings()
        : ZARSysSettings(QByteArrayLiteral("Demo/Cutting"))
    { }

    QString machine = QStringLiteral("(none)");
    double feedRate = 100.0;
    int runs = 0;
};

// A module registers its start-up work while it is loaded; the host's ZARSysInitContext runs
// it.
const bool startupRegistered = ZARSysRegisterInit(
    [] { out() << "Start-up callback of the demonstration module ran" << Qt::endl; });

void printValues(const CuttingSettings &settings, const QString &indent)
{
    for (const char *key : {"machine", "feedRate", "runs", "lastRun"}) {
        const QVariant value = settings.GetValue(key, QStringLiteral("(not set)"));
        out() << indent << key << " = " << value.toString() << Qt::endl;
    }
}

int readBack(const QString &file)
{
    CuttingSettings settings;
    ZARSysSettingsManager::GetManager()->SetSource(new QSettings(file, QSettings::IniFormat));
    printValues(settings, QStringLiteral("    "));
    return 0;
}

int writeAndVerify(const QString &file)
{
    CuttingSettings settings;
    QObject::connect(&settings, &ZARSysSettings::SettingChanged,
                     [](const QByteArray &key, const QVariant &value) {
                         out() << "  SettingChanged(" << key << ", " << value.toString() << ")"
                               << Qt::endl;
                     });
    QObject::connect(&settings, &ZARSysSettings::BatchFinished, [](const QList<QByteArray> &keys) {
        out() << "  BatchFinished with " << keys.size() << " keys" << Qt::endl;
    });

    out() << "ZARSystem built " << ZARSysGetBuildDate()
          << ", started: " << (_ZARSystemLoaded ? "yes" : "no") << Qt::endl;
    out() << "Settings source: " << file << Qt::endl;
    // Setting the source loads every registered group from it.
    ZARSysSettingsManager::GetManager()->SetSource(new QSettings(file, QSettings::IniFormat));
    out() << "Values at start-up:" << Qt::endl;
    printValues(settings, QStringLiteral("    "));

    out() << "Changing them in one batch:" << Qt::endl;
    {
        ZARSysSettingsBatchContext batch(&settings);
        settings.SetValue("machine", QStringLiteral("Laser L-3000"));
        settings.SetValue("feedRate", 2500.0);
        settings.SetValue("runs", settings.runs + 1);
        // A setting the class does not declare becomes a dynamic property; it is persisted all
        // the same.
        settings.setProperty("lastRun", QDateTime::currentDateTime().toString(Qt::ISODate));
        settings.SetValue("feedRate", 2500.0); // unchanged: no signal
    }
    ZARSysSettingsManager::GetManager()->GetSource()->sync();

    out() << "A second process reads them back:" << Qt::endl;
    out().flush();
    QProcess second;
    second.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    second.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--read"), file});
    if (!second.waitForFinished(30000) || second.exitCode() != 0) {
        out() << "The second process failed." << Qt::endl;
        return 1;
    }
    const QString secondOutput = QString::fromLocal8Bit(second.readAllStandardOutput());
    out() << secondOutput;
    // The group saves itself once more when it is destroyed; that is of no interest here.
    QObject::disconnect(&settings, nullptr, nullptr, nullptr);
    if (!secondOutput.contains(QStringLiteral("machine = Laser L-3000"))) {
        out() << "The second process did not see the new values." << Qt::endl;
        return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    // Starts the library: runs the registered start-up callbacks once, in order.
    const ZARSysInitContext context;

    try {
        if (args.size() == 3 && args.at(1) == QLatin1String("--read"))
            return readBack(args.at(2));
        if (args.size() == 2 && !args.at(1).startsWith(QLatin1Char('-')))
            return writeAndVerify(args.at(1));
        if (args.size() == 1) {
            QTemporaryDir dir;
            return writeAndVerify(dir.filePath(QStringLiteral("demo.ini")));
        }
    } catch (const ZARSysException &e) {
        QTextStream(stderr) << "error: " << e.GetText() << Qt::endl;
        return 1;
    }
    QTextStream(stderr) << "usage: zarsys-settings-demo [FILE.ini]" << Qt::endl;
    return 2;
}

#include "main.moc"
