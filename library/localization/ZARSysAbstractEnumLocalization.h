#ifndef ZARSYSABSTRACTENUMLOCALIZATION_H
#define ZARSYSABSTRACTENUMLOCALIZATION_H

#include <zarsystem_export.h>

#include <QList>
#include <QString>

#include <functional>
#include <memory>

class ZARSysAbstractEnumLocalizationPrivate;

/*!
    \class ZARSysAbstractEnumLocalization
    \brief Localized names of the values of an enumeration, in both directions.

    A module registers each of its enumerations once, under an integer type identifier of its
    choosing, with the list of values and a function that returns the translated text of a
    value. An object of this class takes a snapshot of the texts of one registered type, so that
    combo boxes and parsers map quickly; the static functions convert single values in the
    current language without a snapshot.

    \code
    class CutModeLocalization : public ZARSysAbstractEnumLocalization
    {
    public:
        static constexpr int Type = 4711;
        CutModeLocalization() : ZARSysAbstractEnumLocalization(Type) {}
        static bool Register()
        {
            RegisterValueLocalization(Type, {Inner, Outer}, [](int v) {
                return v == Inner ? QCoreApplication::translate("CutMode", "Inner")
                                  : QCoreApplication::translate("CutMode", "Outer");
            });
            return false;
        }
    };
    \endcode

    A snapshot keeps the language of its construction. When two values have the same text,
    GetIntegerFromString() returns the one registered first, while StringToInteger() returns
    the one registered last.

    Registration belongs to module start-up on the main thread and takes no lock; look-ups may
    run on any thread once registration is over. The text functions are kept until this library
    is unloaded, so a library that registers one must stay loaded as long as this one.
*/
class ZARSYSTEM_EXPORT ZARSysAbstractEnumLocalization
{
public:
    /*!
        Takes a snapshot of the texts of the values registered for \a type.

        Throws ZARSysException "type has not been registered" if \a type has no text function.
    */
    explicit ZARSysAbstractEnumLocalization(int type);
    virtual ~ZARSysAbstractEnumLocalization();

    /*! Returns whether a text function is registered for \a type. */
    static bool IsRegistered(int type);

    /*! Returns the values of the snapshot, each once, in no particular order. */
    QList<int> GetRegisteredIntegers() const;

    /*! Returns the snapshot text of \a value, or an empty string. */
    QString GetStringFromInteger(int value) const;

    /*!
        Returns the value whose snapshot text is exactly \a text (case-sensitive), or
        \a defaultValue.
    */
    int GetIntegerFromString(const QString &text, int defaultValue) const;

    /*!
        Returns the text of \a value computed now by the function of \a type; an empty string
        if \a type is not registered.
    */
    static QString IntegerToString(int type, int value);

    /*!
        Returns the most recently registered value of \a type whose current text is exactly
        \a text. Returns 0 when \a type is not registered or no value has that text, which
        cannot be told apart from a value 0.
    */
    static int StringToInteger(int type, const QString &text);

protected:
    /*!
        Adds \a values to the values of \a type (registering a type twice lists its values
        twice) and makes \a toText its text function, replacing an earlier one.
    */
    static void RegisterValueLocalization(int type, const QList<int> &values,
                                          const std::function<QString(int)> &toText);

private:
    std::unique_ptr<ZARSysAbstractEnumLocalizationPrivate> const d;

    Q_DISABLE_COPY_MOVE(ZARSysAbstractEnumLocalization)
};

#endif // ZARSYSABSTRACTENUMLOCALIZATION_H
