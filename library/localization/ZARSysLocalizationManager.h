#ifndef ZARSYSLOCALIZATIONMANAGER_H
#define ZARSYSLOCALIZATIONMANAGER_H

#include <zarsystem_export.h>

#include <QDir>
#include <QHash>
#include <QLocale>
#include <QObject>
#include <QString>

#include <memory>

class ZARSysLocalizationManagerPrivate;

/*!
    \class ZARSysLocalizationManager
    \brief Owns the application's language: the locale that the library formats and parses
    numbers with, the translators installed for it, and the keyed string tables.

    Quantities and ratios render and read numbers with GetLocale(). SetLocale() switches the
    language: it replaces the translators that the manager installed by the catalogues of the
    new locale found in ":/localization/translations" (every "<catalogue>-<locale name>.qm"),
    makes the locale Qt's default, emits LocaleChanged() and loads the string tables of the
    locale.

    String tables are JSON files of one object whose members map keys to texts, compiled into
    resources under ":/strings/en_US", ":/strings/default" and ":/strings/<locale name>". Every
    "*.json" file of such a folder is read; later files override earlier ones key by key. Keys
    name a user-interface element and an attribute, as in
    "ZARExampleWidget.lineEdit_Comment.description".

    GetString() answers from the table of the locale, then from the English table while the
    locale is en_US, then from the default table. When the environment variable
    "ZARModelerDebug" is "1" (read at every look-up) it marks what is missing instead:
    "[de_DE]Comments" for a text that has only an English version, the key itself for an empty
    English text, and "[STRING MISSING]key" for an unknown key.

    The manager belongs to the main thread and takes no locks: it changes application-wide
    state. Look-ups from other threads are safe only while no SetLocale() runs.

    \code
    ZARSysLocalizationManager::GetManager()->SetLocale(QLocale(QStringLiteral("de_DE")));
    label->setText(ZARSysLocalizationManager::GetManager()->GetString(
            QStringLiteral("ZARExampleWidget.lineEdit_Comment.description")));
    \endcode
*/
class ZARSYSTEM_EXPORT ZARSysLocalizationManager : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QLocale locale READ GetLocale WRITE SetLocale NOTIFY LocaleChanged)

public:
    /*!
        Returns the manager, created on first use with the default QLocale() and the English
        and default string tables loaded. It is never destroyed. Call it first from the main
        thread.
    */
    static ZARSysLocalizationManager *GetManager();

    /*! The manager of GetManager() is never destroyed; do not delete it. */
    ~ZARSysLocalizationManager() override;

    /*!
        Switches to \a locale. Does nothing if a locale was set before and \a locale equals it;
        the first call always runs, even for the locale the manager started with.

        In this order: removes and deletes the translators installed by the previous call;
        installs one translator per catalogue of the locale; makes \a locale the default
        QLocale; emits LocaleChanged(); makes \a locale the current locale; adds the string
        tables of the locale to the localized table, which is not emptied first (see
        clearLocalizedHash()). Receivers of LocaleChanged() therefore see the new default
        locale and translators, but GetLocale() and GetString() still answer for the previous
        locale.

        Throws ZARSysException "Cannot load localization file: <folder>" if a catalogue cannot
        be loaded. The translators installed before it stay installed, and the locale is not
        changed.
    */
    void SetLocale(const QLocale &locale);

    /*! Returns the current locale: the default QLocale() until the first SetLocale(). */
    QLocale GetLocale() const;

    /*!
        Returns the text of \a key, or an empty string if there is none. See the class
        description for the order in which the tables are asked.
    */
    QString GetString(const QString &key) const;

    /*!
        Adds the entries of every "*.json" file in \a directory to \a table, in directory order,
        replacing entries with the same key. Files that cannot be opened or parsed are skipped.
        A value that is not a JSON string gives an empty text.
    */
    void LoadString(const QDir &directory, QHash<QString, QString> &table);

    /*! Empties the table of the locale, so that texts of earlier locales no longer answer. */
    void clearLocalizedHash() const;

Q_SIGNALS:
    /*! Emitted by SetLocale() when the locale changes, before GetLocale() returns it. */
    void LocaleChanged(const QLocale &locale);

private:
    ZARSYSTEM_NO_EXPORT ZARSysLocalizationManager();

    std::unique_ptr<ZARSysLocalizationManagerPrivate> const d;

    Q_DISABLE_COPY_MOVE(ZARSysLocalizationManager)
};

#endif // ZARSYSLOCALIZATIONMANAGER_H
