#ifndef ZARSYSTEMPORARYDIR_H
#define ZARSYSTEMPORARYDIR_H

#include <zarsystem_export.h>

#include <QString>
#include <QTemporaryDir>

/*!
    \class ZARSysTemporaryDir
    \brief A QTemporaryDir in a given or the system's temporary folder, named after the
    application unless told otherwise.

    \code
    ZARSysTemporaryDir work;                      // /tmp/<application name> and a random part
    ZARSysTemporaryDir job(jobsFolder, u"job"_s); // jobsFolder/job and a random part
    \endcode

    As with QTemporaryDir, the folder is removed when the object is destroyed unless
    setAutoRemove(false) was called.
*/
class ZARSYSTEM_EXPORT ZARSysTemporaryDir : public QTemporaryDir
{
public:
    /*! A temporary folder with Qt's default name and location. */
    ZARSysTemporaryDir();
    /*!
        A temporary folder in \a folder (the system's temporary folder when empty), created
        with its missing parents if need be, whose name begins with \a name (the base name of
        the application's executable when empty). Throws ZARSysFileException with the text
        "mkpath failed" when \a folder cannot be created.
    */
    ZARSysTemporaryDir(const QString &folder, const QString &name);
    /*! Removes the folder with its contents, unless automatic removal was turned off. */
    virtual ~ZARSysTemporaryDir();
};

#endif // ZARSYSTEMPORARYDIR_H
