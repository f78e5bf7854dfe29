#include "QuantityEditor.h"

#include <ZARSysException.h>
#include <ZARSysLocalizationManager.h>

#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

struct FieldDescription
{
    const char *objectName;
    const char *title;
    ZARSysValue::Magnitude magnitude;
};

// In the order of QuantityEditor::Field.
constexpr FieldDescription fields[] = {
    {"sheetWidth", QT_TRANSLATE_NOOP("QuantityEditor", "Sheet width:"), ZARSysValue::Length},
    {"sheetHeight", QT_TRANSLATE_NOOP("QuantityEditor", "Sheet height:"), ZARSysValue::Length},
    {"feedRate", QT_TRANSLATE_NOOP("QuantityEditor", "Feed rate:"), ZARSysValue::LinearFeedRate},
    {"rotation", QT_TRANSLATE_NOOP("QuantityEditor", "Rotation:"), ZARSysValue::Angle},
};

// The catalogue keeps each magnitude's label as it was translated when the library started.
// A host starts the library before it chooses a language, so that is the English source text,
// which ZARSysValue's own context translates into the current language. (Unit labels need no
// such help: GetUnitLabel() translates each time.)
QString magnitudeLabel(ZARSysValue::Magnitude magnitude)
{
    return ZARSysValue::tr(ZARSysValue::GetMagnitudeLabel(magnitude).toUtf8().constData());
}

// An empty field stands for a value that is not set, rather than the "<not set>" of
// ZARSysValue::ToString(): the placeholder text says what to type instead.
QString display(const ZARSysValue &value)
{
    return std::isnan(value.GetValue()) ? QString() : value.ToString();
}

// English, the language of the sources, and every language the library has a catalogue of
// its own for: those are the languages in which at least the units are translated.
QStringList offeredLocales()
{
    const QString prefix = QStringLiteral("ZARSystem-");
    const QString suffix = QStringLiteral(".qm");
    QStringList names {QStringLiteral("en_US")};
    const QDir catalogues(QStringLiteral(":/localization/translations"));
    const QStringList files =
        catalogues.entryList({prefix + QLatin1Char('*') + suffix}, QDir::Files, QDir::Name);
    for (const QString &file : files)
        names.append(file.mid(prefix.size(), file.size() - prefix.size() - suffix.size()));
    return names;
}

// The chooser's entry for \a locale: the same locale, or else one of its language (de_AT
// finds de_DE); -1 if none.
int indexOfLocale(const QComboBox *chooser, const QLocale &locale)
{
    const int index = chooser->findData(locale.name());
    if (index >= 0)
        return index;
    for (int item = 0; item < chooser->count(); ++item) {
        if (QLocale(chooser->itemData(item).toString()).language() == locale.language())
            return item;
    }
    return -1;
}

// The name of a language in that language, so that users find theirs whatever the current
// language is; it needs no translation.
QString languageName(const QLocale &locale)
{
    QString name = locale.nativeLanguageName();
    if (!name.isEmpty())
        name[0] = name.at(0).toUpper();
    return name;
}

} // namespace

QuantityEditor::QuantityEditor(QWidget *parent)
    : QWidget(parent)
{
    m_quantitiesBox = new QGroupBox(this);
    m_quantitiesBox->setObjectName(QStringLiteral("quantities"));
    auto *quantitiesLayout = new QFormLayout(m_quantitiesBox);
    for (const FieldDescription &field : fields) {
        QuantityRow row {field.title, ZARSysValue(field.magnitude, std::nan("")),
                         new QLabel(m_quantitiesBox), new QLineEdit(m_quantitiesBox)};
        row.edit->setObjectName(QLatin1String(field.objectName));
        row.label->setObjectName(QLatin1String(field.objectName) + QStringLiteral("Label"));
        row.label->setBuddy(row.edit);
        quantitiesLayout->addRow(row.label, row.edit);
        // Return, or leaving the field after a change: the moment to read what was typed.
        const int index = int(m_rows.size());
        connect(row.edit, &QLineEdit::editingFinished, this, [this, index] { readText(index); });
        m_rows.append(row);

        if (std::none_of(m_choosers.cbegin(), m_choosers.cend(), [&field](const UnitChooser &c) {
                return c.magnitude == field.magnitude;
            })) {
            m_choosers.append({field.magnitude, nullptr, nullptr});
        }
    }

    m_unitsBox = new QGroupBox(this);
    m_unitsBox->setObjectName(QStringLiteral("units"));
    auto *unitsLayout = new QFormLayout(m_unitsBox);
    for (int index = 0; index < m_choosers.size(); ++index) {
        UnitChooser &chooser = m_choosers[index];
        const QString magnitude = ZARSysValue::GetMagnitudeString(chooser.magnitude);
        chooser.label = new QLabel(m_unitsBox);
        chooser.label->setObjectName(QStringLiteral("unitLabel_") + magnitude);
        chooser.units = new QComboBox(m_unitsBox);
        chooser.units->setObjectName(QStringLiteral("unit_") + magnitude);
        chooser.label->setBuddy(chooser.units);
        // The texts come with retranslateUi(); the unit itself is the item's data.
        for (ZARSysValue::Unit unit : ZARSysValue::GetMagnitudeUnits(chooser.magnitude))
            chooser.units->addItem(QString(), int(unit));
        chooser.units->setCurrentIndex(
            chooser.units->findData(int(ZARSysValue::GetMagnitudeCurrentUnit(chooser.magnitude))));
        unitsLayout->addRow(chooser.label, chooser.units);
        connect(chooser.units, &QComboBox::currentIndexChanged, this,
                [this, index] { chooseUnit(index); });
    }

    m_language = new QComboBox(this);
    m_language->setObjectName(QStringLiteral("language"));
    for (const QString &name : offeredLocales())
        m_language->addItem(languageName(QLocale(name)), name);
    m_languageLabel = new QLabel(this);
    m_languageLabel->setObjectName(QStringLiteral("languageLabel"));
    m_languageLabel->setBuddy(m_language);
    auto *languageLayout = new QFormLayout;
    languageLayout->addRow(m_languageLabel, m_language);

    m_hint = new QLabel(this);
    m_hint->setObjectName(QStringLiteral("hint"));
    m_hint->setWordWrap(true);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_quantitiesBox);
    layout->addWidget(m_unitsBox);
    layout->addLayout(languageLayout);
    layout->addWidget(m_hint);
    layout->addStretch();

    connect(m_language, &QComboBox::currentIndexChanged, this, &QuantityEditor::chooseLanguage);
    // LocaleChanged() comes while SetLocale() is still at work: the new translators are
    // installed, but GetLocale(), whose notation ZARSysValue formats numbers in, still answers
    // the previous locale. Queued, the form updates once SetLocale() is done.
    connect(ZARSysLocalizationManager::GetManager(), &ZARSysLocalizationManager::LocaleChanged,
            this, &QuantityEditor::followLocale, Qt::QueuedConnection);
    followLocale();
}

QuantityEditor::~QuantityEditor()
{
    // QWidget's destructor hides the form, which takes the focus from a field and so finishes
    // its editing; by then the rows are gone.
    for (const QuantityRow &row : std::as_const(m_rows))
        disconnect(row.edit, nullptr, this, nullptr);
}

ZARSysValue QuantityEditor::value(Field field) const
{
    return m_rows.at(field).value;
}

void QuantityEditor::setValue(Field field, const ZARSysValue &value)
{
    QuantityRow &row = m_rows[field];
    row.value = ZARSysValue(row.value.GetMagnitude(), value.GetValue());
    row.edit->setText(display(row.value));
    if (m_hintRow == field) {
        m_hintRow = -1;
        showHint();
    }
}

void QuantityEditor::readText(int index)
{
    QuantityRow &row = m_rows[index];
    const QString text = row.edit->text().trimmed();
    const ZARSysValue::Magnitude magnitude = row.value.GetMagnitude();
    m_hintRow = -1;
    if (text.isEmpty()) {
        row.value = ZARSysValue(magnitude, std::nan(""));
    } else {
        // A bare number means what the user sees next to the other fields: the current unit.
        // Text that cannot be read gives 0, as ZARSysValue documents; the field then shows it.
        row.value.SetValue(text, ZARSysValue::GetMagnitudeCurrentUnit(magnitude));
        // A unit of another magnitude ("2 s" in a length) is ignored by SetValue() without a
        // word. FromString() tells which magnitude the unit belongs to, so the user learns.
        const ZARSysValue typed = ZARSysValue::FromString(text);
        if (typed.IsValid() && typed.GetMagnitude() != magnitude) {
            m_hintRow = index;
            m_hintText = text;
        }
    }
    row.edit->setText(display(row.value));
    showHint();
}

void QuantityEditor::chooseUnit(int index)
{
    const UnitChooser &chooser = m_choosers.at(index);
    // The current unit is the user's choice for the whole application, not for this form: it
    // is stored in the settings group "System/Units" and every value of the magnitude is shown
    // in it from now on.
    ZARSysValue::SetMagnitudeCurrentUnit(chooser.magnitude,
                                         ZARSysValue::Unit(chooser.units->currentData().toInt()));
    showValues();
    showHint();
}

void QuantityEditor::chooseLanguage(int index)
{
    try {
        ZARSysLocalizationManager::GetManager()->SetLocale(
            QLocale(m_language->itemData(index).toString()));
    } catch (const ZARSysException &e) {
        // A catalogue that cannot be loaded leaves the language as it was.
        m_hintRow = -1;
        m_hint->setText(e.GetText());
        const QSignalBlocker blocker(m_language);
        m_language->setCurrentIndex(
            indexOfLocale(m_language, ZARSysLocalizationManager::GetManager()->GetLocale()));
    }
}

void QuantityEditor::followLocale()
{
    // The host, or another window, may have switched the language.
    const QLocale locale = ZARSysLocalizationManager::GetManager()->GetLocale();
    const QSignalBlocker blocker(m_language);
    m_language->setCurrentIndex(indexOfLocale(m_language, locale));
    retranslateUi();
}

void QuantityEditor::retranslateUi()
{
    setWindowTitle(tr("Quantity editor"));
    m_quantitiesBox->setTitle(tr("Sheet and machine"));
    for (const QuantityRow &row : std::as_const(m_rows)) {
        row.label->setText(tr(row.title));
        row.edit->setPlaceholderText(tr("Number and unit"));
    }
    m_unitsBox->setTitle(tr("Units"));
    for (const UnitChooser &chooser : std::as_const(m_choosers)) {
        //: The label of a unit chooser; %1 is a magnitude, such as Length.
        chooser.label->setText(tr("%1:").arg(magnitudeLabel(chooser.magnitude)));
        for (int item = 0; item < chooser.units->count(); ++item) {
            const auto unit = ZARSysValue::Unit(chooser.units->itemData(item).toInt());
            chooser.units->setItemText(
                item,
                QStringLiteral("%1 (%2)").arg(ZARSysValue::GetUnitLabel(unit),
                                              ZARSysValue::GetUnitSuffix(unit)));
        }
    }
    m_languageLabel->setText(tr("Language:"));
    // Numbers are written in the notation of the new locale.
    showValues();
    showHint();
}

void QuantityEditor::showValues()
{
    for (const QuantityRow &row : std::as_const(m_rows))
        row.edit->setText(display(row.value));
}

void QuantityEditor::showHint()
{
    if (m_hintRow < 0) {
        m_hint->clear();
        return;
    }
    const QuantityRow &row = m_rows.at(m_hintRow);
    //: %1 is a magnitude, such as Length; %2 the text typed; %3 the value it gave, with its unit.
    m_hint->setText(
        tr("Not a unit of %1: \"%2\" was read as %3.")
            .arg(magnitudeLabel(row.value.GetMagnitude()), m_hintText, row.value.ToString()));
}
