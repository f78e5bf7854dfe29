#ifndef ZARSYSSETTINGS_H
#define ZARSYSSETTINGS_H

#include <zarsystem_export.h>

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>

#include <memory>

class QSettings;
class ZARSysSettingsPrivate;

/*!
    \class ZARSysSettings
    \brief A named group of persistent settings that belongs to one framework of the SDK.

    Each module derives its own group from this class, declares its settings as Qt properties
    (with their defaults in the subclass) or sets them at run time as dynamic properties. The
    value of a setting is always the value of the object property of the same name; the settings
    source of ZARSysSettingsManager is its persistent mirror, under the group named by the
    framework name.

    Every change is written through to the source at once. SettingChanged() is emitted only for
    a value that differs from what the source holds, and never while no source is set. Setting a
    dynamic property with QObject::setProperty() persists and signals exactly like SetValue();
    a declared property changed through its setter is persisted by SetValue() or Save().

    The constructor registers the group with the manager under its framework name; the
    destructor unregisters it and saves it. By then the subclass part of the object is gone, so
    that last save reaches only the dynamic properties; declared properties are persisted by
    SetValue() or by an explicit Save().

    \code
    class CutSettings : public ZARSysSettings
    {
        Q_OBJECT
        Q_PROPERTY(double feedRate MEMBER m_feedRate)
    public:
        CutSettings() : ZARSysSettings("Cutting") {}
    private:
        double m_feedRate = 120.0;
    };
    \endcode

    \sa ZARSysSettingsManager, ZARSysSettingsBatchContext
*/
class ZARSYSTEM_EXPORT ZARSysSettings : public QObject
{
    Q_OBJECT

public:
    /*! Returns the framework name, the group's identity in the manager and in the source. */
    QByteArray GetFramework() const;

    /*!
        Returns the names of all settings: the dynamic properties in their order, then the
        properties of every class level from the most derived one up to, but not including,
        QObject. Every level lists the properties it inherits as well, so a name can appear
        more than once (objectName always does).
    */
    QList<QByteArray> GetKeys() const;

    /*! Returns the value of the setting \a key, or \a defaultValue if it has no valid value. */
    QVariant GetValue(const QByteArray &key, const QVariant &defaultValue = QVariant()) const;

    /*! Sets the setting \a key to \a value and writes it through to the source. */
    void SetValue(const QByteArray &key, const QVariant &value);

    /*!
        Removes every dynamic property. Declared properties keep their values; each removed key
        is written to the source as an invalid variant and signalled if the source held
        something else.
    */
    void ClearSettings();

    /*! Returns whether a batch context is open on this group. */
    bool IsInBatch() const;

Q_SIGNALS:
    /*!
        Emitted when the value \a value of \a setting was written to the source because it
        differed from the stored one.
    */
    void SettingChanged(const QByteArray &setting, const QVariant &value);

    /*!
        Emitted when the outermost batch context on this group ends. \a settings holds the keys
        written during this batch and during every earlier batch of the group; the list is in
        no particular order.
    */
    void BatchFinished(const QList<QByteArray> &settings);

public Q_SLOTS:
    /*!
        Announces every setting by emitting SettingChanged() with its current value for each
        key of GetKeys(), in that order; the base changes nothing. Subclasses override it to
        reset their values and may call the base to announce them.
    */
    virtual void RevertToDefaults();

    /*! Writes the current value of every key through to the source. */
    void Save() const;

protected:
    /*!
        Constructs the group of \a framework and registers it with the manager.

        Throws ZARSysException "Settings for framework already registered" if a group of that
        name exists. Stored values are not loaded here; the manager loads them.
    */
    explicit ZARSysSettings(const QByteArray &framework);

    /*! Unregisters the group, which saves it. */
    ~ZARSysSettings() override;

    /*!
        Writes \a value of \a key to the source if it differs from the stored value, then emits
        SettingChanged() and, inside a batch, records the key. Does nothing without a source.
    */
    void UpdateSetting(const QByteArray &key, const QVariant &value);

private:
    ZARSYSTEM_NO_EXPORT void LoadStoredSettings();

    friend class ZARSysSettingsManager;
    friend class ZARSysSettingsBatchContext;
    friend class ZARSysSettingsPrivate;

    std::unique_ptr<ZARSysSettingsPrivate> const d;

    Q_DISABLE_COPY_MOVE(ZARSysSettings)
};

/*!
    \class ZARSysSettingsBatchContext
    \brief Groups the changes of a settings group into one batch for its lifetime.

    Constructing the context opens a batch on the group, destroying it closes the batch. Batches
    nest; when the outermost one ends, the group emits ZARSysSettings::BatchFinished() with the
    keys written meanwhile. SettingChanged() is still emitted at once for every change.

    The keys are collected for the group's whole life, not per batch: a later batch reports the
    keys of the earlier ones as well.

    A context on a null group does nothing. If the group is destroyed before the context, the
    context's end does nothing.

    Copy assignment copies the group pointer only and leaves the batch depths as they are.
*/
class ZARSYSTEM_EXPORT ZARSysSettingsBatchContext
{
public:
    /*! Opens a batch on \a settings, which may be null. */
    explicit ZARSysSettingsBatchContext(ZARSysSettings *settings);
    /*! Closes the batch; the outermost one emits ZARSysSettings::BatchFinished(). */
    ~ZARSysSettingsBatchContext();

    // Not copied; its assignment is part of the interface and leaves both scopes as they are.
    ZARSysSettingsBatchContext(const ZARSysSettingsBatchContext &) = delete;
    /*!
        Makes this context refer to the group of \a other without opening or closing a batch:
        the batch this context opened stays open, and its end closes one on the group of \a other.
    */
    ZARSysSettingsBatchContext &operator=(const ZARSysSettingsBatchContext &other);

private:
    QPointer<ZARSysSettings> m_settings;
};

/*!
    \class ZARSysSettingGroupContext
    \brief Opens a group of a QSettings object for its lifetime.

    The constructor calls QSettings::beginGroup() and the destructor endGroup(). The QSettings
    object is held by a guarded pointer: if it is destroyed first, the destructor does nothing.
*/
class ZARSYSTEM_EXPORT ZARSysSettingGroupContext
{
public:
    /*! Begins \a group on \a settings, which may be null. */
    ZARSysSettingGroupContext(QSettings *settings, const QString &group);
    /*! Ends the group if the settings object still exists. */
    ~ZARSysSettingGroupContext();

private:
    QPointer<QSettings> m_settings;
    QString m_group;

    Q_DISABLE_COPY_MOVE(ZARSysSettingGroupContext)
};

#endif // ZARSYSSETTINGS_H
