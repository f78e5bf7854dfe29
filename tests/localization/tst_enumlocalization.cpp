#include <ZARSysAbstractEnumLocalization.h>
#include <ZARSysException.h>

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

enum CutMode { Inner = 1, Outer = 2, Both = 3, Contour = 4 };

// A module's localization of its enumeration; the texts can change like a language does.
class CutModeLocalization : public ZARSysAbstractEnumLocalization
{
public:
    static constexpr int Type = 4711;
    static inline QString suffix;

    CutModeLocalization()
        : ZARSysAbstractEnumLocalization(Type)
    { }

    static QString Text(int value)
    {
        switch (value) {
        case Inner:
            return u"Inner"_s + suffix;
        case Outer:
            return u"Outer"_s + suffix;
        case Both:
        case Contour: // shares its text with Both
            return u"Both"_s + suffix;
        }
        return QString();
    }

    static void Register(const QList<int> &values,
                         const std::function<QString(int)> &toText = &CutModeLocalization::Text)
    {
        RegisterValueLocalization(Type, values, toText);
    }
};

} // namespace

class tst_EnumLocalization : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unregistered()
    {
        QVERIFY(!ZARSysAbstractEnumLocalization::IsRegistered(CutModeLocalization::Type));
        try {
            CutModeLocalization localization;
            QFAIL("no exception");
        } catch (const ZARSysException &e) {
            QCOMPARE(e.GetText(), u"type has not been registered"_s);
        }
        QCOMPARE(ZARSysAbstractEnumLocalization::IntegerToString(CutModeLocalization::Type, Inner),
                 QString());
        QCOMPARE(
            ZARSysAbstractEnumLocalization::StringToInteger(CutModeLocalization::Type, u"Inner"_s),
            0);

        // Registering twice lists the values twice in the registry, once in a snapshot.
        CutModeLocalization::Register({Both, Inner});
        CutModeLocalization::Register({Outer, Inner, Contour});
        QVERIFY(ZARSysAbstractEnumLocalization::IsRegistered(CutModeLocalization::Type));
        QList<int> values = CutModeLocalization().GetRegisteredIntegers();
        std::sort(values.begin(), values.end());
        QCOMPARE(values, (QList<int> {Inner, Outer, Both, Contour}));
    }

    void snapshot_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("value");

        QTest::newRow("known") << u"Outer"_s << int(Outer);
        QTest::newRow("case matters") << u"outer"_s << -1;
        QTest::newRow("prefix") << u"Out"_s << -1;
        QTest::newRow("empty") << QString() << -1;
    }

    void snapshot()
    {
        QFETCH(QString, text);
        QFETCH(int, value);

        const CutModeLocalization localization;
        QCOMPARE(localization.GetIntegerFromString(text, -1), value);
        if (value != -1)
            QCOMPARE(localization.GetStringFromInteger(value), text);
        QCOMPARE(localization.GetStringFromInteger(99), QString());
        QCOMPARE(ZARSysAbstractEnumLocalization::StringToInteger(CutModeLocalization::Type, text),
                 value == -1 ? 0 : value);
    }

    void sharedTextTieBreaks()
    {
        // Both was registered before Contour: the snapshot keeps the first registered value, the
        // static look-up returns the most recent one.
        const CutModeLocalization localization;
        QCOMPARE(localization.GetIntegerFromString(u"Both"_s, -1), int(Both));
        QCOMPARE(
            ZARSysAbstractEnumLocalization::StringToInteger(CutModeLocalization::Type, u"Both"_s),
            int(Contour));
        QCOMPARE(localization.GetStringFromInteger(Contour), u"Both"_s);
    }

    void snapshotKeepsItsLanguage()
    {
        const CutModeLocalization before;
        CutModeLocalization::suffix = u" (de)"_s;
        QCOMPARE(before.GetStringFromInteger(Inner), u"Inner"_s);
        QCOMPARE(ZARSysAbstractEnumLocalization::IntegerToString(CutModeLocalization::Type, Inner),
                 u"Inner (de)"_s);
        QCOMPARE(ZARSysAbstractEnumLocalization::StringToInteger(CutModeLocalization::Type,
                                                                 u"Outer (de)"_s),
                 int(Outer));
        QCOMPARE(CutModeLocalization().GetIntegerFromString(u"Outer (de)"_s, -1), int(Outer));
        CutModeLocalization::suffix.clear();

        // A later registration replaces the function and keeps the values.
        CutModeLocalization::Register({}, [](int value) { return QString::number(value); });
        QCOMPARE(ZARSysAbstractEnumLocalization::IntegerToString(CutModeLocalization::Type, Outer),
                 u"2"_s);
        QCOMPARE(CutModeLocalization().GetIntegerFromString(u"4"_s, -1), int(Contour));
        CutModeLocalization::Register({});
    }
};

QTEST_GUILESS_MAIN(tst_EnumLocalization)
#include "tst_enumlocalization.moc"
