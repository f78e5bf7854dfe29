#ifndef QUANTITYEDITOR_H
#define QUANTITYEDITOR_H

#include <ZARSysValue.h>

#include <QList>
#include <QWidget>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;

// A form of the quantities of a cutting job, as a module of a nesting application would show
// it: the size of the sheet, the feed rate and the rotation of the parts.
//
// Each field accepts a number with any unit of its magnitude ("1in", "2.5 cm"); a number
// without a unit is taken in the unit the field is shown in. When editing finishes, the field
// shows the value again in the magnitude's current unit. One chooser per magnitude sets that
// current unit for the whole application (it is stored in the settings), and a language
// chooser switches the application's language. The form follows language changes made
// elsewhere too.
//
// Widget texts are translated by the catalogues QuantityEditor-<locale>.qm that the build
// compiles into ":/localization/translations", where the localization manager installs them
// together with the library's own.
class QuantityEditor : public QWidget
{
    Q_OBJECT

public:
    // The quantities of the form, in the order in which they are shown.
    enum Field { SheetWidth, SheetHeight, FeedRate, Rotation };
    Q_ENUM(Field)

    explicit QuantityEditor(QWidget *parent = nullptr);
    ~QuantityEditor() override;

    // Returns the value of \a field; its number is NaN while the field is empty.
    [[nodiscard]] ZARSysValue value(Field field) const;
    // Shows \a value in \a field. The value keeps the field's magnitude.
    void setValue(Field field, const ZARSysValue &value);

private:
    struct QuantityRow
    {
        const char *title; // source text, translated by retranslateUi()
        ZARSysValue value;
        QLabel *label;
        QLineEdit *edit;
    };
    struct UnitChooser
    {
        ZARSysValue::Magnitude magnitude;
        QLabel *label;
        QComboBox *units;
    };

    void readText(int row);
    void chooseUnit(int chooser);
    void chooseLanguage(int index);
    void followLocale();
    void retranslateUi();
    void showValues();
    void showHint();

    QList<QuantityRow> m_rows;
    QList<UnitChooser> m_choosers;
    QGroupBox *m_quantitiesBox = nullptr;
    QGroupBox *m_unitsBox = nullptr;
    QLabel *m_languageLabel = nullptr;
    QComboBox *m_language = nullptr;
    QLabel *m_hint = nullptr;
    // The row whose text had a unit of another magnitude, and that text; -1 for none.
    int m_hintRow = -1;
    QString m_hintText;
};

#endif // QUANTITYEDITOR_H
