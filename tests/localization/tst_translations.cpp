#include "../startlibrary.h"

#include <ZARSysLocalizationManager.h>
#include <ZARSysValue.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

struct Message
{
    QString context;
    QString source;
    QString translation;
    bool unfinished = false;
};

QList<Message> readTs(const QString &path, QString *language)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<Message> messages;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "TS"_L1) {
            *language = xml.attributes().value("language"_L1).toString();
        } else if (xml.name() == "name"_L1) {
            context = xml.readElementText();
        } else if (xml.name() == "message"_L1) {
            messages.append(Message {context, {}, {}, false});
        } else if (xml.name() == "source"_L1) {
            messages.last().source = xml.readElementText();
        } else if (xml.name() == "translation"_L1) {
            messages.last().unfinished = !xml.attributes().value("type"_L1).isEmpty();
            messages.last().translation = xml.readElementText();
        }
    }
    return xml.hasError() ? QList<Message>() : messages;
}

QStringList placeholders(const QString &text)
{
    static const QRegularExpression pattern(u"%\\d+"_s);
    QStringList found;
    for (const QRegularExpressionMatch &match : pattern.globalMatch(text))
        found << match.captured();
    found.sort();
    return found;
}

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startLibrary(); }

    void catalogues_data()
    {
        QTest::addColumn<QString>("path");
        const QStringList files = QStringLiteral(ZARSYS_TS_FILES).split(u',');
        QCOMPARE(files.size(), 10);
        for (const QString &file : files)
            QTest::newRow(qPrintable(QFileInfo(file).completeBaseName())) << file;
    }

    // Every text is translated, keeps its placeholders, and SetLocale() makes it show.
    void catalogues()
    {
        QFETCH(QString, path);

        QString language;
        const QList<Message> messages = readTs(path, &language);
        QVERIFY(!messages.isEmpty());
        QCOMPARE(u"ZARSystem-"_s + language, QFileInfo(path).completeBaseName());
        QVERIFY(QFile::exists(u":/localization/translations/ZARSystem-"_s + language + u".qm"_s));

        ZARSysLocalizationManager::GetManager()->SetLocale(QLocale(language));
        for (const Message &message : messages) {
            const QByteArray where = (message.context + u'/' + message.source).toUtf8();
            QVERIFY2(!message.unfinished, where.constData());
            QVERIFY2(!message.translation.trimmed().isEmpty(), where.constData());
            // White space at either end only where the source has it (prefixes such as
            // "Warning: " keep their space; a language may drop it after its own colon).
            QVERIFY2(!message.translation.front().isSpace() || message.source.front().isSpace(),
                     where.constData());
            QVERIFY2(!message.translation.back().isSpace() || message.source.back().isSpace(),
                     where.constData());
            QCOMPARE(placeholders(message.translation), placeholders(message.source));
            QCOMPARE(QCoreApplication::translate(message.context.toUtf8().constData(),
                                                 message.source.toUtf8().constData()),
                     message.translation);
        }
        ZARSysLocalizationManager::GetManager()->SetLocale(QLocale(u"en_US"_s));
    }

    void qtCatalogues_data()
    {
        QTest::addColumn<QString>("locale");
        for (const char *locale : {"de_DE", "es_ES", "fr_FR", "it_IT", "ja_JP", "zh_CN"})
            QTest::newRow(locale) << QString::fromLatin1(locale);
    }

    // Qt's own texts are translated too, for the languages whose Qt catalogue is shipped.
    void qtCatalogues()
    {
        QFETCH(QString, locale);
        QVERIFY(QFile::exists(u":/localization/translations/qtbase-"_s + locale + u".qm"_s));
        ZARSysLocalizationManager::GetManager()->SetLocale(QLocale(locale));
        QVERIFY(QCoreApplication::translate("QPlatformTheme", "Cancel") != u"Cancel"_s);
        ZARSysLocalizationManager::GetManager()->SetLocale(QLocale(u"en_US"_s));
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Cancel"_s);
    }

    void germanUnitLabels()
    {
        // Labels are stored when the catalogue is filled (here in English) and unit labels are
        // translated again at every call.
        ZARSysLocalizationManager::GetManager()->SetLocale(QLocale(u"de_DE"_s));
        QCOMPARE(ZARSysValue::GetUnitLabel(ZARSysValue::Inch), u"Zoll"_s);
        QCOMPARE(ZARSysValue::GetUnitFromLabel(u"Zoll"_s), ZARSysValue::Inch);
        QCOMPARE(ZARSysValue::GetUnitFromLabel(u"Inch"_s), ZARSysValue::InvalidUnit);
        QCOMPARE(ZARSysValue::GetMagnitudeLabel(ZARSysValue::Length), u"Length"_s);
    }
};

QTEST_GUILESS_MAIN(tst_Translations)
#include "tst_translations.moc"
