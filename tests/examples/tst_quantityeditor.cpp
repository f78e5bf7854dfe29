#include "QuantityEditor.h"

#include <ZARSysLocalizationManager.h>
#include <ZARSysSettingsManager.h>
#include <ZARSysValue.h>
#include <ZARSystem.h>

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

using Field = QuantityEditor::Field;
using Magnitude = ZARSysValue::Magnitude;
using Unit = ZARSysValue::Unit;

namespace {

constexpr double halfTurn = 3.14159265358979323846 / 2;

// The magnitudes of the form's fields, each with a unit chooser.
const QList<Magnitude> formMagnitudes = {ZARSysValue::Length, ZARSysValue::LinearFeedRate,
                                         ZARSysValue::Angle};

Magnitude magnitudeOf(Field field)
{
    switch (field) {
    case QuantityEditor::SheetWidth:
    case QuantityEditor::SheetHeight:
        return ZARSysValue::Length;
    case QuantityEditor::FeedRate:
        return ZARSysValue::LinearFeedRate;
    case QuantityEditor::Rotation:
        return ZARSysValue::Angle;
    }
    return ZARSysValue::InvalidMagnitude;
}

template<typename T>
T *child(const QuantityEditor &editor, const QString &name)
{
    T *found = editor.findChild<T *>(name);
    if (!found)
        qFatal("the editor has no %s", qPrintable(name));
    return found;
}

QLineEdit *edit(const QuantityEditor &editor, Field field)
{
    static const QString names[] = {u"sheetWidth"_s, u"sheetHeight"_s, u"feedRate"_s,
                                    u"rotation"_s};
    return child<QLineEdit>(editor, names[field]);
}

QComboBox *chooserOf(const QuantityEditor &editor, Magnitude magnitude)
{
    return child<QComboBox>(editor, u"unit_"_s + ZARSysValue::GetMagnitudeString(magnitude));
}

QString unitItemText(const QuantityEditor &editor, Unit unit)
{
    const QComboBox *chooser = chooserOf(editor, ZARSysValue::GetUnitMagnitude(unit));
    return chooser->itemText(chooser->findData(int(unit)));
}

// Types as a user does: replaces the text and presses Return.
void type(QLineEdit *edit, const QString &text)
{
    edit->clear();
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
}

ZARSysValue quantity(Magnitude magnitude, double number)
{
    return ZARSysValue(magnitude, number);
}

// The values of a cutting job in the system units: 3000 x 1500 mm, 12000 mm/min, a right
// angle.
void fillIn(QuantityEditor &editor)
{
    editor.setValue(QuantityEditor::SheetWidth, quantity(ZARSysValue::Length, 3000));
    editor.setValue(QuantityEditor::SheetHeight, quantity(ZARSysValue::Length, 1500));
    editor.setValue(QuantityEditor::FeedRate, quantity(ZARSysValue::LinearFeedRate, 12000));
    editor.setValue(QuantityEditor::Rotation, quantity(ZARSysValue::Angle, halfTurn));
}

void useLocale(const QString &name)
{
    ZARSysLocalizationManager::GetManager()->SetLocale(QLocale(name));
}

} // namespace

class tst_QuantityEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void typedText_data();
    void typedText();
    void unitChooser_data();
    void unitChooser();
    void language_data();
    void language();
    void offeredLanguages();
    void render();

private:
    QTemporaryDir folder;
    QString settingsFile;
    std::unique_ptr<ZARSysInitContext> context;
    QHash<Magnitude, Unit> initialUnits;
};

void tst_QuantityEditor::initTestCase()
{
    QVERIFY(folder.isValid());
    context = std::make_unique<ZARSysInitContext>();
    settingsFile = folder.filePath(u"settings.ini"_s);
    ZARSysSettingsManager::GetManager()->SetSource(
        new QSettings(settingsFile, QSettings::IniFormat));
    for (Magnitude magnitude : formMagnitudes)
        initialUnits.insert(magnitude, ZARSysValue::GetMagnitudeCurrentUnit(magnitude));
    // Nothing stored yet: the current units are the system units, which the expected texts
    // below assume unless a row says otherwise.
    QCOMPARE(initialUnits.value(ZARSysValue::Length), ZARSysValue::Millimeter);
}

void tst_QuantityEditor::init()
{
    useLocale(u"en_US"_s);
}

void tst_QuantityEditor::cleanup()
{
    for (auto it = initialUnits.cbegin(); it != initialUnits.cend(); ++it)
        ZARSysValue::SetMagnitudeCurrentUnit(it.key(), it.value());
    useLocale(u"en_US"_s);
}

void tst_QuantityEditor::typedText_data()
{
    QTest::addColumn<Field>("field");
    QTest::addColumn<Unit>("current");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<double>("stored");
    QTest::addColumn<bool>("hint");

    QTest::newRow("inches into a length") << QuantityEditor::SheetWidth << ZARSysValue::Millimeter
                                          << u"1in"_s << u"25.4mm"_s << 25.4 << false;
    QTest::newRow("shown in the current unit") << QuantityEditor::SheetWidth << ZARSysValue::Inch
                                               << u"25.4 mm"_s << u"1in"_s << 25.4 << false;
    QTest::newRow("bare number in millimetres")
        << QuantityEditor::SheetHeight << ZARSysValue::Millimeter << u"12.5"_s << u"12.5mm"_s
        << 12.5 << false;
    QTest::newRow("bare number in inches")
        << QuantityEditor::SheetHeight << ZARSysValue::Inch << u"2"_s << u"2in"_s << 50.8 << false;
    QTest::newRow("spaces around") << QuantityEditor::SheetWidth << ZARSysValue::Millimeter
                                   << u"  3 cm "_s << u"30mm"_s << 30.0 << false;
    QTest::newRow("group separator") << QuantityEditor::SheetWidth << ZARSysValue::Millimeter
                                     << u"1,250mm"_s << u"1,250mm"_s << 1250.0 << false;
    QTest::newRow("feed rate") << QuantityEditor::FeedRate << ZARSysValue::MillimetersPerMinute
                               << u"10inpmin"_s << u"254mmpmin"_s << 254.0 << false;
    QTest::newRow("angle in radians") << QuantityEditor::Rotation << ZARSysValue::Radian
                                      << u"90deg"_s << u"1.5708rad"_s << halfTurn << false;
    QTest::newRow("angle in degrees") << QuantityEditor::Rotation << ZARSysValue::Degree
                                      << u"0.5turn"_s << u"180deg"_s << 2 * halfTurn << false;
    // What ZARSysValue::SetValue() documents for text it cannot use.
    QTest::newRow("unreadable: 0") << QuantityEditor::SheetWidth << ZARSysValue::Millimeter
                                   << u"abc"_s << u"0mm"_s << 0.0 << false;
    QTest::newRow("unknown unit: current unit")
        << QuantityEditor::SheetWidth << ZARSysValue::Millimeter << u"5 furlong"_s << u"5mm"_s
        << 5.0 << false;
    QTest::newRow("time in a length: current unit, with a hint")
        << QuantityEditor::SheetWidth << ZARSysValue::Millimeter << u"2 s"_s << u"2mm"_s << 2.0
        << true;
    QTest::newRow("angle in a length: inches, with a hint")
        << QuantityEditor::SheetHeight << ZARSysValue::Inch << u"3deg"_s << u"3in"_s << 76.2
        << true;
    QTest::newRow("length in a feed rate")
        << QuantityEditor::FeedRate << ZARSysValue::MillimetersPerMinute << u"7in"_s << u"7mmpmin"_s
        << 7.0 << true;
    // The form's own rule: an empty field is a value that is not set.
    QTest::newRow("empty: not set") << QuantityEditor::SheetWidth << ZARSysValue::Millimeter
                                    << u"   "_s << QString() << qQNaN() << false;
}

void tst_QuantityEditor::typedText()
{
    QFETCH(Field, field);
    QFETCH(Unit, current);
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    QFETCH(double, stored);
    QFETCH(bool, hint);

    ZARSysValue::SetMagnitudeCurrentUnit(magnitudeOf(field), current);
    QuantityEditor editor;
    editor.setValue(field, quantity(magnitudeOf(field), 99));
    type(edit(editor, field), typed);

    QCOMPARE(edit(editor, field)->text(), shown);
    QCOMPARE(editor.value(field).GetValue(), stored);
    QCOMPARE(editor.value(field).GetMagnitude(), magnitudeOf(field));
    const QLabel *hintLabel = child<QLabel>(editor, u"hint"_s);
    if (hint) {
        QCOMPARE(hintLabel->text(),
                 u"Not a unit of %1: \"%2\" was read as %3."_s.arg(
                     ZARSysValue::GetMagnitudeLabel(magnitudeOf(field)), typed, shown));
        // Text the field can read takes the hint away.
        type(edit(editor, field), u"1"_s);
    }
    QCOMPARE(hintLabel->text(), QString());
    // The other fields were left alone.
    for (Field other : {QuantityEditor::SheetWidth, QuantityEditor::SheetHeight,
                        QuantityEditor::FeedRate, QuantityEditor::Rotation}) {
        if (other != field)
            QVERIFY(std::isnan(editor.value(other).GetValue()));
    }
}

void tst_QuantityEditor::unitChooser_data()
{
    QTest::addColumn<Unit>("unit");
    QTest::addColumn<QStringList>("shown"); // the four fields, filled in by fillIn()

    QTest::newRow("length in inches")
        << ZARSysValue::Inch
        << QStringList {u"118.11in"_s, u"59.0551in"_s, u"12,000mmpmin"_s, u"1.5708rad"_s};
    QTest::newRow("length in metres")
        << ZARSysValue::Meter
        << QStringList {u"3m"_s, u"1.5m"_s, u"12,000mmpmin"_s, u"1.5708rad"_s};
    QTest::newRow("feed rate in metres per minute")
        << ZARSysValue::MetersPerMinute
        << QStringList {u"3,000mm"_s, u"1,500mm"_s, u"12mpmin"_s, u"1.5708rad"_s};
    QTest::newRow("angle in degrees")
        << ZARSysValue::Degree
        << QStringList {u"3,000mm"_s, u"1,500mm"_s, u"12,000mmpmin"_s, u"90deg"_s};
}

void tst_QuantityEditor::unitChooser()
{
    QFETCH(Unit, unit);
    QFETCH(QStringList, shown);
    const Magnitude magnitude = ZARSysValue::GetUnitMagnitude(unit);

    QuantityEditor editor;
    fillIn(editor);
    QComboBox *chooser = chooserOf(editor, magnitude);

    // Every unit of the magnitude, by its label, and the current one chosen.
    const QList<Unit> units = ZARSysValue::GetMagnitudeUnits(magnitude);
    QCOMPARE(chooser->count(), units.size());
    for (int item = 0; item < chooser->count(); ++item) {
        QCOMPARE(Unit(chooser->itemData(item).toInt()), units.at(item));
        QCOMPARE(chooser->itemText(item),
                 u"%1 (%2)"_s.arg(ZARSysValue::GetUnitLabel(units.at(item)),
                                  ZARSysValue::GetUnitSuffix(units.at(item))));
    }
    QCOMPARE(Unit(chooser->currentData().toInt()), initialUnits.value(magnitude));

    chooser->setCurrentIndex(chooser->findData(int(unit)));
    for (Field field : {QuantityEditor::SheetWidth, QuantityEditor::SheetHeight,
                        QuantityEditor::FeedRate, QuantityEditor::Rotation}) {
        QCOMPARE(edit(editor, field)->text(), shown.at(field));
    }
    QCOMPARE(ZARSysValue::GetMagnitudeCurrentUnit(magnitude), unit);

    // Persisted: a copy of the settings file, which no QSettings of this process has seen,
    // holds the unit under the magnitude's number.
    ZARSysSettingsManager::GetManager()->GetSource()->sync();
    const QString copy = folder.filePath(u"copy.ini"_s);
    QFile::remove(copy);
    QVERIFY(QFile::copy(settingsFile, copy));
    const QSettings stored(copy, QSettings::IniFormat);
    QCOMPARE(stored.value(u"System/Units/%1"_s.arg(int(magnitude))).toInt(), int(unit));

    // A form opened later starts with the unit chosen, and a number typed into it is read in
    // that unit.
    QuantityEditor later;
    QCOMPARE(Unit(chooserOf(later, magnitude)->currentData().toInt()), unit);
    for (Field field :
         {QuantityEditor::SheetWidth, QuantityEditor::FeedRate, QuantityEditor::Rotation}) {
        if (magnitudeOf(field) == magnitude) {
            type(edit(later, field), u"2"_s);
            QCOMPARE(later.value(field).GetValue(), ZARSysValue::ConvertToSystemUnit(unit, 2));
        }
    }
}

void tst_QuantityEditor::language_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<bool>("fromForm"); // chosen in the form, or set by the host
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("widthLabel");
    QTest::addColumn<QString>("lengthLabel");
    QTest::addColumn<QString>("inch");
    QTest::addColumn<QString>("width"); // 63.5 mm
    QTest::addColumn<QString>("hint"); // for "2 s" typed into the height
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("stored");

    QTest::newRow("German, chosen in the form")
        << u"de_DE"_s << true << u"Größeneditor"_s << u"Blechbreite:"_s << u"Länge:"_s
        << u"Zoll (in)"_s << u"63,5mm"_s
        << u"Keine Einheit der Größe Länge: „2 s“ wurde als 2mm gelesen."_s << u"1,5cm"_s << 15.0;
    QTest::newRow("German, set by the host")
        << u"de_DE"_s << false << u"Größeneditor"_s << u"Blechbreite:"_s << u"Länge:"_s
        << u"Zoll (in)"_s << u"63,5mm"_s
        << u"Keine Einheit der Größe Länge: „2 s“ wurde als 2mm gelesen."_s << u"2,5in"_s << 63.5;
    QTest::newRow("French, chosen in the form")
        << u"fr_FR"_s << true << u"Éditeur de grandeurs"_s << u"Largeur de la tôle\u00a0:"_s
        << u"Longueur\u00a0:"_s << u"Pouce (in)"_s << u"63,5mm"_s
        << u"Pas une unité de la grandeur Longueur\u00a0: «\u00a02 s\u00a0» a été lu comme 2mm."_s
        << u"0,5m"_s << 500.0;
    // Units are translated by the library alone; the form's own texts stay English.
    QTest::newRow("Japanese, set by the host")
        << u"ja_JP"_s << false << u"Quantity editor"_s << u"Sheet width:"_s << u"長さ:"_s
        << u"インチ (in)"_s << u"63.5mm"_s << u"Not a unit of 長さ: \"2 s\" was read as 2mm."_s
        << u"1.5cm"_s << 15.0;
}

void tst_QuantityEditor::language()
{
    QFETCH(QString, locale);
    QFETCH(bool, fromForm);
    QFETCH(QString, title);
    QFETCH(QString, widthLabel);
    QFETCH(QString, lengthLabel);
    QFETCH(QString, inch);
    QFETCH(QString, width);
    QFETCH(QString, hint);
    QFETCH(QString, typed);
    QFETCH(double, stored);

    QuantityEditor editor;
    editor.setValue(QuantityEditor::SheetWidth, quantity(ZARSysValue::Length, 63.5));
    type(edit(editor, QuantityEditor::SheetHeight), u"2 s"_s);
    const QLabel *widthTitle = child<QLabel>(editor, u"sheetWidthLabel"_s);
    const QLabel *lengthTitle = child<QLabel>(editor, u"unitLabel_Length"_s);
    const QLabel *hintLabel = child<QLabel>(editor, u"hint"_s);
    QComboBox *language = child<QComboBox>(editor, u"language"_s);
    QCOMPARE(widthTitle->text(), u"Sheet width:"_s);
    QCOMPARE(language->currentData().toString(), u"en_US"_s);

    if (fromForm)
        language->setCurrentIndex(language->findData(locale));
    else
        useLocale(locale);
    // Every language translates the magnitude: the form has followed once that has changed.
    QTRY_COMPARE(lengthTitle->text(), lengthLabel);
    QCOMPARE(widthTitle->text(), widthLabel);
    QCOMPARE(editor.windowTitle(), title);
    QCOMPARE(unitItemText(editor, ZARSysValue::Inch), inch);
    QCOMPARE(edit(editor, QuantityEditor::SheetWidth)->text(), width);
    QCOMPARE(hintLabel->text(), hint);
    QCOMPARE(language->currentData().toString(), locale);
    QCOMPARE(ZARSysLocalizationManager::GetManager()->GetLocale().name(), locale);

    // Typed text is read in the notation of the language.
    type(edit(editor, QuantityEditor::SheetWidth), typed);
    QCOMPARE(editor.value(QuantityEditor::SheetWidth).GetValue(), stored);

    // And back to the language of the sources.
    language->setCurrentIndex(language->findData(u"en_US"_s));
    QTRY_COMPARE(lengthTitle->text(), u"Length:"_s);
    QCOMPARE(widthTitle->text(), u"Sheet width:"_s);
    QCOMPARE(editor.windowTitle(), u"Quantity editor"_s);
    QCOMPARE(unitItemText(editor, ZARSysValue::Inch), u"Inch (in)"_s);
    QCOMPARE(edit(editor, QuantityEditor::SheetWidth)->text(),
             quantity(ZARSysValue::Length, stored).ToString());
}

void tst_QuantityEditor::offeredLanguages()
{
    QuantityEditor editor;
    QComboBox *language = child<QComboBox>(editor, u"language"_s);
    QStringList offered;
    for (int item = 0; item < language->count(); ++item)
        offered.append(language->itemData(item).toString());

    // English first; then the languages of the library's catalogues, once each, although the
    // form and Qt bring catalogues of some of them too.
    QCOMPARE(offered.value(0), u"en_US"_s);
    for (const QString &name : {u"de_DE"_s, u"fr_FR"_s, u"ja_JP"_s, u"zh_CN"_s})
        QVERIFY2(offered.contains(name), qPrintable(name));
    QCOMPARE(offered.removeDuplicates(), 0);
    for (const QString &name : std::as_const(offered).sliced(1)) {
        QVERIFY2(QFile::exists(u":/localization/translations/ZARSystem-%1.qm"_s.arg(name)),
                 qPrintable(name));
    }
    // Each language is named in itself.
    QCOMPARE(language->itemText(language->findData(u"de_DE"_s)), u"Deutsch"_s);
    QCOMPARE(language->itemText(language->findData(u"fr_FR"_s)), u"Français"_s);

    // A locale that is not offered selects one of its language.
    useLocale(u"de_AT"_s);
    QTRY_COMPARE(language->currentData().toString(), u"de_DE"_s);
}

void tst_QuantityEditor::render()
{
    ZARSysValue::SetMagnitudeCurrentUnit(ZARSysValue::Angle, ZARSysValue::Degree);
    QuantityEditor editor;
    fillIn(editor);
    editor.resize(editor.sizeHint().expandedTo(QSize(420, 0)));
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    // No blinking text cursor in the picture.
    if (QWidget *focus = editor.focusWidget())
        focus->clearFocus();

    const QImage shot = editor.grab().toImage();
    QVERIFY(!shot.isNull());
    QCOMPARE(shot.size(), editor.size() * shot.devicePixelRatio());
    // Something was drawn: not a single colour all over.
    const QRgb background = shot.pixel(0, 0);
    bool drawn = false;
    for (int y = 0; y < shot.height() && !drawn; ++y) {
        for (int x = 0; x < shot.width() && !drawn; ++x)
            drawn = shot.pixel(x, y) != background;
    }
    QVERIFY(drawn);

    const QString screenshots = qEnvironmentVariable("ZARSYS_SCREENSHOT_DIR");
    if (!screenshots.isEmpty())
        QVERIFY(shot.save(screenshots + u"/quantity-editor.png"_s));
}

QTEST_MAIN(tst_QuantityEditor)
#include "tst_quantityeditor.moc"
