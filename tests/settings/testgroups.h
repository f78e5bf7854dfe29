#ifndef TESTGROUPS_H
#define TESTGROUPS_H

#include <ZARSysSettings.h>

#include <QProcess>
#include <QString>
#include <QStringList>

// A group with two declared settings.
class TwoSettings : public ZARSysSettings
{
    Q_OBJECT
    Q_PROPERTY(int zoom MEMBER zoom)
    Q_PROPERTY(QString title MEMBER title)

public:
    explicit TwoSettings(const QByteArray &framework = QByteArrayLiteral("Test/Two"))
        : ZARSysSettings(framework)
    { }
    ~TwoSettings() override = default;

    int zoom = 1;
    QString title = QStringLiteral("untitled");
};

// One level further down, with its own setting and a real reset.
class DerivedSettings : public TwoSettings
{
    Q_OBJECT
    Q_PROPERTY(double ratio MEMBER ratio)

public:
    explicit DerivedSettings(const QByteArray &framework = QByteArrayLiteral("Test/Derived"))
        : TwoSettings(framework)
    { }
    ~DerivedSettings() override = default;

    void RevertToDefaults() override
    {
        SetValue(QByteArrayLiteral("zoom"), 1);
        SetValue(QByteArrayLiteral("title"), QStringLiteral("untitled"));
        SetValue(QByteArrayLiteral("ratio"), 0.5);
        ZARSysSettings::RevertToDefaults();
    }

    double ratio = 0.5;
};

#ifdef ZARSYS_SETTINGS_HELPER
// Runs one step of a scenario in the settings helper process and returns what it printed, or
// a text starting with "<failed>" and its error output.
inline QString runSettingsHelper(const QStringList &arguments)
{
    QProcess helper;
    // In text mode, as Windows programs end their lines with CRLF.
    helper.start(QStringLiteral(ZARSYS_SETTINGS_HELPER), arguments,
                 QIODevice::ReadWrite | QIODevice::Text);
    if (!helper.waitForFinished(30000) || helper.exitStatus() != QProcess::NormalExit
        || helper.exitCode() != 0)
        return QStringLiteral("<failed> ") + QString::fromUtf8(helper.readAllStandardError());
    return QString::fromUtf8(helper.readAllStandardOutput()).trimmed();
}
#endif

#endif // TESTGROUPS_H
