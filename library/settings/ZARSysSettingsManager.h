#ifndef ZARSYSSETTINGSMANAGER_H
#define ZARSYSSETTINGSMANAGER_H

#include <zarsystem_export.h>

#include <QByteArray>
#include <QList>

#include <memory>

class QSettings;
class ZARSysSettings;
class ZARSysSettingsManagerPrivate;

/*!
    \class ZARSysSettingsManager
    \brief The process-wide registry of settings groups and owner of the one settings source.

    Every ZARSysSettings group registers itself here under its framework name when it is
    constructed and unregisters when it is destroyed. The host application gives the manager its
    persistent source once, normally at start-up; the library never creates one by itself.

    \code
    auto *source = new QSettings(path, QSettings::IniFormat);
    ZARSysSettingsManager::GetManager()->SetSource(source); // the manager owns it now
    \endcode

    The manager is meant for the thread that owns the settings groups and takes no locks; only
    its creation by GetManager() is safe against concurrent first calls. When the library is
    unloaded, the manager deletes the groups still registered (each one's destructor saves its
    dynamic properties), then the source.

    \sa ZARSysSettings
*/
class ZARSYSTEM_EXPORT ZARSysSettingsManager
{
public:
    /*!
        Returns the manager, created on first use with no source and no groups. Returns null
        only once the manager has been destroyed, while the library is being unloaded.
    */
    static ZARSysSettingsManager *GetManager();

    /*!
        Registers \a settings under its framework name and appends it to the registration list.
        Called by the group's constructor.

        Throws ZARSysException "Settings for framework already registered" if the name is taken;
        nothing is changed then.
    */
    void RegisterSettings(ZARSysSettings *settings);

    /*!
        Removes the entry of the framework name of \a settings, if any, and saves \a settings.
        Called by the group's destructor. The registration list keeps its entry.
    */
    void UnregisterSettings(ZARSysSettings *settings);

    /*! Returns the registered groups, in no particular order. */
    QList<ZARSysSettings *> GetSettings() const;

    /*! Returns the group registered under \a framework, or null. */
    ZARSysSettings *GetSettings(const QByteArray &framework) const;

    /*!
        Makes \a source the settings source and loads every registered group from it. The
        manager takes ownership of \a source and deletes the previous source, unless it is the
        same object. Passing null deletes the current source; groups then change in memory
        only. A source deleted by somebody else is noticed: GetSource() returns null then.
    */
    void SetSource(QSettings *source);

    /*! Returns the settings source, or null if none is set. */
    QSettings *GetSource() const;

    /*! Loads the stored values of every registered group from the source. */
    void LoadSettings();

    /*!
        Loads the stored values of every group ever registered, in the order of registration.
        Groups destroyed since are skipped.
    */
    void LoadUninitSettings();

private:
    ZARSYSTEM_NO_EXPORT ZARSysSettingsManager();
    ZARSYSTEM_NO_EXPORT ~ZARSysSettingsManager();

    std::unique_ptr<ZARSysSettingsManagerPrivate> const d;

    Q_DISABLE_COPY_MOVE(ZARSysSettingsManager)
};

#endif // ZARSYSSETTINGSMANAGER_H
