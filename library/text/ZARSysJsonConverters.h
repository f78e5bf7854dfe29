#ifndef ZARSYSJSONCONVERTERS_H
#define ZARSYSJSONCONVERTERS_H

#include <zarsystem_export.h>

#include <QColor>
#include <QJsonValue>
#include <QSize>

/*!
    \class ZARSysJsonConverters
    \brief One JSON form for colours, sizes and numbers across the SDK.

    A colour is the object {"r", "g", "b", "a"} of 8-bit integers, a size the object
    {"w", "h"}, and a double a JSON number, with null for NaN (JSON has no NaN). Reading checks
    the shape strictly: an object needs exactly its members, no more and no fewer.

    \code
    QJsonObject style;
    style.insert(u"fill"_s, ZARSysJsonConverters::Convert(QColor(255, 128, 0)));
    QColor fill;
    if (!ZARSysJsonConverters::Convert(style.value(u"fill"_s), fill))
        fill = Qt::black;
    \endcode
*/
class ZARSYSTEM_EXPORT ZARSysJsonConverters
{
public:
    /*! The object {"r", "g", "b", "a"} of \a color's 8-bit components. */
    static QJsonValue Convert(const QColor &color);
    /*! The object {"w", "h"} of \a size. */
    static QJsonValue Convert(const QSize &size);
    /*! \a value as a JSON number; null for NaN. */
    static QJsonValue Convert(double value);

    /*!
        Reads a colour: \a json must be an object of exactly the members "r", "g", "b" and
        "a". Members that are not whole numbers count as 0; a number outside 0 to 255 makes
        the colour invalid. Returns false, leaving \a color alone, when the shape is wrong.
    */
    static bool Convert(const QJsonValue &json, QColor &color);
    /*!
        Reads a size: \a json must be an object of exactly the members "w" and "h". Members
        that are not whole numbers count as 0. Returns false, leaving \a size alone, when the
        shape is wrong.
    */
    static bool Convert(const QJsonValue &json, QSize &size);
    /*!
        Reads a double: a number, or null for NaN. Returns false, leaving \a value alone, for
        anything else (a string holding a number too).
    */
    static bool Convert(const QJsonValue &json, double &value);
};

#endif // ZARSYSJSONCONVERTERS_H
