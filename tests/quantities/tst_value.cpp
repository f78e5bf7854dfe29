#include "../startlibrary.h"
#include "../testrow.h"

#include <ZARSysException.h>
#include <ZARSysLocalizationManager.h>
#include <ZARSysValue.h>

#include <QJsonObject>

#include <cmath>

using namespace Qt::StringLiterals;

using Magnitude = ZARSysValue::Magnitude;
using Unit = ZARSysValue::Unit;

namespace {

void useLocale(const QString &name)
{
    ZARSysLocalizationManager::GetManager()->SetLocale(QLocale(name));
}

// Whether T < double compiles.
template<typename T, typename = void>
struct ComparableWithNumber : std::false_type
{ };

template<typename T>
struct ComparableWithNumber<T, std::void_t<decltype(std::declval<T>() < 1.0)>> : std::true_type
{ };

} // namespace

class tst_Value : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startLibrary(); }

    void init() { useLocale(u"en_US"_s); }

    void construction()
    {
        const ZARSysValue unset;
        QVERIFY(!unset.IsValid());
        QVERIFY(std::isnan(unset.GetValue()));
        QCOMPARE(unset.ToString(), u"<not set>"_s);

        ZARSysValue length(ZARSysValue::Length, 12.5);
        QVERIFY(length.IsValid());
        QCOMPARE(double(length), 12.5);
        QCOMPARE(length.GetValue(ZARSysValue::Centimeter), 1.25);
        QCOMPARE(length.GetValue(ZARSysValue::InvalidUnit), 12.5);
        // The unit's magnitude is not checked: 12.5 s in minutes.
        QCOMPARE(length.GetValue(ZARSysValue::Minute), 12.5 / 60);

        length.SetMagnitude(ZARSysValue::Time);
        QCOMPARE(length.GetMagnitude(), ZARSysValue::Time);
        QCOMPARE(length.GetValue(), 12.5);

        // A number given in a unit of the value's magnitude is converted; any other unit is
        // ignored.
        for (const auto &[magnitude, number, unit, stored] :
             {std::tuple {ZARSysValue::Length, 1.0, ZARSysValue::Inch, 25.4},
              std::tuple {ZARSysValue::Length, 1.0, ZARSysValue::InvalidUnit, 1.0},
              std::tuple {ZARSysValue::Length, 2.0, ZARSysValue::Minute, 2.0},
              std::tuple {ZARSysValue::InvalidMagnitude, 3.0, ZARSysValue::Inch, 3.0}}) {
            ZARSysValue value(magnitude, -1);
            value.SetValue(number, unit);
            QCOMPARE(value.GetValue(), stored);
            QCOMPARE(value.GetMagnitude(), magnitude);
        }

        ZARSysValue notSet(ZARSysValue::Length, std::nan(""));
        QVERIFY(notSet.IsValid());
        QCOMPARE(notSet.ToString(ZARSysValue::Inch, 'f', 2), u"<not set>"_s);
    }

    void setText_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<Magnitude>("magnitude");
        QTest::addColumn<QString>("text");
        QTest::addColumn<Unit>("unit");
        QTest::addColumn<double>("stored"); // the magnitude stays

        const Magnitude length = ZARSysValue::Length;
        const Magnitude invalid = ZARSysValue::InvalidMagnitude;
        const Unit none = ZARSysValue::InvalidUnit;
        const Unit mm = ZARSysValue::Millimeter;
        const QString en = u"en_US"_s;
        const QString de = u"de_DE"_s;

        addRow("suffix", en, length, u"1in"_s, none, 25.4);
        addRow("spaces around", en, length, u"  12.5 mm \t"_s, none, 12.5);
        addRow("unit argument", en, length, u"2"_s, ZARSysValue::Inch, 50.8);
        addRow("suffix beats argument", en, length, u"1cm"_s, ZARSysValue::Inch, 10.0);
        addRow("foreign suffix", en, length, u"2 kg/m^2"_s, mm, 2.0);
        addRow("unknown suffix", en, length, u"2 furlong"_s, ZARSysValue::Inch, 50.8);
        addRow("letters only", en, length, u"abc"_s, none, 0.0);
        addRow("empty", en, length, QString(), ZARSysValue::Meter, 0.0);
        addRow("negative", en, length, u"-3cm"_s, none, -30.0);
        addRow("leading point", en, length, u".5in"_s, none, 12.7);
        addRow("trailing point", en, length, u"5.mm"_s, none, 5.0);
        addRow("two tokens do not match", en, length, u"5 mm x"_s, mm, 0.0);
        addRow("second point starts the suffix", en, length, u"1.5.3mm"_s, mm, 1.5);
        addRow("exponent is a suffix", en, length, u"1e3"_s, mm, 1.0);
        addRow("long number", en, length, QString(u"0"_s.repeated(70) + u"1.5in"_s), none, 38.1);
        addRow("group separator dropped", en, length, u"1,000.5mm"_s, none, 1000.5);
        addRow("micro sign", en, ZARSysValue::Time, u"5\u00B5s"_s, none, 5e-6);
        addRow("superscript two", en, ZARSysValue::Area, u"3 cm\u00B2"_s, none, 300.0);
        // The pattern's \s and \d are ASCII classes: the no-break space starts the suffix.
        addRow("no-break space", en, length, u"5\u00A0in"_s, none, 5.0);
        addRow("Arabic-Indic digit", en, length, u"\u0663in"_s, none, 0.0);
        addRow("invalid value keeps the number", en, invalid, u"5mm"_s, mm, 5.0);
        addRow("invalid value, foreign unit", en, invalid, u"2in"_s, none, 2.0);
        addRow("comma decimal", de, length, u"1,5mm"_s, none, 1.5);
        addRow("point in comma locale is a group", de, length, u"1.5mm"_s, none, 15.0);
    }

    void setText()
    {
        QFETCH(QString, locale);
        QFETCH(Magnitude, magnitude);
        QFETCH(QString, text);
        QFETCH(Unit, unit);

        useLocale(locale);
        ZARSysValue value(magnitude, -1);
        value.SetValue(text, unit);
        QTEST(value.GetValue(), "stored");
        QCOMPARE(value.GetMagnitude(), magnitude);
    }

    void fromString_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("number");
        QTest::addColumn<Magnitude>("magnitude");

        const QString en = u"en_US"_s;
        addRow("converted", en, u"2in"_s, 50.8, ZARSysValue::Length);
        addRow("spaces anywhere", en, u" 1 2 m m"_s, 12.0, ZARSysValue::Length);
        addRow("number only", en, u"5"_s, 5.0, ZARSysValue::InvalidMagnitude);
        addRow("unknown suffix", en, u"5 furlong"_s, 5.0, ZARSysValue::InvalidMagnitude);
        addRow("superscript after letters", en, u"2 m\u00B2"_s, 2e6, ZARSysValue::Area);
        addRow("slash after letters", en, u"1.5kg/m^3"_s, 1.5, ZARSysValue::Density);
        addRow("micro sign is a letter", en, u"3\u00B5s"_s, 3e-6, ZARSysValue::Time);
        addRow("suffix only", en, u"mm"_s, 0.0, ZARSysValue::Length);
        addRow("exponent starts the suffix", en, u"1e3"_s, 1.0, ZARSysValue::InvalidMagnitude);
        addRow("non-character dropped", en, u"4m\uFFFEm"_s, 4.0, ZARSysValue::Length);
        addRow("locale grouping", en, u"1,234.5mm"_s, 1234.5, ZARSysValue::Length);
        addRow("comma decimal", u"de_DE"_s, u"1,5mm"_s, 1.5, ZARSysValue::Length);
        addRow("misplaced group separator", u"de_DE"_s, u"1.5mm"_s, 0.0, ZARSysValue::Length);
        addRow("group separator", u"de_DE"_s, u"1.500mm"_s, 1500.0, ZARSysValue::Length);
    }

    void fromString()
    {
        QFETCH(QString, locale);
        QFETCH(QString, text);

        useLocale(locale);
        const ZARSysValue value = ZARSysValue::FromString(text);
        QTEST(value.GetValue(), "number");
        QTEST(value.GetMagnitude(), "magnitude");
    }

    void toString_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<ZARSysValue>("value");
        QTest::addColumn<Unit>("unit");
        QTest::addColumn<char>("format");
        QTest::addColumn<int>("precision");
        QTest::addColumn<QString>("text");

        const QString en = u"en_US"_s;
        const ZARSysValue inch(ZARSysValue::Length, 25.4);
        addRow("converted", en, inch, ZARSysValue::Inch, 'f', 2, u"1.00in"_s);
        addRow("current unit", en, inch, ZARSysValue::InvalidUnit, 'g', 6, u"25.4mm"_s);
        addRow("exponent", en, inch, ZARSysValue::Meter, 'e', 2, u"2.54E-02m"_s);
        addRow("grouped", en, ZARSysValue(ZARSysValue::Length, 12345.5), ZARSysValue::Millimeter,
               'f', 1, u"12,345.5mm"_s);
        addRow("micro", en, ZARSysValue(ZARSysValue::Time, 2e-6), ZARSysValue::Microsecond, 'g', 6,
               u"2\u00B5s"_s);
        addRow("area", en, ZARSysValue(ZARSysValue::Area, 250), ZARSysValue::SquareCentimeter, 'g',
               6, u"2.5cm\u00B2"_s);
        addRow("invalid holds a bare number", en, ZARSysValue(ZARSysValue::InvalidMagnitude, 5),
               ZARSysValue::InvalidUnit, 'g', 6, u"5"_s);
        addRow("comma decimal", u"de_DE"_s, ZARSysValue(ZARSysValue::Length, 1.5),
               ZARSysValue::Millimeter, 'f', 2, u"1,50mm"_s);
        addRow("not set, German", u"de_DE"_s, ZARSysValue(), ZARSysValue::InvalidUnit, 'g', 6,
               u"<nicht gesetzt>"_s);
    }

    void toString()
    {
        QFETCH(QString, locale);
        QFETCH(ZARSysValue, value);
        QFETCH(Unit, unit);
        QFETCH(char, format);
        QFETCH(int, precision);

        useLocale(locale);
        QTEST(value.ToString(unit, format, precision), "text");
    }

    void currentUnitInTextAndJson()
    {
        const ZARSysValue value(ZARSysValue::Length, 25.4);
        QCOMPARE(value.ToJsonObject(), (QJsonObject {{u"value"_s, 25.4}, {u"unit"_s, u"mm"_s}}));

        ZARSysValue::SetMagnitudeCurrentUnit(ZARSysValue::Length, ZARSysValue::Inch);
        QCOMPARE(value.ToString(), u"1in"_s);
        // The number stays in millimetres while the suffix follows the current unit.
        QCOMPARE(value.ToJsonObject(), (QJsonObject {{u"value"_s, 25.4}, {u"unit"_s, u"in"_s}}));
        ZARSysValue::SetMagnitudeCurrentUnit(ZARSysValue::Length, ZARSysValue::Millimeter);

        QCOMPARE(ZARSysValue(ZARSysValue::InvalidMagnitude, 3).ToJsonObject(),
                 (QJsonObject {{u"value"_s, 3}, {u"unit"_s, QString()}}));
    }

    void compare_data()
    {
        QTest::addColumn<ZARSysValue>("a");
        QTest::addColumn<ZARSysValue>("b");
        // ==, !=, <, <=, >, >= as 0 and 1, or x where the ordering throws the error.
        QTest::addColumn<QString>("results");
        QTest::addColumn<QString>("error");

        const auto length = [](double v) {
            return ZARSysValue(ZARSysValue::Length, v);
        };
        const QString invalid = u"Values are invalid"_s;
        addRow("less within tolerance", length(10), length(10.0009), u"100101"_s, QString());
        addRow("greater within tolerance", length(10.0009), length(10), u"100101"_s, QString());
        addRow("at tolerance", length(0), length(0.001), u"010101"_s, QString());
        addRow("clearly less", length(10), length(10.0011), u"011100"_s, QString());
        addRow("clearly greater", length(10.0011), length(10), u"010011"_s, QString());
        addRow("tolerance of the magnitude", ZARSysValue(ZARSysValue::Time, 0),
               ZARSysValue(ZARSysValue::Time, 1e-8), u"011100"_s, QString());
        addRow("different magnitudes", length(1), ZARSysValue(ZARSysValue::Time, 1), u"01xxxx"_s,
               u"Values are different magnitudes"_s);
        addRow("invalid values", ZARSysValue(ZARSysValue::InvalidMagnitude, 1),
               ZARSysValue(ZARSysValue::InvalidMagnitude, 1 + 5e-7), u"10xxxx"_s, invalid);
        addRow("one invalid", length(1), ZARSysValue(ZARSysValue::InvalidMagnitude, 1), u"01xxxx"_s,
               invalid);
        addRow("not set: neither", ZARSysValue(), ZARSysValue(), u"00xxxx"_s, invalid);
        addRow("not set and set", length(std::nan("")), length(1), u"000000"_s, QString());
    }

    void compare()
    {
        QFETCH(ZARSysValue, a);
        QFETCH(ZARSysValue, b);
        QFETCH(QString, results);

        const std::function<bool()> operations[] = {
            [&] { return a == b; }, [&] { return a != b; }, [&] { return a < b; },
            [&] { return a <= b; }, [&] { return a > b; },  [&] { return a >= b; },
        };
        for (int i = 0; i < 6; ++i) {
            try {
                const bool result = operations[i]();
                QVERIFY2(results.at(i) != u'x', "no exception");
                QCOMPARE(result, results.at(i) == u'1');
            } catch (const ZARSysException &e) {
                QCOMPARE(results.at(i), u'x');
                QTEST(e.GetText(), "error");
            }
        }
    }

    void boundsTolerance()
    {
        // A bare number would bypass tolerance and magnitude checks.
        static_assert(!ComparableWithNumber<ZARSysValue>::value);
        static_assert(ComparableWithNumber<double>::value);

        static_assert(ZARSysBoundsTolerance<double>::value == 0.001);
        QCOMPARE(ZARSysBoundsTolerance<float>::value, 0.001f);
    }
};

QTEST_GUILESS_MAIN(tst_Value)
#include "tst_value.moc"
