#ifndef ZARSYSFILEUTILITIES_H
#define ZARSYSFILEUTILITIES_H

#include <zarsystem_export.h>

#include <QByteArray>
#include <QChar>
#include <QCoreApplication>
#include <QString>

/*!
    \class ZARSysFileUtilities
    \brief File chores shared by the SDK's modules: a digest of a file, file names that
    Windows accepts, short paths, copies of folders and showing a file in the desktop's file
    browser.

    The class has static functions only. Failures are thrown as ZARSysFileException, whose
    path names the file or folder concerned.
*/
class ZARSYSTEM_EXPORT ZARSysFileUtilities
{
    Q_DECLARE_TR_FUNCTIONS(ZARSysFileUtilities)

public:
    /*!
        Returns the SHA-1 digest of the contents of the file at \a path, as 20 raw bytes (not
        hex). The file is read in chunks, so any size takes the same little memory. A file
        that cannot be opened or read gives an empty array.
    */
    static QByteArray calculateFileHash(const QString &path);

    /*!
        Returns \a name with each of the characters * ? < > | : / \\ \" and tab, and then each
        character of \a moreCharacters, replaced by \a replacement. Nothing else changes:
        other control characters, trailing dots and spaces and device names such as "CON"
        stay, and an empty \a name stays empty.

        \code
        ZARSysFileUtilities::CreateSafeFilename(u"a:b*c?.txt"_s, u'_', QString());  // "a_b_c_.txt"
        ZARSysFileUtilities::CreateSafeFilename(u"a:b*c?.txt"_s, u'_', u"."_s);      // "a_b_c__txt"
        \endcode
    */
    static QString CreateSafeFilename(const QString &name, const QChar &replacement,
                                      const QString &moreCharacters);

    /*!
        Returns the short (8.3) form of the existing path \a path. Throws ZARSysFileException
        with the text "could not create short path name" when the path does not exist or its
        short form is longer than 259 characters.

        Only Windows has short names; elsewhere an existing path is returned unchanged.
    */
    static QString CreateShortFilename(const QString &path);

    /*!
        Copies the files of the folder \a source into the folder \a destination, which is
        created if it does not exist (its parent must). Hidden files are not copied. A file
        that exists in \a destination is left alone unless \a overwrite is true, in which case
        it is deleted first. When \a recursive is true, each subfolder is then copied the same
        way into a subfolder of the same name: a folder's files are copied before its
        subfolders.

        Throws ZARSysFileException when \a source does not exist (before anything is created),
        when an existing file cannot be deleted and when a file cannot be copied. The copy
        stops there; what was copied so far stays.
    */
    static void CopyDirectory(const QString &source, const QString &destination, bool recursive,
                              bool overwrite);

    /*!
        Shows \a path in the desktop's file browser: a folder is opened, a file is shown in
        its folder. On Windows the file is selected in "explorer.exe"; elsewhere the folder is
        opened with QDesktopServices::openUrl(). Failures are not reported.
    */
    static void LocateFileInFolder(const QString &path);
};

#endif // ZARSYSFILEUTILITIES_H
