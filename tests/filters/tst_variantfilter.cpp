#include "../testrow.h"

#include <ZARSysVariantFilter.h>

#include <QBitArray>
#include <QBuffer>
#include <QDataStream>
#include <QDateTime>
#include <QEasingCurve>
#include <QTranslator>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

using Filter = ZARSysVariantFilter;

namespace {

QByteArray serialize(const Filter &filter,
                     QDataStream::Version version = QDataStream::Qt_DefaultCompiledVersion)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(version);
    out << filter;
    return bytes;
}

QDataStream::Status
deserialize(const QByteArray &bytes, Filter &filter,
            QDataStream::Version version = QDataStream::Qt_DefaultCompiledVersion)
{
    QDataStream in(bytes);
    in.setVersion(version);
    in >> filter;
    return in.status();
}

// A filter with every field away from its default.
Filter fullFilter()
{
    Filter filter(QVariant(QVariantList {1, u"two"_s, QVariantMap {{u"k"_s, 3.5}}}),
                  Filter::LessThanOrEqualTo, 0.25, Filter::TypedValueFilter);
    filter.SetRegularExpression(
        QRegularExpression(u"^a.c$"_s, QRegularExpression::CaseInsensitiveOption));
    filter.SetReverse(true);
    return filter;
}

} // namespace

class tst_VariantFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Filters inside base values travel by the type's name, which start-up registers.
        qRegisterMetaType<Filter>("ZARSysVariantFilter");
    }

    void construction()
    {
        const Filter plain;
        QCOMPARE(plain.GetFilterType(), Filter::RegularExpressionFilter);
        QCOMPARE(plain.GetRegularExpression(), QRegularExpression());
        QVERIFY(!plain.GetReverse());
        QVERIFY(!plain.GetBaseValue().isValid());
        QCOMPARE(plain.GetComparisonType(), Filter::NoComparison);
        QCOMPARE(plain.GetTolerance(), 0.0);
        QVERIFY(plain.TestValue(u"anything"_s));
        QVERIFY(plain.TestValue(QVariant()));

        // An unknown filter type passes everything and is not valid.
        Filter unknown;
        unknown.SetFilterType(Filter::FilterType(7));
        QVERIFY(unknown.TestValue(1));
        QVERIFY(!unknown.IsValid());
    }

    void createFilter_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<Filter::FilterType>("filterType");
        QTest::addColumn<Filter::ComparisonType>("type");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<bool>("reverse");
        QTest::addColumn<double>("tolerance");
        QTest::addColumn<QVariantList>("passing");
        QTest::addColumn<QVariantList>("failing");

        const auto regex = Filter::RegularExpressionFilter;
        const double epsilon = std::numeric_limits<double>::epsilon();
        addRow("begins with", QVariant(u"ab"_s), regex, Filter::BeginsWith, u"^ab"_s, false,
               epsilon, QVariantList {u"abc"_s}, QVariantList {u"cab"_s, u"Abc"_s});
        addRow("ends with", QVariant(u"ab"_s), regex, Filter::EndsWith, u"ab$"_s, false, epsilon,
               QVariantList {u"cab"_s}, QVariantList {u"abc"_s});
        addRow("contains, unescaped", QVariant(u"a.c"_s), regex, Filter::Contains, u"a.c"_s, false,
               epsilon, QVariantList {u"xabcx"_s, u"a.c"_s}, QVariantList {u"ac"_s});
        addRow("does not contain", QVariant(u"ab"_s), regex, Filter::DoesNotContain, u"ab"_s, true,
               epsilon, QVariantList {u"xyz"_s}, QVariantList {u"xaby"_s});
        addRow("number as text", QVariant(12), regex, Filter::BeginsWith, u"^12"_s, false, epsilon,
               QVariantList {123, u"12a"_s}, QVariantList {312});
        addRow("other comparison: empty pattern", QVariant(u"ab"_s), regex, Filter::IsEqualTo,
               QString(), false, epsilon, QVariantList {u"zz"_s, QVariant()}, QVariantList {});
        addRow("numeric keeps the tolerance", QVariant(10), Filter::NumericFilter,
               Filter::IsEqualTo, QString(), false, 0.5, QVariantList {10.5, u"9.5"_s},
               QVariantList {10.6});
        addRow("typed drops the tolerance", QVariant(10.0), Filter::TypedValueFilter,
               Filter::IsEqualTo, QString(), false, 0.0, QVariantList {10.0}, QVariantList {10.25});
    }

    void createFilter()
    {
        QFETCH(QVariant, value);
        QFETCH(Filter::FilterType, filterType);
        QFETCH(Filter::ComparisonType, type);
        QFETCH(QString, pattern);
        QFETCH(QVariantList, passing);
        QFETCH(QVariantList, failing);

        const Filter filter = Filter::CreateFilter(value, filterType, type, 0.5);
        QCOMPARE(filter.GetFilterType(), filterType);
        QCOMPARE(filter.GetRegularExpression().pattern(), pattern);
        QCOMPARE(filter.GetRegularExpression().patternOptions(),
                 QRegularExpression::NoPatternOption);
        QTEST(filter.GetReverse(), "reverse");
        QTEST(filter.GetTolerance(), "tolerance");
        QCOMPARE(filter.GetBaseValue(), value);
        QCOMPARE(filter.GetComparisonType(), type);
        for (const QVariant &tested : passing)
            QVERIFY2(filter.TestValue(tested), qPrintable(tested.toString()));
        for (const QVariant &tested : failing)
            QVERIFY2(!filter.TestValue(tested), qPrintable(tested.toString()));

        // An unknown kind gives the default filter.
        QCOMPARE(Filter::CreateFilter(value, Filter::FilterType(3), type, 0.5), Filter());
    }

    void compare_data()
    {
        QTest::addColumn<Filter::FilterType>("filterType");
        QTest::addColumn<QVariant>("base");
        QTest::addColumn<double>("tolerance");
        QTest::addColumn<QVariant>("value");
        // Results for IsEqualTo, IsNotEqualTo, GreaterThan, GreaterThanOrEqualTo, LessThan,
        // LessThanOrEqualTo, as a string of six 0/1.
        QTest::addColumn<QString>("results");

        const auto numeric = [](const char *name, const QVariant &base, double tolerance,
                                const QVariant &value, const QString &results) {
            addRow(name, Filter::NumericFilter, base, tolerance, value, results);
        };
        numeric("above by the tolerance", 10, 0.5, 10.5, u"100101"_s);
        numeric("above beyond", 10, 0.5, 10.6, u"011100"_s);
        numeric("below by the tolerance", 10, 0.5, 9.5, u"100101"_s);
        numeric("below beyond", 10, 0.5, 9.4, u"010011"_s);
        numeric("text is a number", u"10"_s, 0.0, u"1e1"_s, u"100101"_s);
        numeric("no number counts as 0", 0, 0.0, u"abc"_s, u"100101"_s);
        numeric("not a number compares false", 10, 1e300, qQNaN(), u"000000"_s);

        // Typed filters keep a tolerance given to the constructor for doubles.
        const auto typed = [](const char *name, const QVariant &base, const QVariant &value,
                              const QString &results) {
            addRow(name, Filter::TypedValueFilter, base, 0.25, value, results);
        };
        // Most rows are chosen so that comparing the texts instead, or comparing in another width
        // or signedness, would give other results.
        const QDate day(2026, 3, 1);
        typed("bool, false under true", u"1"_s, false, u"010011"_s);
        typed("bool, true over false", 0, true, u"011100"_s);
        typed("bool, equal", u"yes"_s, true, u"100101"_s);
        typed("int, negative", -3, -5, u"010011"_s);
        typed("int, base as text", u"5"_s, 12, u"011100"_s);
        // As unsigned, -1 from the base is the largest value.
        typed("uint", -1, 5u, u"010011"_s);
        typed("qlonglong, beyond 32 bits", 5, qlonglong(1) << 32, u"011100"_s);
        typed("qulonglong, above the signed range", 9, qulonglong(1) << 63, u"011100"_s);
        // The other widths, each by its own type.
        for (const QVariant &held :
             {QVariant::fromValue(long(10)), QVariant::fromValue(short(10)),
              QVariant::fromValue(char(10)), QVariant::fromValue((signed char)(10)),
              QVariant(qulonglong(10)), QVariant::fromValue(ulong(10)),
              QVariant::fromValue(ushort(10)), QVariant::fromValue(uchar(10))})
            typed(held.typeName(), 9, held, u"011100"_s);
        typed("double, within the tolerance", 1.0, 1.2, u"100101"_s);
        typed("double, beyond", 1.0, 1.3, u"011100"_s);
        typed("float, exact", 1.0, 1.2f, u"011100"_s);
        typed("float, not a number", 1.0, std::numeric_limits<float>::quiet_NaN(), u"010000"_s);
        typed("QChar, base as a code", 97, QChar(u'B'), u"010011"_s);
        typed("QString, case-sensitive", u"abc"_s, u"ABC"_s, u"010011"_s);
        typed("QString, beyond the BMP", u"\uFFFF"_s, u"\U0001F600"_s, u"010011"_s);
        typed("QString, text order not numeric", 5, u"10"_s, u"010011"_s);
        typed("QStringList, equal", QStringList {u"a"_s, u"b"_s}, QStringList {u"a"_s, u"b"_s},
              u"100101"_s);
        typed("QStringList, prefix is less", QStringList {u"a"_s, u"b"_s}, QStringList {u"a"_s},
              u"010011"_s);
        typed("QStringList, first difference decides", QStringList {u"a"_s, u"z"_s},
              QStringList {u"b"_s}, u"011100"_s);
        // U+FFFF against U+1F600: the UTF-8 bytes order them one way, the UTF-16 text the other.
        typed("QByteArray, bytes not text", QByteArray("\xef\xbf\xbf"),
              QByteArray("\xf0\x9f\x98\x80"), u"011100"_s);
        typed("QByteArray, prefix is less", QByteArray("ab"), QByteArray("a"), u"010011"_s);
        typed("QDate", day, day.addDays(1), u"011100"_s);
        typed("QDate, base as a date-time", QDateTime(day, QTime(12, 0)), day, u"100101"_s);
        typed("QTime", QTime(12, 0), QTime(11, 59), u"010011"_s);
        typed("QTime, base as a date-time", QDateTime(day, QTime(12, 0)), QTime(12, 0),
              u"100101"_s);
        typed("QDateTime, same instant in two zones", QDateTime(day, QTime(12, 0), Qt::UTC),
              QDateTime(day, QTime(13, 0), Qt::OffsetFromUTC, 3600), u"100101"_s);
        typed("other types by their text", u"b"_s, QUrl(u"a"_s), u"010011"_s);
        typed("invalid value is empty text", u"a"_s, QVariant(), u"010011"_s);
    }

    void compare()
    {
        QFETCH(Filter::FilterType, filterType);
        QFETCH(QVariant, base);
        QFETCH(double, tolerance);
        QFETCH(QVariant, value);
        QFETCH(QString, results);

        const QList<Filter::ComparisonType> evaluated = Filter::GetNumericCompTypes();
        QCOMPARE(results.size(), evaluated.size());
        for (qsizetype i = 0; i < evaluated.size(); ++i) {
            Filter filter(base, evaluated.at(i), tolerance, filterType);
            const char *name =
                QMetaEnum::fromType<Filter::ComparisonType>().valueToKey(evaluated.at(i));
            QVERIFY2(filter.TestValue(value) == (results.at(i) == u'1'), name);
            // Reversing concerns regular expressions only.
            filter.SetReverse(true);
            QVERIFY2(filter.TestValue(value) == (results.at(i) == u'1'), name);
        }
        // The other comparisons, the string and check types included, pass every value.
        for (const auto type : {Filter::NoComparison, Filter::BeginsWith, Filter::Contains,
                                Filter::DoesNotContain, Filter::IsChecked, Filter::IsNotChecked})
            QVERIFY(Filter(base, type, tolerance, filterType).TestValue(value));
    }

    void isValid_data()
    {
        QTest::addColumn<Filter::FilterType>("filterType");
        QTest::addColumn<QVariant>("base");
        QTest::addColumn<Filter::ComparisonType>("type");
        QTest::addColumn<bool>("valid");

        const auto numeric = Filter::NumericFilter;
        addRow("numeric 7", numeric, QVariant(7), Filter::IsEqualTo, true);
        addRow("numeric 7 without comparison", numeric, QVariant(7), Filter::NoComparison, false);
        addRow("numeric -1", numeric, QVariant(-1), Filter::IsEqualTo, false);
        addRow("numeric .5", numeric, QVariant(u".5"_s), Filter::IsEqualTo, false);
        addRow("numeric empty", numeric, QVariant(), Filter::IsEqualTo, false);
        addRow("numeric letter", numeric, QVariant(u"x1"_s), Filter::IsEqualTo, false);
        addRow("numeric 7 with text after", numeric, QVariant(u"7 mm"_s), Filter::LessThan, true);
        addRow("numeric Arabic-Indic digit", numeric, QVariant(u"\u0663"_s), Filter::IsEqualTo,
               true);
        addRow("numeric vulgar fraction", numeric, QVariant(u"\u00BD"_s), Filter::IsEqualTo, true);
        addRow("numeric string comparison", numeric, QVariant(7), Filter::BeginsWith, true);
        addRow("typed, anything", Filter::TypedValueFilter, QVariant(), Filter::NoComparison, true);
        addRow("expression, anything", Filter::RegularExpressionFilter, QVariant(),
               Filter::NoComparison, true);
    }

    void isValid()
    {
        QFETCH(Filter::FilterType, filterType);
        QFETCH(QVariant, base);
        QFETCH(Filter::ComparisonType, type);

        Filter filter(base, type, 0.0, filterType);
        if (filterType == Filter::RegularExpressionFilter)
            filter.SetRegularExpression(QRegularExpression(u"(unclosed"_s));
        QTEST(filter.IsValid(), "valid");
    }

    void equality()
    {
        const Filter reference = fullFilter();
        QCOMPARE(reference, fullFilter());
        QVERIFY(!(reference != fullFilter()));

        // Each field on its own makes a difference.
        const auto differs = [&](const std::function<void(Filter &)> &change) {
            Filter changed = fullFilter();
            change(changed);
            return changed != reference;
        };
        QVERIFY(differs([](Filter &f) { f.SetReverse(false); }));
        QVERIFY(differs([](Filter &f) { f.SetFilterType(Filter::NumericFilter); }));
        QVERIFY(differs([](Filter &f) { f.SetTolerance(std::nextafter(0.25, 1.0)); }));
        QVERIFY(differs([](Filter &f) { f.SetComparisonType(Filter::LessThan); }));
        QVERIFY(differs([](Filter &f) { f.SetRegularExpression(QRegularExpression(u"^a.c"_s)); }));
        // The same pattern without its option.
        QVERIFY(differs([](Filter &f) { f.SetRegularExpression(QRegularExpression(u"^a.c$"_s)); }));
        QVERIFY(differs([](Filter &f) { f.SetBaseValue(QVariantList {1, u"two"_s}); }));
    }

    void copiesAreIndependent()
    {
        Filter original = fullFilter();
        Filter copy = original;
        QCOMPARE(copy, original);

        copy.SetTolerance(9.0);
        QCOMPARE(original.GetTolerance(), 0.25);
        original.SetBaseValue(u"changed"_s);
        QCOMPARE(copy.GetBaseValue(), fullFilter().GetBaseValue());

        Filter assigned;
        assigned = original;
        assigned.SetRegularExpression(QRegularExpression(u"other"_s));
        QCOMPARE(original.GetRegularExpression().pattern(), u"^a.c$"_s);

        // Reading into a copy leaves the original alone.
        Filter target = original;
        QCOMPARE(deserialize(serialize(Filter()), target), QDataStream::Ok);
        QCOMPARE(target, Filter());
        QCOMPARE(original.GetBaseValue(), QVariant(u"changed"_s));
    }

    void vocabulary()
    {
        // The numeric comparisons are the columns of the compare() table, in order.
        QCOMPARE(Filter::GetStringCompTypes(),
                 (QList<Filter::ComparisonType> {Filter::BeginsWith, Filter::EndsWith,
                                                 Filter::Contains, Filter::DoesNotContain}));
        QCOMPARE(Filter::GetEnumCompTypes(),
                 (QList<Filter::ComparisonType> {Filter::IsEqualTo, Filter::IsNotEqualTo}));
        QCOMPARE(Filter::GetBoolCompTypes(),
                 (QList<Filter::ComparisonType> {Filter::IsChecked, Filter::IsNotChecked}));

        const QMap<Filter::ComparisonType, QString> texts = Filter::GetComparisonTypeStringMap();
        QCOMPARE(texts.size(), 13);
        QCOMPARE(texts.firstKey(), Filter::NoComparison);
        QCOMPARE(texts.first(), u"-----------------"_s);
        QCOMPARE(texts.value(Filter::GreaterThanOrEqualTo), u"greater than or equal to"_s);
        QCOMPARE(texts.value(Filter::IsNotChecked), u"is not checked"_s);

        // The texts were taken at the first call: a language installed later is not reflected.
        QTranslator translator;
        QVERIFY(translator.load(u":/localization/translations/ZARSystem-de_DE.qm"_s));
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QVERIFY(Filter::tr("is checked") != u"is checked"_s);
        QCOMPARE(Filter::GetComparisonTypeStringMap(), texts);
        QCoreApplication::removeTranslator(&translator);
    }

    void streamRoundTrip_data()
    {
        QTest::addColumn<Filter>("filter");
        QTest::addColumn<int>("version");

        const int current = QDataStream::Qt_DefaultCompiledVersion;
        // A typed filter on the base value, for the ways base values are written.
        const auto typed = [](const QVariant &base) {
            return Filter(base, Filter::IsEqualTo, 0.0, Filter::TypedValueFilter);
        };
        addRow("default", Filter(), current);
        addRow("every field set", fullFilter(), current);
        addRow("every field set, Qt 5.15 format", fullFilter(), int(QDataStream::Qt_5_15));
        addRow("date-time base",
               Filter(QDateTime(QDate(2026, 11, 22), QTime(8, 30), Qt::UTC), Filter::LessThan, 0.0,
                      Filter::TypedValueFilter),
               current);
        addRow("null string base", typed(QVariant(QMetaType::fromType<QString>())), current);
        addRow("null list base", typed(QVariant(QMetaType::fromType<QVariantList>())), current);
        addRow("variant and pair base",
               typed(QVariant::fromValue(QVariantPair {QVariant::fromValue(QVariant(1)),
                                                       QVariant(QStringList {u"a"_s})})),
               current);
        addRow("hash base", typed(QVariantHash {{u"a"_s, QVariantList {QByteArray("\0", 1)}}}),
               current);
        addRow("filter as base value", typed(QVariant::fromValue(fullFilter())), current);
        addRow("bit array base, 13 bits", typed(QBitArray::fromBits("\xa5\x1f", 13)), current);
        addRow("empty bit array base", typed(QBitArray()), current);
        addRow("unknown enumerations kept",
               Filter(1, Filter::ComparisonType(42), -1.0, Filter::FilterType(-7)), current);
    }

    void streamRoundTrip()
    {
        QFETCH(Filter, filter);
        QFETCH(int, version);

        const auto streamVersion = QDataStream::Version(version);
        Filter read(u"stale"_s, Filter::LessThan, 3.0, Filter::NumericFilter);
        QCOMPARE(deserialize(serialize(filter, streamVersion), read, streamVersion),
                 QDataStream::Ok);
        QCOMPARE(read, filter);
        QCOMPARE(read.GetBaseValue().isNull(), filter.GetBaseValue().isNull());
        QCOMPARE(read.GetBaseValue().metaType(), filter.GetBaseValue().metaType());
    }

    void streamLayout()
    {
        // Field by field, in the stream's byte order and floating-point precision.
        for (const auto order : {QDataStream::BigEndian, QDataStream::LittleEndian}) {
            const Filter filter = fullFilter();
            QByteArray bytes;
            {
                QDataStream out(&bytes, QIODevice::WriteOnly);
                out.setByteOrder(order);
                out << filter;
            }
            QDataStream in(bytes);
            in.setByteOrder(order);
            qint32 filterType = 0;
            QRegularExpression expression;
            bool reverse = false;
            QVariant base;
            qint32 comparison = 0;
            double tolerance = 0;
            in >> filterType >> expression >> reverse >> base >> comparison >> tolerance;
            QCOMPARE(in.status(), QDataStream::Ok);
            QVERIFY(in.atEnd());
            QCOMPARE(filterType, qint32(Filter::TypedValueFilter));
            QCOMPARE(expression, filter.GetRegularExpression());
            QCOMPARE(reverse, true);
            QCOMPARE(base, filter.GetBaseValue());
            QCOMPARE(comparison, qint32(Filter::LessThanOrEqualTo));
            QCOMPARE(tolerance, 0.25);
        }

        // A stream of single precision writes the tolerance as a float.
        const Filter filter(1, Filter::IsEqualTo, 0.1, Filter::NumericFilter);
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out.setFloatingPointPrecision(QDataStream::SinglePrecision);
        out << filter;
        QCOMPARE(bytes.size(), serialize(filter).size() - 4);
        Filter read;
        QDataStream in(bytes);
        in.setFloatingPointPrecision(QDataStream::SinglePrecision);
        in >> read;
        QCOMPARE(read.GetTolerance(), double(0.1f));
    }

    void truncatedStream()
    {
        const QByteArray bytes = serialize(fullFilter());
        for (qsizetype length = 0; length < bytes.size(); ++length) {
            Filter read;
            QCOMPARE(deserialize(bytes.left(length), read), QDataStream::ReadPastEnd);
        }
        // The same through a sequential device that delivers what it has.
        QBuffer buffer;
        buffer.setData(bytes.left(bytes.size() - 3));
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        QDataStream in(&buffer);
        Filter read;
        in >> read;
        QCOMPARE(in.status(), QDataStream::ReadPastEnd);
    }

    void hostileStream_data()
    {
        QTest::addColumn<QByteArray>("bytes");

        // The bytes of the values as the stream writes them.
        const auto encoded = [](auto... values) {
            QByteArray bytes;
            QDataStream out(&bytes, QIODevice::WriteOnly);
            (out << ... << values);
            return bytes;
        };
        // The head of a filter, up to its base value; the header of a variant; a count.
        const QByteArray head = encoded(qint32(2), QRegularExpression(), false);
        const auto variant = [&](quint32 type) {
            return encoded(type, qint8(0));
        };
        const auto count = [&](quint32 n) {
            return encoded(n);
        };
        const QByteArray user = variant(QMetaType::User);

        addRow("lists nested 200000 deep",
               head + (variant(QMetaType::QVariantList) + count(1)).repeated(200000));
        addRow("variants nested 200000 deep", head + variant(QMetaType::QVariant).repeated(200000));
        addRow("pairs nested 200000 deep",
               head + variant(QMetaType::QVariantPair).repeated(200000));
        addRow("maps nested 100000 deep",
               head + (variant(QMetaType::QVariantMap) + count(1) + count(0)).repeated(100000));
        addRow("filters nested 20000 deep",
               head + (user + encoded(QByteArray("ZARSysVariantFilter")) + head).repeated(20000));

        addRow("list claiming 4 billion elements",
               head + variant(QMetaType::QVariantList) + count(0xffffffff) + variant(QMetaType::Int)
                   + count(1));
        addRow("string list claiming 4 billion elements",
               head + variant(QMetaType::QStringList) + count(0xfffffff0));
        addRow("string claiming 4 GB", head + variant(QMetaType::QString) + count(0xfffffffe));

        const QByteArray bitArray = head + variant(QMetaType::QBitArray);
        addRow("bit array of negative size", bitArray + encoded(qint64(-8)) + count(0) + count(0));
        QTest::newRow("bit array with bits set beyond its count") << bitArray + encoded(qint64(13))
                + QByteArray("\xff\xff", 2) + count(0)
                + QByteArray(8, '\0'); // the rest of the filter, complete
        addRow("bit array of 2^62 bits", bitArray + encoded(qint64(1) << 62) + count(0));

        // A cubic curve with a configuration that claims 4 billion points.
        addRow("easing curve claiming 4 billion points",
               head + variant(QMetaType::QEasingCurve)
                   + encoded(quint8(QEasingCurve::BezierSpline), quint64(0), true, 0.3, 1.0, 1.7,
                             quint32(0xffffffff)));
        // Qt's reader of a registered list reserves the claimed room first: 32 GB here.
        qRegisterMetaType<QList<double>>();
        addRow("list of doubles claiming 4 billion elements",
               head + user + encoded(QByteArray("QList<double>"), quint32(0xffffffff), 1.0));
        addRow("unknown user type", head + user + encoded(QByteArray("NoSuchType")));
        addRow("type without stream operators", head + variant(QMetaType::QObjectStar) + count(1));

        // Qt's readers of these abort the process when there is no QGuiApplication, as here.
        for (const auto type : {QMetaType::QPixmap, QMetaType::QBitmap, QMetaType::QIcon,
                                QMetaType::QBrush, QMetaType::QFont, QMetaType::QCursor}) {
            QTest::addRow("%s without a GUI application", QMetaType(type).name())
                << head + variant(type) + count(0) + count(0);
        }
    }

    void hostileStream()
    {
        QFETCH(QByteArray, bytes);
        Filter read;
        const QDataStream::Status status = deserialize(bytes, read);
        QVERIFY(status != QDataStream::Ok);
    }
};

QTEST_GUILESS_MAIN(tst_VariantFilter)
#include "tst_variantfilter.moc"
