#include "../startlibrary.h"
#include "../testrow.h"

#include <ZARSysLocalizationManager.h>
#include <ZARSysRatio.h>
#include <ZARSysSettings.h>

using namespace Qt::StringLiterals;

using Decoration = ZARSysRatio::Decoration;

class tst_Ratio : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_source = startLibrary(); }

    void init() { ZARSysLocalizationManager::GetManager()->SetLocale(QLocale(u"en_US"_s)); }

    // Runs first, before anything has set a decoration for the process.
    void currentDecorationFromSettings()
    {
        QCOMPARE(ZARSysRatio::GetCurrentDecoration(), ZARSysRatio::Percentage);
        QCOMPARE(ZARSysRatio::FromString(u"50"_s).GetValue(), 0.5);
        QCOMPARE(ZARSysRatio(0.5).ToString(), u"50%"_s);

        // Another module writes the setting; it is read anew at every call.
        ZARSysSettings *group = ZARSysSettingsManager::GetManager()->GetSettings("System/Ratios");
        QVERIFY(group);
        group->SetValue("Decoration", int(ZARSysRatio::Permille));
        QCOMPARE(m_source->value(u"System/Ratios/Decoration"_s).toInt(),
                 int(ZARSysRatio::Permille));
        QCOMPARE(ZARSysRatio::GetCurrentDecoration(), ZARSysRatio::Permille);
        QCOMPARE(ZARSysRatio::FromString(u"50"_s).GetValue(), 0.05);

        // The process-wide choice wins and is not written.
        ZARSysRatio::SetDecoration(ZARSysRatio::None);
        QCOMPARE(ZARSysRatio::GetCurrentDecoration(), ZARSysRatio::None);
        QCOMPARE(m_source->value(u"System/Ratios/Decoration"_s).toInt(),
                 int(ZARSysRatio::Permille));
        group->SetValue("Decoration", int(ZARSysRatio::Permyriad));
        QCOMPARE(ZARSysRatio::GetCurrentDecoration(), ZARSysRatio::None);

        ZARSysRatio::SetDecoration(ZARSysRatio::Percentage);
    }

    void decorations()
    {
        QCOMPARE(ZARSysRatio::GetDecorations(),
                 (QList<Decoration> {ZARSysRatio::None, ZARSysRatio::Percentage,
                                     ZARSysRatio::Permille, ZARSysRatio::Permyriad}));
        // Scale, suffix and label of each decoration, the invalid ones around them included.
        const QStringList expected =
            u"1||;1||None;100|%|Percentage (%);1000|\u2030|Permille (\u2030);"
            "10000|\u2031|Permyriad (\u2031);1||"_s.split(u';');
        for (int d = 0; d <= 5; ++d) {
            QCOMPARE(QString::number(ZARSysRatio::GetDecorationScale(Decoration(d))) + u'|'
                         + ZARSysRatio::GetDecorationSuffix(Decoration(d)) + u'|'
                         + ZARSysRatio::GetDecorationLabel(Decoration(d)),
                     expected.at(d));
        }
        QCOMPARE(ZARSysRatio(0.5).GetValue(ZARSysRatio::Permyriad), 5000.0);

        ZARSysLocalizationManager::GetManager()->SetLocale(QLocale(u"fr_FR"_s));
        QCOMPARE(ZARSysRatio::GetDecorationLabel(ZARSysRatio::Permille), u"Pour mille (\u2030)"_s);
    }

    void toString_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<double>("value");
        QTest::addColumn<Decoration>("decoration");
        QTest::addColumn<QString>("text");

        const QString en = u"en_US"_s;
        addRow("percentage", en, 0.5, ZARSysRatio::Percentage, u"50%"_s);
        addRow("permyriad", en, 0.0125, ZARSysRatio::Permyriad, u"125\u2031"_s);
        addRow("none", en, 0.5, ZARSysRatio::None, u"0.5"_s);
        addRow("invalid", en, 0.5, ZARSysRatio::InvalidDecoration, u"0.5"_s);
        addRow("six digits", en, 1.0 / 3, ZARSysRatio::Percentage, u"33.3333%"_s);
        addRow("grouped", en, 12.345, ZARSysRatio::Percentage, u"1,234.5%"_s);
        addRow("comma decimal", u"de_DE"_s, 0.125, ZARSysRatio::Percentage, u"12,5%"_s);
    }

    void toString()
    {
        QFETCH(QString, locale);
        QFETCH(double, value);
        QFETCH(Decoration, decoration);

        ZARSysLocalizationManager::GetManager()->SetLocale(QLocale(locale));
        QTEST(ZARSysRatio(value).ToString(decoration), "text");
    }

    void setText_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<Decoration>("decoration");
        QTest::addColumn<double>("setValue");
        QTest::addColumn<double>("fromString");

        // The current decoration is per cent here.
        const QString en = u"en_US"_s;
        const Decoration none = ZARSysRatio::None;
        const Decoration permille = ZARSysRatio::Permille;
        const Decoration unset = ZARSysRatio::InvalidDecoration;
        addRow("sign wins", en, u"50%"_s, none, 0.5, 0.5);
        addRow("no sign", en, u"50"_s, ZARSysRatio::Percentage, 50.0, 0.5);
        addRow("unknown sign", en, u"50xyz"_s, permille, 0.05, 0.5);
        addRow("unknown sign, no decoration", en, u"50xyz"_s, unset, 0.5, 0.5);
        addRow("no digit", en, u"abc"_s, permille, 0.0, 0.0);
        addRow("empty", en, QString(), none, 0.0, 0.0);
        addRow("spaces", en, u" 2 5 \u2030 "_s, none, 0.025, 0.025);
        addRow("sign inside the number", en, u"1%2"_s, none, 0.0, 0.0);
        addRow("negative", en, u"-5\u2031"_s, none, -0.0005, -0.0005);
        addRow("grouping", en, u"1,250%"_s, none, 12.5, 12.5);
        addRow("comma decimal", u"de_DE"_s, u"12,5 %"_s, none, 0.125, 0.125);
        addRow("point groups in German", u"de_DE"_s, u"1.5"_s, none, 15.0, 0.15);
    }

    void setText()
    {
        QFETCH(QString, locale);
        QFETCH(QString, text);
        QFETCH(Decoration, decoration);

        ZARSysLocalizationManager::GetManager()->SetLocale(QLocale(locale));
        ZARSysRatio ratio(99);
        ratio.SetValue(text, decoration);
        QTEST(ratio.GetValue(), "setValue");
        QTEST(ZARSysRatio::FromString(text).GetValue(), "fromString");

        // A number is stored as it is, whatever the decoration.
        ratio.SetValue(50.0, ZARSysRatio::Percentage);
        QCOMPARE(ratio.GetValue(), 50.0);
    }

    void suffixDecoration_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Decoration>("decoration");

        addRow("per cent with spaces", u"  % "_s, ZARSysRatio::Percentage);
        addRow("spaces only", u" \t "_s, ZARSysRatio::None);
        addRow("per myriad", u"\u2031"_s, ZARSysRatio::Permyriad);
        addRow("two signs", u"\u2030\u2030"_s, ZARSysRatio::InvalidDecoration);
        addRow("word", u"pct"_s, ZARSysRatio::InvalidDecoration);
    }

    void suffixDecoration()
    {
        QFETCH(QString, text);
        QTEST(ZARSysRatio::GetSuffixDecoration(text), "decoration");
    }

    void compare_data()
    {
        QTest::addColumn<double>("a");
        QTest::addColumn<double>("b");
        QTest::addColumn<QString>("results"); // ==, !=, <, <=, >, >= as 0 and 1

        addRow("within tolerance above", 0.5, 0.5000005, u"100101"_s);
        addRow("within tolerance below", 0.5, 0.4999995, u"100101"_s);
        addRow("clearly less", 0.5, 0.5001, u"011100"_s);
        addRow("clearly greater", 0.5001, 0.5, u"010011"_s);
        addRow("at tolerance", 0.0, 1e-6, u"010100"_s);
        addRow("at tolerance above", 2e-6, 1e-6, u"010001"_s);
    }

    void compare()
    {
        QFETCH(double, a);
        QFETCH(double, b);

        const ZARSysRatio x(a);
        const ZARSysRatio y(b);
        const bool actual[] = {x == y, x != y, x<y, x <= y, x> y, x >= y};
        QString got;
        for (bool r : actual)
            got += r ? u'1' : u'0';
        QTEST(got, "results");
    }

private:
    QSettings *m_source = nullptr;
};

QTEST_GUILESS_MAIN(tst_Ratio)
#include "tst_ratio.moc"
