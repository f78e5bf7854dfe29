#ifndef ZARSYSDEFINEDVALUE_H
#define ZARSYSDEFINEDVALUE_H

#include <ZARSysValue.h>

#include <QAtomicInt>
#include <QByteArray>
#include <QMetaType>

/*!
    \class ZARSysDefinedValue
    \brief A ZARSysValue whose magnitude is fixed by its type, for quantities that travel in a
    QVariant.

    Each magnitude has its own registered meta type, so item models, properties and filters
    know what a variant holds from its type alone. The library registers converters between
    every instance and double (the number in the system unit), QString (formatted with
    ToString() and read with ZARSysValue::FromString()) and ZARSysValue:

    \code
    QVariant v = QVariant::fromValue(ZARSysDefinedValue<ZARSysValue::Length>(25.4));
    v.toString();                    // "25.4mm" with millimetres as the current unit
    v.toDouble();                    // 25.4
    QVariant text(QStringLiteral("1in"));
    text.convert(QMetaType::fromType<ZARSysDefinedValue<ZARSysValue::Length>>()); // 25.4 mm
    \endcode

    A text of another magnitude converts to 0 of this magnitude; a ZARSysValue of another
    magnitude keeps its number and takes this magnitude. Every conversion reports success.
    Text is formatted with six significant digits and read without exponents, so the round trip
    through QString loses precision, and fails for numbers that need an exponent.

    The meta type of ZARSysDefinedValue<ZARSysValue::Length> is known under two names,
    "ZARSysDefinedValue<1>" and "ZARSysDefinedValue<ZARSysValue::Length>", whichever of them
    the compiler makes the type's own; the other is registered as an alias the first time the
    type's id is asked for. Variants of one instance compare through ZARSysValue's operators.
*/
template<ZARSysValue::Magnitude M>
class ZARSysDefinedValue : public ZARSysValue
{
public:
    /*! Constructs 0 (not NaN, unlike ZARSysValue()) of magnitude M. */
    ZARSysDefinedValue()
        : ZARSysValue(M, 0.0)
    { }

    /*!
        Takes the number of \a value as it is and gives it magnitude M, whatever the magnitude
        of \a value was: nothing is converted.
    */
    explicit ZARSysDefinedValue(const ZARSysValue &value)
        : ZARSysValue(M, value.GetValue())
    { }

    /*! Constructs \a value, in the system unit, of magnitude M. */
    explicit ZARSysDefinedValue(double value)
        : ZARSysValue(M, value)
    { }

    /*! Returns a plain ZARSysValue with the same number and magnitude. */
    ZARSysValue ToSysValue() const { return *this; }
};

/// \cond
// Registers both spellings of an instance's name, for the compiler's own one and the other.
#define ZARSYS_DECLARE_DEFINED_VALUE_METATYPE(MAGNITUDE, NUMBER)                                   \
    template<>                                                                                     \
    struct QMetaTypeId<ZARSysDefinedValue<ZARSysValue::MAGNITUDE>>                                 \
    {                                                                                              \
        enum { Defined = 1 };                                                                      \
        static int qt_metatype_id()                                                                \
        {                                                                                          \
            using Type = ZARSysDefinedValue<ZARSysValue::MAGNITUDE>;                               \
            static QBasicAtomicInt metatypeId = Q_BASIC_ATOMIC_INITIALIZER(0);                     \
            if (const int id = metatypeId.loadAcquire())                                           \
                return id;                                                                         \
            qRegisterNormalizedMetaType<Type>(                                                     \
                QByteArrayLiteral("ZARSysDefinedValue<ZARSysValue::" #MAGNITUDE ">"));             \
            const int id = qRegisterNormalizedMetaType<Type>(                                      \
                QByteArrayLiteral("ZARSysDefinedValue<" #NUMBER ">"));                             \
            metatypeId.storeRelease(id);                                                           \
            return id;                                                                             \
        }                                                                                          \
    };

ZARSYS_DECLARE_DEFINED_VALUE_METATYPE(Length, 1)
ZARSYS_DECLARE_DEFINED_VALUE_METATYPE(Force, 2)
ZARSYS_DECLARE_DEFINED_VALUE_METATYPE(Time, 3)
ZARSYS_DECLARE_DEFINED_VALUE_METATYPE(LinearFeedRate, 4)
ZARSYS_DECLARE_DEFINED_VALUE_METATYPE(Angle, 5)
ZARSYS_DECLARE_DEFINED_VALUE_METATYPE(SurfaceWeight, 6)
ZARSYS_DECLARE_DEFINED_VALUE_METATYPE(Density, 7)
ZARSYS_DECLARE_DEFINED_VALUE_METATYPE(Area, 8)

#undef ZARSYS_DECLARE_DEFINED_VALUE_METATYPE
/// \endcond

#endif // ZARSYSDEFINEDVALUE_H
