#ifndef ZARSYSVALUE_H
#define ZARSYSVALUE_H

#include <zarsystem_export.h>

#include <QCoreApplication>
#include <QDebug>
#include <QJsonObject>
#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>

/*!
    \class ZARSysValue
    \brief A physical quantity: an amount held in the system unit of its magnitude.

    A value knows its magnitude (length, force, time, ...) and stores its number in that
    magnitude's system unit (millimetres for a length). It converts on the way in, when it is
    set from a number or a text in any unit of its magnitude, and on the way out, when it is
    read in a unit or formatted with the unit's suffix. A value with magnitude
    InvalidMagnitude is invalid; a value whose number is NaN is "not set".

    \code
    ZARSysValue width(ZARSysValue::Length, 0.0);
    width.SetValue(QStringLiteral("2.5in"), ZARSysValue::Millimeter); // holds 63.5 (mm)
    width.GetValue(ZARSysValue::Centimeter);                          // 6.35
    width.ToString(ZARSysValue::Inch, 'f', 2);                        // "2.50in"
    \endcode

    The static functions are the catalogue of magnitudes and units: their strings, translated
    labels, suffixes, conversions, display precisions and the unit in which the user wants to
    see each magnitude. Initialize() fills it once at library start-up; until then lookups find
    nothing. The current units are read from and written to the settings group "System/Units",
    one key per magnitude ("1" for length).

    Numbers are formatted and read with the locale of ZARSysLocalizationManager. Equality uses
    the tolerance of the left operand's magnitude; the ordering operators throw
    ZARSysException for invalid values or values of different magnitudes.

    Values are plain data that may be copied and parsed on any thread. The catalogue takes no
    locks: it is filled at start-up and then only read, except for the current units and
    precisions, which belong to the user-interface thread. Formatting in the current unit
    reads it on first use, so call ToString() from other threads only once the current units
    have been read (or set) on the user-interface thread.

    The conversion to double is implicit; comparing a value with a bare number would bypass the
    tolerance and the magnitude checks, so those comparisons do not compile. Compare
    GetValue() instead.

    Units outside the catalogue are not meant to be passed in. The library treats them as
    InvalidUnit does: conversions leave the number unchanged and the getters return empty
    results.
*/
class ZARSYSTEM_EXPORT ZARSysValue
{
    Q_GADGET
    Q_DECLARE_TR_FUNCTIONS(ZARSysValue)

public:
    /*! The kind of a quantity. The value 0 is invalid. */
    enum Magnitude : qint32 {
        InvalidMagnitude = 0,
        Length = 1,
        Force = 2,
        Time = 3,
        LinearFeedRate = 4,
        Angle = 5,
        SurfaceWeight = 6,
        Density = 7,
        Area = 8,
    };
    Q_ENUM(Magnitude)

    /*! A unit: (magnitude << 8) | index within the magnitude. The value 0 is invalid. */
    enum Unit : qint32 {
        InvalidUnit = 0,

        Millimeter = 0x100,
        Centimeter = 0x101,
        Meter = 0x102,
        Kilometer = 0x103,
        Inch = 0x104,
        Foot = 0x105,
        Yard = 0x106,
        Mile = 0x107,

        Newton = 0x200,
        Dyne = 0x201,
        PoundForce = 0x202,

        Nanosecond = 0x300,
        Microsecond = 0x301,
        Millisecond = 0x302,
        Second = 0x303,
        Minute = 0x304,
        Hour = 0x305,
        Day = 0x306,
        Week = 0x307,
        Year = 0x308,

        MetersPerMinute = 0x400,
        MillimetersPerMinute = 0x401,
        InchesPerMinute = 0x402,

        Degree = 0x500,
        Radian = 0x501,
        Turn = 0x502,
        ArcSecond = 0x503,
        ArcMinute = 0x504,

        KilogramPerSquareMeter = 0x600,
        KilogramPerSquareMillimeter = 0x601,
        PoundPerSquareInch = 0x602,

        KilogramPerCubicMeter = 0x700,
        KilogramPerCubicMillimeter = 0x701,
        GramPerCubicCentimeter = 0x702,
        GramPerCubicMillimeter = 0x703,
        PoundPerCubicInch = 0x704,
        PoundPerCubicFoot = 0x705,

        SquareMillimeter = 0x800,
        SquareCentimeter = 0x801,
        SquareMeter = 0x802,
        SquareKilometer = 0x803,
        SquareInch = 0x804,
        SquareFoot = 0x805,
        SquareYard = 0x806,
        SquareMile = 0x807,
    };
    Q_ENUM(Unit)

    /*! Constructs an invalid value that is not set: magnitude 0, number NaN. */
    ZARSysValue();
    /*!
        Constructs a value of magnitude \a magnitude holding \a value, taken as already in the
        system unit: nothing is converted or checked.
    */
    ZARSysValue(Magnitude magnitude, double value);

    /*! Returns the number in the system unit, NaN if the value is not set. */
    double GetValue() const { return m_value; }
    /*! Returns GetValue(). */
    operator double() const { return m_value; }
    /*!
        Returns the number converted into \a unit; with InvalidUnit, the stored number. The
        magnitude of \a unit is not compared with the value's.
    */
    double GetValue(Unit unit) const;

    /*!
        Stores \a value given in \a unit. With InvalidUnit, or a unit of another magnitude, the
        number is stored unconverted. The magnitude never changes.
    */
    void SetValue(double value, Unit unit);

    /*!
        Reads \a text, a number in the notation of the localization manager's locale with an
        optional unit suffix ("12.5mm", " 3 in ", "-0.5"), and stores it.

        Group separators are dropped and the decimal point read as the locale writes it. The
        suffix selects the unit when it is a suffix of this value's magnitude (or the value is
        invalid); otherwise, and without a suffix, \a unit is used. The number is converted into
        the system unit when that unit belongs to the value's magnitude and is stored as it is
        otherwise. Text that cannot be read stores 0. An invalid value stays invalid. Nothing is
        reported: the function never throws.
    */
    void SetValue(const QString &text, Unit unit);

    /*!
        Reads \a text loosely, in the localization manager's locale: spaces are dropped, the
        suffix starts at the first letter and gives both the unit and the magnitude of the
        result. Without a known suffix the result is an invalid value holding the number.
        "5 mm" gives a length of 5, "5" and "5 furlong" give invalid values holding 5.
    */
    static ZARSysValue FromString(const QString &text);

    /*!
        Returns the number in \a unit (the magnitude's current unit for InvalidUnit), formatted
        by the localization manager's locale with \a format ('e', 'f' or 'g') and
        \a precision, followed by the unit's suffix without a space: "12.500mm". A value that is
        not set gives the translated "<not set>".

        Neither parser reads exponents: text in the 'e' format, or 'g' text of very large or
        small numbers ("1e+06mm"), does not read back to the same value.
    */
    QString ToString(Unit unit, char format, int precision) const;
    /*! Returns ToString(InvalidUnit, 'g', 6): the current unit, six significant digits. */
    QString ToString() const;

    /*! Returns the magnitude. */
    Magnitude GetMagnitude() const { return m_magnitude; }
    /*! Replaces the magnitude; the number is kept as it is. */
    void SetMagnitude(Magnitude magnitude) { m_magnitude = magnitude; }
    /*! Returns whether the value has a magnitude. A valid value may still be not set. */
    bool IsValid() const { return m_magnitude != InvalidMagnitude; }

    /*!
        Returns {"value": number, "unit": suffix}. The number is in the system unit, while the
        suffix is that of the magnitude's current unit: readers take "value" as system units.
    */
    QJsonObject ToJsonObject() const;

    /*!
        Returns whether both values have the same magnitude and their numbers differ by less
        than the tolerance of that magnitude (1e-6 for invalid values). Values that are not set
        are never equal. Never throws.
    */
    bool operator==(const ZARSysValue &other) const;
    /*!
        Returns whether the magnitudes differ or the numbers differ by at least the tolerance.
        Two values of one magnitude that are not set are neither equal nor unequal.
    */
    bool operator!=(const ZARSysValue &other) const;
    /*!
        The ordering operators compare the numbers with the tolerance of this value's
        magnitude: a < b when a is below b by more than the tolerance, a <= b when a is at most
        the tolerance above b, and so on.

        They throw ZARSysException "Values are invalid" if either value is invalid, and
        "Values are different magnitudes" if the magnitudes differ.
    */
    bool operator<(const ZARSysValue &other) const;
    /*! Whether this value is at most the tolerance above \a other; throws as operator<() does. */
    bool operator<=(const ZARSysValue &other) const;
    /*!
        Whether this value exceeds \a other by more than the tolerance; throws as operator<()
        does.
    */
    bool operator>(const ZARSysValue &other) const;
    /*! Whether this value is at most the tolerance below \a other; throws as operator<() does. */
    bool operator>=(const ZARSysValue &other) const;

    bool operator==(double) const = delete;
    bool operator!=(double) const = delete;
    bool operator<(double) const = delete;
    bool operator<=(double) const = delete;
    bool operator>(double) const = delete;
    bool operator>=(double) const = delete;

    // The catalogue.

    /*!
        Fills the catalogue: the eight magnitudes and their units, and the meta-type converters
        of ZARSysDefinedValue. Labels are translated with the translators installed at that
        time. The library's start-up calls it; later calls do nothing.
    */
    static void Initialize();

    /*! Returns the magnitudes Length to Area in order. */
    static QList<Magnitude> GetAllMagnitudes();
    /*! Returns every unit in ascending order of value. */
    static QList<Unit> GetAllUnits();
    /*! Returns the units of \a magnitude in ascending order of value. */
    static QList<Unit> GetMagnitudeUnits(Magnitude magnitude);
    /*! Returns the magnitude of \a unit: unit >> 8. */
    static Magnitude GetUnitMagnitude(Unit unit) { return Magnitude(unit >> 8); }
    /*! Returns the unit in which values of \a magnitude are stored. */
    static Unit GetMagnitudeSystemUnit(Magnitude magnitude);
    /*! Returns the string of \a magnitude, its English label without spaces ("LinearFeedRate"). */
    static QString GetMagnitudeString(Magnitude magnitude);
    /*! Returns the label of \a magnitude as translated when the catalogue was filled. */
    static QString GetMagnitudeLabel(Magnitude magnitude);
    /*! Returns the magnitude whose string is \a text exactly; InvalidMagnitude if none. */
    static Magnitude GetMagnitudeFromString(const QString &text);
    /*! Returns the magnitude whose stored label is \a text exactly; InvalidMagnitude if none. */
    static Magnitude GetMagnitudeFromLabel(const QString &text);

    /*! Returns the string of \a unit, which is its enumerator's name; "InvalidUnit" for 0. */
    static QString GetUnitString(Unit unit);
    /*! Returns the label of \a unit translated now, so a translator loaded later is honoured. */
    static QString GetUnitLabel(Unit unit);
    /*! Returns the suffix of \a unit ("mm", "µs", "mm²"); empty for InvalidUnit. */
    static QString GetUnitSuffix(Unit unit);
    /*! Returns the unit whose string is \a text exactly (case-sensitive); InvalidUnit if none. */
    static Unit GetUnitFromString(const QString &text);
    /*! Returns the first unit whose current label is \a text exactly; InvalidUnit if none. */
    static Unit GetUnitFromLabel(const QString &text);
    /*!
        Returns the unit whose suffix is \a text exactly: "mm²" is found, "mm2" and "MM" are
        not. InvalidUnit if none.
    */
    static Unit GetUnitFromSuffix(const QString &text);
    /*! Returns the number of decimals \a unit is shown with; -1 for InvalidUnit. */
    static int GetUnitPrecision(Unit unit);
    /*! Replaces the precision of \a unit for the rest of the process; it is not persisted. */
    static void SetUnitPrecision(Unit unit, int precision);

    /*!
        Returns the unit in which values of \a magnitude are shown: the unit stored under the
        magnitude's number in "System/Units", read once, or the system unit when none is
        stored. The stored number is returned as it is, unchecked.
    */
    static Unit GetMagnitudeCurrentUnit(Magnitude magnitude);
    /*! Makes \a unit the current unit of \a magnitude and persists it; nothing is checked. */
    static void SetMagnitudeCurrentUnit(Magnitude magnitude, Unit unit);

    /*! Converts \a value given in \a unit into the system unit. */
    static double ConvertToSystemUnit(Unit unit, double value);
    /*! Converts \a value given in the system unit into \a unit (note the argument order). */
    static double ConvertFromSystemUnit(double value, Unit unit);

private:
    double m_value;
    Magnitude m_magnitude;
};

/*!
    \relates ZARSysValue

    Writes the number of \a value in the system unit, as a double, to \a debug.
*/
ZARSYSTEM_EXPORT QDebug operator<<(QDebug debug, const ZARSysValue &value);

/*!
    \class ZARSysBoundsTolerance
    \brief The tolerance that modules use when they check numbers against bounds:
    ZARSysBoundsTolerance<double>::value is 0.001.

    ZARSysValue does not use it; values compare with the tolerance of their magnitude.
*/
template<typename T>
struct ZARSysBoundsTolerance;

/*! \brief The bounds tolerance of double numbers. */
template<>
struct ZARSysBoundsTolerance<double>
{
    /*! The tolerance, 0.001. */
    static constexpr double value = 0.001;
};

/*! \brief The bounds tolerance of float numbers. */
template<>
struct ZARSysBoundsTolerance<float>
{
    /*! The tolerance, 0.001. */
    static constexpr float value = 0.001f;
};

#endif // ZARSYSVALUE_H
