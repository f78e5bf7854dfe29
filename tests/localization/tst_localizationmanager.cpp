#include "../testrow.h"

#include <ZARSysException.h>
#include <ZARSysLocalizationManager.h>

#include <QCoreApplication>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

ZARSysLocalizationManager *manager()
{
    return ZARSysLocalizationManager::GetManager();
}

// Sets name with a localized table of its own alone, even if name is the current locale.
void reloadLocale(const QString &name)
{
    manager()->SetLocale(QLocale::c());
    manager()->clearLocalizedHash();
    manager()->SetLocale(QLocale(name));
}

} // namespace

class tst_LocalizationManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Must run first: nothing has set a locale yet, so the first call signals even for the
    // current locale; later calls signal only a change.
    void setLocaleSignalsChanges()
    {
        const QLocale startup = manager()->GetLocale();
        QCOMPARE(startup, QLocale());
        QSignalSpy spy(manager(), &ZARSysLocalizationManager::LocaleChanged);
        manager()->SetLocale(startup);
        QCOMPARE(spy.count(), 1);
        manager()->SetLocale(QLocale(u"it_IT"_s));
        manager()->SetLocale(QLocale(u"it_IT"_s));
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(1).at(0).value<QLocale>(), QLocale(u"it_IT"_s));
        QCOMPARE(manager()->GetLocale(), QLocale(u"it_IT"_s));
    }

    void orderOfSteps()
    {
        manager()->SetLocale(QLocale(u"en_US"_s));
        QStringList seen;
        const QMetaObject::Connection connection =
            connect(manager(), &ZARSysLocalizationManager::LocaleChanged, this, [&seen] {
                seen << QLocale().name() << manager()->GetLocale().name()
                     << manager()->GetString(u"Test.everywhere.description"_s)
                     << QCoreApplication::translate("ZARSysValue", "Inch");
            });
        manager()->SetLocale(QLocale(u"de_DE"_s));
        disconnect(connection);

        // The new default locale and translators, the previous locale and table.
        QCOMPARE(seen, (QStringList {u"de_DE"_s, u"en_US"_s, u"English"_s, u"Zoll"_s}));
        QCOMPARE(manager()->GetString(u"Test.everywhere.description"_s), u"Deutsch"_s);

        // Switching replaces the translators.
        manager()->SetLocale(QLocale(u"en_US"_s));
        QCOMPARE(QCoreApplication::translate("ZARSysValue", "Inch"), u"Inch"_s);
    }

    void getString_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<bool>("debug");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("text");

        const QString en = u"en_US"_s;
        const QString de = u"de_DE"_s;
        const QString it = u"it_IT"_s;
        const auto key = [](const char *name) {
            return u"Test.%1.description"_s.arg(QLatin1StringView(name));
        };

        addRow("English in en_US", en, false, key("onlyEnglish"), u"Comments"_s);
        addRow("localized first", de, false, key("everywhere"), u"Deutsch"_s);
        addRow("empty localized text", de, true, key("emptyGerman"), QString());
        addRow("English only, other locale", de, false, key("onlyEnglish"), QString());
        addRow("English only, marked", de, true, key("onlyEnglish"), u"[de_DE]Comments"_s);
        addRow("English and default", it, false, key("englishAndDefault"), u"remarks.png"_s);
        addRow("English and default, marked", it, true, key("englishAndDefault"),
               u"[it_IT]Remarks"_s);
        addRow("empty English text", it, false, key("emptyEnglish"), u"empty.png"_s);
        addRow("empty English text, debug", it, true, key("emptyEnglish"), key("emptyEnglish"));
        // In en_US the English table is the localized one as well, and its empty text is found
        // first.
        addRow("empty English text in en_US", en, true, key("emptyEnglish"), QString());
        addRow("default only", de, true, u"Test.onlyDefault.image"_s, u"only.png"_s);
        addRow("missing", de, false, u"Test.nothing"_s, QString());
        addRow("missing, debug", de, true, u"Test.nothing"_s, u"[STRING MISSING]Test.nothing"_s);
        // Found with an empty text: the debug mode shows the key, not a missing string.
        addRow("not a JSON string", it, true, key("number"), key("number"));
        addRow("broken file skipped", en, true, key("broken"),
               u"[STRING MISSING]Test.broken.description"_s);
        addRow("library's own German table", de, false,
               u"ZARQuantitiesDemo.label_Units.description"_s, u"Maßeinheiten"_s);
    }

    void getString()
    {
        QFETCH(QString, locale);
        QFETCH(bool, debug);
        QFETCH(QString, key);

        reloadLocale(locale);
        // Read at every look-up: set and cleared around this one.
        qputenv("ZARModelerDebug", debug ? "1" : "true");
        const QString actual = manager()->GetString(key);
        qunsetenv("ZARModelerDebug");
        QTEST(actual, "text");
    }

    void tablesAccumulate()
    {
        reloadLocale(u"de_DE"_s);
        manager()->SetLocale(QLocale(u"fr_FR"_s));
        QCOMPARE(manager()->GetString(u"Test.everywhere.description"_s), u"Français"_s);
        // fr_FR does not define it: the German text stays until the table is cleared.
        QCOMPARE(manager()->GetString(u"Test.germanOnly.description"_s), u"Nur Deutsch"_s);
        manager()->clearLocalizedHash();
        QCOMPARE(manager()->GetString(u"Test.germanOnly.description"_s), QString());
    }

    void loadString()
    {
        QHash<QString, QString> table {{u"Test.everywhere.description"_s, u"before"_s},
                                       {u"Kept"_s, u"kept"_s}};
        manager()->LoadString(QDir(u":/strings/de_DE"_s), table);
        QCOMPARE(table.value(u"Test.everywhere.description"_s), u"Deutsch"_s);
        QCOMPARE(table.value(u"Kept"_s), u"kept"_s);
        QCOMPARE(table.value(u"ZARQuantitiesDemo.label_Ratios.description"_s), u"Verhältnisse"_s);

        const QHash<QString, QString> copy = table;
        manager()->LoadString(QDir(u":/strings/xx_YY"_s), table);
        QCOMPARE(table, copy);
    }

    void localeProperty()
    {
        QSignalSpy spy(manager(), &ZARSysLocalizationManager::LocaleChanged);
        QVERIFY(manager()->setProperty("locale", QLocale(u"es_ES"_s)));
        QCOMPARE(manager()->property("locale").value<QLocale>(), QLocale(u"es_ES"_s));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(QLocale(), QLocale(u"es_ES"_s));
    }

    // Last: the failure leaves the manager between locales.
    void catalogueThatFailsToLoad()
    {
        manager()->SetLocale(QLocale(u"en_US"_s));
        QSignalSpy spy(manager(), &ZARSysLocalizationManager::LocaleChanged);
        try {
            manager()->SetLocale(QLocale(u"nl_NL"_s));
            QFAIL("no exception");
        } catch (const ZARSysException &e) {
            QCOMPARE(e.GetText(), u"Cannot load localization file: :/localization/translations"_s);
        }
        QCOMPARE(spy.count(), 0);
        QCOMPARE(manager()->GetLocale(), QLocale(u"en_US"_s));
        QCOMPARE(QLocale(), QLocale(u"en_US"_s));
    }
};

QTEST_GUILESS_MAIN(tst_LocalizationManager)
#include "tst_localizationmanager.moc"
