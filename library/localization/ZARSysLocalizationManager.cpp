#include "ZARSysLocalizationManager.h"

#include "ZARSysException.h"
#include "ZARSysGlobalStatic.h"
#include "ZARSysLocalizationManagerPrivate.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

bool debugMode()
{
    // Read at every look-up, so the mode can be switched while the application runs.
    return qgetenv("ZARModelerDebug") == "1";
}

// Takes the manager's translators out of the application when the library is unloaded while
// the application lives on: they read catalogues that live in the library's resources.
struct TranslatorRemover
{
    const ZARSysLocalizationManagerPrivate *record;
    ~TranslatorRemover()
    {
        if (!QCoreApplication::instance())
            return;
        for (QTranslator *translator : record->translators)
            QCoreApplication::removeTranslator(translator);
    }
};

} // namespace

ZARSysLocalizationManager *ZARSysLocalizationManager::GetManager()
{
    // Never destroyed. It changes application-wide state, so it belongs to the application's
    // thread even if another thread asked first.
    ZARSysLocalizationManager *const manager =
        ZARSysGlobalStatic<ZARSysLocalizationManager>::Get([] {
            auto *created = new ZARSysLocalizationManager;
            ZARSysMoveToApplicationThread(created);
            return created;
        });
    static const TranslatorRemover remover {manager->d.get()};
    return manager;
}

ZARSysLocalizationManager::ZARSysLocalizationManager()
    : d(std::make_unique<ZARSysLocalizationManagerPrivate>())
{
    LoadString(QDir(u":/strings/en_US"_s), d->englishTable);
    LoadString(QDir(u":/strings/default"_s), d->defaultTable);
}

ZARSysLocalizationManager::~ZARSysLocalizationManager() = default;

void ZARSysLocalizationManager::SetLocale(const QLocale &locale)
{
    if (d->localeSet && locale == d->locale)
        return;

    for (QTranslator *translator : std::as_const(d->translators)) {
        QCoreApplication::removeTranslator(translator);
        delete translator;
    }
    d->translators.clear();

    const QDir catalogues(u":/localization/translations"_s);
    const QFileInfoList files =
        catalogues.entryInfoList({u"*%1.qm"_s.arg(locale.name())}, QDir::Files, QDir::NoSort);
    for (const QFileInfo &file : files) {
        auto *translator = new QTranslator(this);
        d->translators.append(translator);
        if (!translator->load(file.absoluteFilePath()))
            throw ZARSysException(u"Cannot load localization file: "_s + file.absolutePath());
        QCoreApplication::installTranslator(translator);
    }

    QLocale::setDefault(locale);
    // Receivers see the new default locale and translators, but still the previous GetLocale()
    // and localized table.
    Q_EMIT LocaleChanged(locale);
    d->locale = locale;
    d->localeSet = true;
    LoadString(QDir(u":/strings/"_s + locale.name()), d->localizedTable);
}

QLocale ZARSysLocalizationManager::GetLocale() const
{
    return d->locale;
}

QString ZARSysLocalizationManager::GetString(const QString &key) const
{
    if (const auto it = d->localizedTable.constFind(key); it != d->localizedTable.cend())
        return *it;

    const bool debug = debugMode();
    if (const auto it = d->englishTable.constFind(key); it != d->englishTable.cend()) {
        if (!it->isEmpty()) {
            const QString localeName = d->locale.name();
            if (localeName == "en_US"_L1)
                return *it;
            if (debug)
                return u'[' + localeName + u']' + *it;
        } else if (debug) {
            return key;
        }
    }

    if (const auto it = d->defaultTable.constFind(key); it != d->defaultTable.cend())
        return *it;
    if (debug)
        return u"[STRING MISSING]"_s + key;
    return QString();
}

void ZARSysLocalizationManager::LoadString(const QDir &directory, QHash<QString, QString> &table)
{
    QDir dir(directory);
    dir.setNameFilters({u"*.json"_s});
    const QStringList names = dir.entryList(QDir::NoFilter, QDir::NoSort);
    for (const QString &name : names) {
        QFile file(dir.path() + u'/' + name);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
        if (error.error != QJsonParseError::NoError)
            continue;
        const QJsonObject object = document.object();
        for (auto it = object.constBegin(); it != object.constEnd(); ++it)
            table.insert(it.key(), it.value().toString());
    }
}

void ZARSysLocalizationManager::clearLocalizedHash() const
{
    d->localizedTable.clear();
}

#include "moc_ZARSysLocalizationManager.cpp"
