#ifndef ZARSYSVARIANTFILTER_H
#define ZARSYSVARIANTFILTER_H

#include <zarsystem_export.h>

#include <QCoreApplication>
#include <QList>
#include <QMap>
#include <QMetaType>
#include <QObject>
#include <QRegularExpression>
#include <QSharedDataPointer>
#include <QString>
#include <QVariant>

class QDataStream;
class ZARSysVariantFilterPrivate;

/*!
    \class ZARSysVariantFilter
    \brief A condition that a QVariant passes or fails: a regular expression, a numeric
    comparison with a tolerance, or a comparison chosen by the tested value's own type.

    Filters are implicitly shared values: copies are cheap and a setter on one copy is never
    seen by another. They travel in QVariant under the name "ZARSysVariantFilter" and in a
    QDataStream, so that saved views and settings can keep them.

    \code
    // What an editor builds from "begins with" and the text "ab".
    const auto filter = ZARSysVariantFilter::CreateFilter(
        QStringLiteral("ab"), ZARSysVariantFilter::RegularExpressionFilter,
        ZARSysVariantFilter::BeginsWith, 0.0);
    filter.TestValue(QStringLiteral("abc")); // true
    filter.TestValue(QStringLiteral("cab")); // false

    // 10 give or take 0.5.
    const ZARSysVariantFilter near10(10.0, ZARSysVariantFilter::IsEqualTo, 0.5,
                                     ZARSysVariantFilter::NumericFilter);
    near10.TestValue(10.5); // true
    \endcode

    The class also supplies the vocabulary of a filter editor: the display text of every
    comparison type and the comparison types that suit text, numbers, enumerations and
    check boxes.
*/
class ZARSYSTEM_EXPORT ZARSysVariantFilter
{
    Q_GADGET
    Q_DECLARE_TR_FUNCTIONS(ZARSysVariantFilter)

public:
    /*! How a filter tests values. */
    enum FilterType : qint32 {
        RegularExpressionFilter = 0, //!< The value's text is searched with the expression.
        NumericFilter = 1, //!< The value is compared as a double, within the tolerance.
        TypedValueFilter = 2, //!< The value is compared in its own type with the base value.
    };
    Q_ENUM(FilterType)

    /*!
        The comparisons; "greater" always means that the tested value is greater than the
        base value.
    */
    enum ComparisonType : qint32 {
        NoComparison = -1, //!< No comparison; shown as a separator line.
        BeginsWith = 0,
        EndsWith = 1,
        Contains = 2,
        DoesNotContain = 3,
        IsEqualTo = 4,
        IsNotEqualTo = 5,
        GreaterThan = 6,
        GreaterThanOrEqualTo = 7,
        LessThan = 8,
        LessThanOrEqualTo = 9,
        IsChecked = 10,
        IsNotChecked = 11,
    };
    Q_ENUM(ComparisonType)

    /*!
        Constructs a regular-expression filter with an empty expression, which passes every
        value. Its tolerance is 0.
    */
    ZARSysVariantFilter();
    /*!
        Constructs a filter of type \a filterType that compares with \a base by \a type,
        within \a tolerance. The expression is empty and not reversed.
    */
    ZARSysVariantFilter(const QVariant &base, ComparisonType type, double tolerance,
                        FilterType filterType);
    /*!
        Constructs a regular-expression filter that searches the tested value's text with
        \a expression and, when \a reverse is true, passes the values that do not match. The
        base value is invalid, the comparison type NoComparison and the tolerance the machine
        epsilon of double (unlike the default constructor's 0).
    */
    ZARSysVariantFilter(QRegularExpression expression, bool reverse);
    /*! Constructs a copy of \a other; the two share their data until one of them changes. */
    ZARSysVariantFilter(const ZARSysVariantFilter &other);
    /*!
        Constructs a filter from the data of \a other, which may then only be assigned to or
        destroyed.
    */
    ZARSysVariantFilter(ZARSysVariantFilter &&other) noexcept;
    /*! Makes this filter a copy of \a other. */
    ZARSysVariantFilter &operator=(const ZARSysVariantFilter &other);
    /*!
        Takes over the data of \a other, which may then only be assigned to or destroyed.
    */
    ZARSysVariantFilter &operator=(ZARSysVariantFilter &&other) noexcept;
    ~ZARSysVariantFilter();

    /*! Swaps this filter with \a other; never fails. */
    void swap(ZARSysVariantFilter &other) noexcept { d.swap(other.d); }

    /*!
        The filter a filter editor makes from the value \a value typed or chosen by the user:

        \list
        \li NumericFilter: compares with \a value by \a type within \a tolerance.
        \li TypedValueFilter: compares with \a value by \a type; \a tolerance is ignored
            (0).
        \li RegularExpressionFilter: searches for the text of \a value at the start
            (BeginsWith), at the end (EndsWith) or anywhere (Contains, DoesNotContain, which
            reverses the result); any other \a type gives an empty expression, which passes
            everything. The text is a pattern as it stands: its special characters keep their
            meaning, so "a.c" also matches "abc". The match is case-sensitive. The filter keeps
            \a value and \a type as its base value and comparison type.
        \endlist

        Any other \a filterType gives a default-constructed filter.
    */
    static ZARSysVariantFilter CreateFilter(const QVariant &value, FilterType filterType,
                                            ComparisonType type, double tolerance);

    /*! Returns how the filter tests values. */
    FilterType GetFilterType() const;
    /*! Makes the filter test values as \a filterType says; the other fields stay as they are. */
    void SetFilterType(FilterType filterType);
    /*! Returns the expression that a regular-expression filter searches with. */
    QRegularExpression GetRegularExpression() const;
    /*! Replaces the expression that a regular-expression filter searches with by \a expression. */
    void SetRegularExpression(const QRegularExpression &expression);
    /*! Whether a regular-expression filter passes the values that do not match. */
    bool GetReverse() const;
    /*! With \a reverse true, a regular-expression filter passes the values that do not match. */
    void SetReverse(bool reverse);
    /*! Returns the base value, the one that numeric and typed filters compare with. */
    QVariant GetBaseValue() const;
    /*! Replaces the base value by \a base; a regular-expression filter keeps its expression. */
    void SetBaseValue(const QVariant &base);
    /*! Returns the comparison that numeric and typed filters make. */
    ComparisonType GetComparisonType() const;
    /*!
        Replaces the comparison by \a type. A regular-expression filter ignores it and keeps its
        expression.
    */
    void SetComparisonType(ComparisonType type);
    /*! The absolute tolerance of numeric comparisons. */
    double GetTolerance() const;
    /*! Replaces the absolute tolerance of numeric comparisons by \a tolerance. */
    void SetTolerance(double tolerance);

    /*!
        Whether \a value passes:

        \list
        \li RegularExpressionFilter: whether the expression is found anywhere in
            \a value.toString(); the opposite when the filter is reversed.
        \li NumericFilter: with b the base value and v the tested value as double (0 when
            not a number), and t the tolerance: IsEqualTo passes when |b - v| <= t,
            IsNotEqualTo when |b - v| > t, GreaterThan when v - b > t, LessThan when
            b - v > t, and the "or equal" types when either part passes. Other comparison types
            pass every value.
        \li TypedValueFilter: the base value is converted to the type of \a value and the two
            are compared in that type: booleans (false < true), signed and unsigned integers
            of 32 or 64 bits, double (as for NumericFilter), float (exactly), QChar, QString
            and QStringList (case-sensitive, by UTF-16 code unit), QByteArray (byte-wise),
            QDate, QTime and QDateTime. Values of any other type, quantities included, are
            compared as text. Only the comparison types IsEqualTo to LessThanOrEqualTo are
            evaluated: the others, IsChecked and IsNotChecked too, pass every value.
        \endlist
    */
    virtual bool TestValue(const QVariant &value) const;

    /*!
        Whether the filter can test values: regular-expression and typed filters always can
        (the expression is not checked); a numeric filter can when it has a comparison type
        and the text of its base value begins with a digit or another number character
        (QChar::isNumber(): "½", "²"), so "7" is valid but "-1", ".5" and an empty base value
        are not. A base value such as "½" then reads as 0.
    */
    virtual bool IsValid() const;

    /*!
        Whether the two filters have the same reverse flag, filter type, tolerance (exactly),
        comparison type, expression (pattern and options) and base value.
    */
    bool operator==(const ZARSysVariantFilter &other) const;
    /*! Whether the two filters differ in any of the fields that operator==() compares. */
    bool operator!=(const ZARSysVariantFilter &other) const { return !(*this == other); }

    /*!
        The display texts of the comparison types, translated when first asked for (a later
        change of language is not reflected). NoComparison is a separator line and comes
        first.
    */
    static QMap<ComparisonType, QString> GetComparisonTypeStringMap();
    /*! BeginsWith, EndsWith, Contains and DoesNotContain: the comparisons of text. */
    static QList<ComparisonType> GetStringCompTypes();
    /*! IsEqualTo, IsNotEqualTo, GreaterThan, GreaterThanOrEqualTo, LessThan, LessThanOrEqualTo. */
    static QList<ComparisonType> GetNumericCompTypes();
    /*! IsEqualTo and IsNotEqualTo: the comparisons of enumeration values. */
    static QList<ComparisonType> GetEnumCompTypes();
    /*! IsChecked and IsNotChecked: the comparisons of check boxes. */
    static QList<ComparisonType> GetBoolCompTypes();

private:
    friend ZARSYSTEM_EXPORT QDataStream &operator>>(QDataStream &stream,
                                                    ZARSysVariantFilter &filter);

    QSharedDataPointer<ZARSysVariantFilterPrivate> d;
};

Q_DECLARE_SHARED(ZARSysVariantFilter)

/*!
    \relates ZARSysVariantFilter

    Writes \a filter to \a stream with the stream's version and byte order: the filter type
    (qint32), the expression, the reverse flag (bool), the base value (QVariant), the
    comparison type (qint32) and the tolerance (double).
*/
ZARSYSTEM_EXPORT QDataStream &operator<<(QDataStream &stream, const ZARSysVariantFilter &filter);

/*!
    \relates ZARSysVariantFilter

    Reads a filter written by operator<<() into \a filter. The enumerations are taken as they
    are read, without validation. A stream that ends early or holds malformed data sets the
    stream's status; the fields then hold what Qt's readers leave (zeros and empty values from
    the failure on).

    Filters may come from untrusted files: in streams of Qt 6 versions, counts of elements are
    not trusted, base values nested deeper than 64 levels of variants, pairs, lists, maps
    and filters count as malformed, and so do values of Qt Gui types (pixmaps, brushes, fonts,
    ...) in a process without a QGuiApplication, whose readers would abort it, and so do easing
    curves in any process: Qt writes them with the address of a function, and its reader
    trusts their lengths. A value of another type whose claimed size exceeds the memory
    available (a registered QList<double> claiming billions of elements) counts as malformed
    too. Streams of older versions are read by Qt's own readers, with none of these guards:
    read them only from trusted sources.
*/
ZARSYSTEM_EXPORT QDataStream &operator>>(QDataStream &stream, ZARSysVariantFilter &filter);

#endif // ZARSYSVARIANTFILTER_H
