#ifndef TESTGROUPS_H
#define TESTGROUPS_H

#include <ZARSysSettings.h>

#include <QString>

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

#endif // TESTGROUPS_H
