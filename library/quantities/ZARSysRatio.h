#ifndef ZARSYSRATIO_H
#define ZARSYSRATIO_H

#include <zarsystem_export.h>

#include <QCoreApplication>
#include <QList>
#include <QObject>
#include <QString>

/*!
    \class ZARSysRatio
    \brief A dimensionless ratio, a plain fraction (0.5 is one half), shown and typed with a
    decoration: plain, per cent, per mille or per myriad.

    The number is formatted and read with the locale of ZARSysLocalizationManager; the per-cent
    sign is the default QLocale()'s. The decoration the user prefers is read from the key
    "Decoration" of the settings group "System/Ratios" (per cent when nothing is stored) until
    SetDecoration() overrides it for the process; this library never writes that key.

    \code
    ZARSysRatio ratio(0.5);
    ratio.ToString(ZARSysRatio::Percentage); // "50%"
    ratio.ToString(ZARSysRatio::Permille);   // "500‰"
    ratio.SetValue(QStringLiteral("25%"), ZARSysRatio::None); // 0.25
    \endcode

    Ratios compare with the fixed tolerance 1e-6; no comparison throws. Comparisons with a bare
    number, which would bypass the tolerance, do not compile: compare GetValue() instead.
*/
class ZARSYSTEM_EXPORT ZARSysRatio
{
    Q_GADGET
    Q_DECLARE_TR_FUNCTIONS(ZARSysRatio)

public:
    /*! How a ratio is shown: the scale it is multiplied by and the sign that follows it. */
    enum Decoration : qint32 {
        InvalidDecoration = 0, //!< No decoration; also the result for an unknown sign.
        None = 1, //!< Scale 1, no sign.
        Percentage = 2, //!< Scale 100, the per-cent sign.
        Permille = 3, //!< Scale 1000, U+2030.
        Permyriad = 4, //!< Scale 10000, U+2031.
    };
    Q_ENUM(Decoration)

    /*! Constructs the ratio 0. */
    ZARSysRatio()
        : m_value(0.0)
    { }
    /*! Constructs the ratio \a value, a plain fraction. */
    explicit ZARSysRatio(double value)
        : m_value(value)
    { }

    /*! Returns the fraction. */
    double GetValue() const { return m_value; }
    /*! Returns the fraction. */
    operator double() const { return m_value; }
    /*! Returns the fraction multiplied by the scale of \a decoration: 5000 for 0.5 per myriad. */
    double GetValue(Decoration decoration) const;

    /*!
        Stores \a value as the fraction. The decoration is not applied: SetValue(50,
        Percentage) stores 50, not 0.5, unlike GetValue(Percentage) which scales.
    */
    void SetValue(double value, Decoration decoration);

    /*!
        Reads \a text, a number in the localization manager's locale followed by an optional
        sign: "50%" stores 0.5 and "50" stores 50 whatever \a decoration is. An unknown sign
        ("50xyz") makes the number count in \a decoration, or in the current decoration when
        \a decoration is InvalidDecoration. Text without a digit stores 0.
    */
    void SetValue(const QString &text, Decoration decoration);

    /*!
        Reads \a text like SetValue(), except that a number without a sign or with an unknown
        one counts in the current decoration: "50" gives 0.5 while per cent is current.
    */
    static ZARSysRatio FromString(const QString &text);

    /*!
        Returns the fraction scaled by \a decoration, formatted by the localization manager's
        locale with six significant digits, followed by the decoration's sign without a space.
    */
    QString ToString(Decoration decoration) const;
    /*! Returns ToString(GetCurrentDecoration()). */
    QString ToString() const;

    /*!
        Returns the decoration set by SetDecoration(), or else the one stored under
        "System/Ratios"/"Decoration" (Percentage when none is), read anew at every call.
    */
    static Decoration GetCurrentDecoration();
    /*! Makes \a decoration current for the rest of the process; the setting is not written. */
    static void SetDecoration(Decoration decoration);

    /*! Returns None, Percentage, Permille and Permyriad, in this order. */
    static QList<Decoration> GetDecorations();
    /*! Returns the scale of \a decoration: 1, 100, 1000 or 10000; 1 for an invalid one. */
    static double GetDecorationScale(Decoration decoration);
    /*! Returns the sign of \a decoration; empty for None and an invalid one. */
    static QString GetDecorationSuffix(Decoration decoration);
    /*! Returns the translated label of \a decoration, "Percentage (%)"; empty if invalid. */
    static QString GetDecorationLabel(Decoration decoration);
    /*!
        Returns the decoration whose sign is \a text once white space around it is removed:
        None for the empty text, InvalidDecoration for an unknown sign.
    */
    static Decoration GetSuffixDecoration(const QString &text);

    /*! Whether the fractions differ by less than 1e-6. */
    bool operator==(const ZARSysRatio &other) const;
    /*! Whether the fractions differ by at least 1e-6. */
    bool operator!=(const ZARSysRatio &other) const;
    /*! Whether this fraction is below the other by more than 1e-6. */
    bool operator<(const ZARSysRatio &other) const;
    /*! Whether this fraction is less than 1e-6 above the other. */
    bool operator<=(const ZARSysRatio &other) const;
    /*! Whether this fraction is above the other by more than 1e-6. */
    bool operator>(const ZARSysRatio &other) const;
    /*! Whether this fraction is less than 1e-6 below the other. */
    bool operator>=(const ZARSysRatio &other) const;

    bool operator==(double) const = delete;
    bool operator!=(double) const = delete;
    bool operator<(double) const = delete;
    bool operator<=(double) const = delete;
    bool operator>(double) const = delete;
    bool operator>=(double) const = delete;

private:
    double m_value;
};

#endif // ZARSYSRATIO_H
