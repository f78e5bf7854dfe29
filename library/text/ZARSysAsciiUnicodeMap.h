#ifndef ZARSYSASCIIUNICODEMAP_H
#define ZARSYSASCIIUNICODEMAP_H

#include <zarsystem_export.h>

#include <QByteArray>
#include <QList>
#include <QSharedDataPointer>
#include <QString>

class ZARSysAsciiUnicodeMapData;

/*!
    \class ZARSysAsciiUnicodeMap
    \brief Stands ASCII keys for Unicode strings, so that any text can pass where only ASCII
    identifiers may (file names, settings keys, command arguments).

    The key of a string is the SHA-1 digest of its UTF-8 bytes as 40 lower-case hexadecimal
    digits, the same in every map and every run; the map remembers which string a key stands
    for. A key may be abbreviated: Lookup() finds a string by the beginning of its key, and
    failing that by the end.

    \code
    ZARSysAsciiUnicodeMap names;
    const QByteArray key = names.Insert(u"Blech 2 mm – Edelstahl"_s);
    QString name;
    names.Lookup(key.left(6), name); // true, name is the text again
    \endcode

    Maps are implicitly shared: copies are cheap, and a change to one copy is never seen by
    another.
*/
class ZARSYSTEM_EXPORT ZARSysAsciiUnicodeMap
{
public:
    /*! Constructs an empty map. */
    ZARSysAsciiUnicodeMap();
    /*! Constructs a copy of \a other; the two share their entries until one of them changes. */
    ZARSysAsciiUnicodeMap(const ZARSysAsciiUnicodeMap &other);
    /*! Constructs a map with the entries of \a other, which is left empty. */
    ZARSysAsciiUnicodeMap(ZARSysAsciiUnicodeMap &&other) noexcept;
    /*! Makes this map a copy of \a other. */
    ZARSysAsciiUnicodeMap &operator=(const ZARSysAsciiUnicodeMap &other);
    /*! Takes over the entries of \a other, which is left empty. */
    ZARSysAsciiUnicodeMap &operator=(ZARSysAsciiUnicodeMap &&other) noexcept;
    ~ZARSysAsciiUnicodeMap();

    /*! Swaps the entries of this map and \a other; never fails. */
    void swap(ZARSysAsciiUnicodeMap &other) noexcept { d.swap(other.d); }

    /*! Records \a text and returns its key. Recording a text again changes nothing. */
    QByteArray Insert(const QString &text);
    /*! Records each of \a texts and returns their keys in the same order, repeats included. */
    QList<QByteArray> Insert(const QList<QString> &texts);

    /*!
        Finds the string of \a key and stores it in \a text. A full key finds its string; a
        shorter one the first string (in key order) whose key begins with it, and failing that
        the first whose key ends with it; an empty key the string of the smallest key. Returns
        false, leaving \a text alone, when nothing is found.
    */
    bool Lookup(const QByteArray &key, QString &text) const;

    /*!
        Removes the entry of \a key, found as Lookup() finds it. Returns whether one was
        removed. Entries are kept in two orders, by the beginning and by the end of their
        keys; with an abbreviated key that matches different entries in the two orders, each
        order loses its own match (afterwards the two disagree about the contents).
    */
    bool Remove(const QByteArray &key);

    /*! Removes all entries. */
    void Clear();

    /*! All keys, in ascending order. */
    QList<QByteArray> GetAllAsciiKeys() const;
    /*! All strings, in the order of their keys. */
    QList<QString> GetStrings() const;

private:
    ZARSysAsciiUnicodeMapData *Writable();

    QSharedDataPointer<ZARSysAsciiUnicodeMapData> d;
};

Q_DECLARE_SHARED(ZARSysAsciiUnicodeMap)

#endif // ZARSYSASCIIUNICODEMAP_H
