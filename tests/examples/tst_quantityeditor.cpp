#include "../startlibrary.h"
#include "QuantityEditor.h"

#include <ZARSysValue.h>

#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

// A smoke test of the example program: the form starts, reads a value typed in another unit,
// and draws itself (the picture of the documentation comes from render()).

class tst_QuantityEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startLibrary(); }

    void typedInAnotherUnit()
    {
        QuantityEditor editor;
        editor.setValue(QuantityEditor::SheetWidth, ZARSysValue(ZARSysValue::Length, 99));
        QLineEdit *edit = editor.findChild<QLineEdit *>(u"sheetWidth"_s);
        QVERIFY(edit);
        QCOMPARE(edit->text(), u"99mm"_s);

        edit->clear();
        QTest::keyClicks(edit, u"1in"_s);
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(edit->text(), u"25.4mm"_s);
        QCOMPARE(editor.value(QuantityEditor::SheetWidth).GetValue(), 25.4);
    }

    void render()
    {
        ZARSysValue::SetMagnitudeCurrentUnit(ZARSysValue::Angle, ZARSysValue::Degree);
        QuantityEditor editor;
        // A cutting job: 3000 x 1500 mm, 12000 mm/min, a right angle.
        editor.setValue(QuantityEditor::SheetWidth, ZARSysValue(ZARSysValue::Length, 3000));
        editor.setValue(QuantityEditor::SheetHeight, ZARSysValue(ZARSysValue::Length, 1500));
        editor.setValue(QuantityEditor::FeedRate, ZARSysValue(ZARSysValue::LinearFeedRate, 12000));
        editor.setValue(QuantityEditor::Rotation,
                        ZARSysValue(ZARSysValue::Angle, 3.14159265358979323846 / 2));
        editor.resize(editor.sizeHint().expandedTo(QSize(420, 0)));
        editor.show();
        QVERIFY(QTest::qWaitForWindowExposed(&editor));
        // No blinking text cursor in the picture.
        if (QWidget *focus = editor.focusWidget())
            focus->clearFocus();

        const QImage shot = editor.grab().toImage();
        QVERIFY(!shot.isNull());
        QCOMPARE(shot.size(), editor.size() * shot.devicePixelRatio());
        const QString screenshots = qEnvironmentVariable("ZARSYS_SCREENSHOT_DIR");
        if (!screenshots.isEmpty())
            QVERIFY(shot.save(screenshots + u"/quantity-editor.png"_s));
    }
};

QTEST_MAIN(tst_QuantityEditor)
#include "tst_quantityeditor.moc"
