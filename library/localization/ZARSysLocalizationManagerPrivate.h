#ifndef ZARSYSLOCALIZATIONMANAGERPRIVATE_H
#define ZARSYSLOCALIZATIONMANAGERPRIVATE_H

#include <QHash>
#include <QList>
#include <QLocale>
#include <QString>

class QTranslator;

class ZARSysLocalizationManagerPrivate
{
public:
    QLocale locale;
    // The translators installed by the last SetLocale(); children of the manager.
    QList<QTranslator *> translators;
    QHash<QString, QString> englishTable;
    // Accumulates over locale changes until clearLocalizedHash().
    QHash<QString, QString> localizedTable;
    QHash<QString, QString> defaultTable;
    bool localeSet = false;
};

#endif // ZARSYSLOCALIZATIONMANAGERPRIVATE_H
