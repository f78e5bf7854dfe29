#ifndef ZARSYSABSTRACTENUMLOCALIZATIONPRIVATE_H
#define ZARSYSABSTRACTENUMLOCALIZATIONPRIVATE_H

#include <QHash>
#include <QString>

class ZARSysAbstractEnumLocalizationPrivate
{
public:
    explicit ZARSysAbstractEnumLocalizationPrivate(int type)
        : type(type)
    { }

    const int type;
    QHash<int, QString> textByValue;
    QHash<QString, int> valueByText;
};

#endif // ZARSYSABSTRACTENUMLOCALIZATIONPRIVATE_H
