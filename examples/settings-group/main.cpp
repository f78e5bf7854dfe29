// A module's settings group: settings that outlive the process.
//
// A module derives its group from ZARSysSettings and declares each setting as a Qt property,
// with its default in the class. The group persists itself through the one settings source
// that the host gives ZARSysSettingsManager. This program changes the settings in a batch,
// prints the signals that come of it, and then starts itself a second time: that process reads
// the values back from the file.
//
//   zarsys-settings-group [FILE.ini]
//
// Without a file it works in a temporary folder. With one, run it again to see the values of
// the previous run loaded at start-up (the run counter goes up by one each time). The exit
// status is 0 only if the second process saw the new values.

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

// The group "Demo/Cutting": its settings are the declared properties below. The framework name
// is the group's identity; a second group of the same name would be refused.
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

void printValues(const CuttingSettings &settings)
{
    for (const char *key : {"machine", "feedRate", "runs", "lastRun"}) {
        const QVariant value = settings.GetValue(key, QStringLiteral("(not set)"));
        out() << "    " << key << " = " << value.toString() << Qt::endl;
    }
}

// The second process: a group as the module creates it, then the source, which loads it.
int readBack(const QString &file)
{
    CuttingSettings settings;
    ZARSysSettingsManager::GetManager()->SetSource(new QSettings(file, QSettings::IniFormat));
    printValues(settings);
    return 0;
}

int writeAndVerify(const QString &file)
{
    CuttingSettings settings;
    // SettingChanged comes at once for each value that differs from the stored one;
    // BatchFinished once, when the outermost batch ends, for a module that would rather react
    // to all changes together (say, recompute a tool path once instead of three times).
    QObject::connect(&settings, &ZARSysSettings::SettingChanged,
                     [](const QByteArray &key, const QVariant &value) {
                         out() << "  SettingChanged(" << key << ", " << value.toString() << ")"
                               << Qt::endl;
                     });
    QObject::connect(&settings, &ZARSysSettings::BatchFinished, [](const QList<QByteArray> &keys) {
        out() << "  BatchFinished with " << keys.size() << " keys" << Qt::endl;
    });

    out() << "Settings source: " << file << Qt::endl;
    // Setting the source loads every registered group from it.
    ZARSysSettingsManager::GetManager()->SetSource(new QSettings(file, QSettings::IniFormat));
    out() << "Values at start-up:" << Qt::endl;
    printValues(settings);

    out() << "Changing them in one batch:" << Qt::endl;
    const int runs = settings.runs + 1;
    {
        const ZARSysSettingsBatchContext batch(&settings);
        settings.SetValue("machine", QStringLiteral("Laser L-3000"));
        settings.SetValue("feedRate", 2500.0);
        settings.SetValue("runs", runs);
        // A setting the class does not declare becomes a dynamic property; it is persisted all
        // the same.
        settings.setProperty("lastRun", QDateTime::currentDateTime().toString(Qt::ISODate));
        settings.SetValue("feedRate", 2500.0); // unchanged: no signal
    }
    // Every change was written to the source already; sync() only makes QSettings write its
    // file now, before the second process reads it.
    ZARSysSettingsManager::GetManager()->GetSource()->sync();
    // The group saves itself once more when it is destroyed, and that save reports objectName,
    // QObject's own property, as a change; it is of no interest here.
    QObject::disconnect(&settings, nullptr, nullptr, nullptr);

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
    for (const QString &expected :
         {QStringLiteral("machine = Laser L-3000"), QStringLiteral("feedRate = 2500"),
          QStringLiteral("runs = %1").arg(runs)}) {
        if (!secondOutput.contains(expected)) {
            out() << "The second process did not see " << expected << Qt::endl;
            return 1;
        }
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    const ZARSysInitContext context;

    try {
        if (args.size() == 3 && args.at(1) == QLatin1String("--read"))
            return readBack(args.at(2));
        if (args.size() == 2 && !args.at(1).startsWith(QLatin1Char('-')))
            return writeAndVerify(args.at(1));
        if (args.size() == 1) {
            const QTemporaryDir folder;
            return writeAndVerify(folder.filePath(QStringLiteral("settings.ini")));
        }
    } catch (const ZARSysException &e) {
        QTextStream(stderr) << "error: " << e.GetText() << Qt::endl;
        return 1;
    }
    QTextStream(stderr) << "usage: zarsys-settings-group [FILE.ini]" << Qt::endl;
    return 2;
}

#include "main.moc"
