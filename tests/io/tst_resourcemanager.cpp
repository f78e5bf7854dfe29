#include "../startlibrary.h"
#include "../testrow.h"

#include <ZARSysResourceManager.h>

#include <QCheckBox>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyleOptionButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const QString fallback = u":/icons/loom-default/images/"_s;
const QString themed = u":/icons/test-theme/images/"_s;

QImage normalized(const QImage &image)
{
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage fallbackImage(const QString &name)
{
    return normalized(QImage(fallback + name + u".png"_s));
}

// The largest difference of a channel between two images of the same size.
int difference(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return 256;
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            largest = std::max({largest, std::abs(qRed(p) - qRed(q)),
                                std::abs(qGreen(p) - qGreen(q)), std::abs(qBlue(p) - qBlue(q))});
        }
    }
    return largest;
}

} // namespace

class tst_ResourceManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Start-up registers loom-default.rcc from Resources/ beside the library.
        QVERIFY(!QFile::exists(fallback + u"button-collapse-down.png"_s));
        startLibrary();
        for (const QString &name : {u"nesting-arrow-selected"_s, u"nesting-arrow-unselected"_s,
                                    u"button-collapse-down"_s, u"button-collapse-up"_s}) {
            const QImage image = fallbackImage(name);
            QVERIFY2(!image.isNull(), qPrintable(name));
            QCOMPARE(image.size(), QSize(32, 32));
        }
        QVERIFY(QFile::exists(u":/icons/loom-default/index.theme"_s));
        ZARSysInitResources();
    }

    void init() { QIcon::setThemeName(u"test-theme"_s); }

    void imagePaths_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("folder"); // of the path returned, and of the image if found
        QTest::addColumn<bool>("found");

        const QString theme = u"test-theme"_s;
        addRow("in the theme", theme, u"button-collapse-up"_s, themed, true);
        addRow("only in the theme", theme, u"only-here"_s, themed, true);
        addRow("not in the theme", theme, u"nesting-arrow-unselected"_s, fallback, true);
        addRow("in the theme but not an image", theme, u"button-collapse-down"_s, fallback, true);
        addRow("nowhere: the fallback path all the same", theme, u"missing"_s, fallback, false);
        addRow("empty theme name", QString(), u"button-collapse-up"_s, fallback, true);
        addRow("unknown theme", u"no-such-theme"_s, u"only-here"_s, fallback, false);
        addRow("fallback theme current", u"loom-default"_s, u"button-collapse-up"_s, fallback,
               true);
        addRow("empty name: no path", theme, QString(), QString(), false);
        addRow("name is case-sensitive", theme, u"Button-Collapse-Up"_s, fallback, false);
    }

    void imagePaths()
    {
        QFETCH(QString, theme);
        QFETCH(QString, name);
        QFETCH(QString, folder);
        QFETCH(bool, found);

        QIcon::setThemeName(theme);
        const QString path = folder.isEmpty() ? QString() : folder + name + u".png"_s;
        QCOMPARE(ZARSysResourceManager::GetImageResourcePath(name), path);
        const QPixmap pixmap = ZARSysResourceManager::GetImage(name);
        QCOMPARE(pixmap.isNull(), !found);
        if (found)
            QCOMPARE(normalized(pixmap.toImage()), normalized(QImage(path)));
    }

    void icons_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::addColumn<QString>("selected"); // image of the selected icon
        QTest::addColumn<QString>("unselected");

        addRow("theme has one", u"test-theme"_s, themed + u"nesting-arrow-selected.png"_s,
               fallback + u"nesting-arrow-unselected.png"_s);
        addRow("fallback theme", u"loom-default"_s, fallback + u"nesting-arrow-selected.png"_s,
               fallback + u"nesting-arrow-unselected.png"_s);
    }

    void icons()
    {
        QFETCH(QString, theme);
        QFETCH(QString, selected);
        QFETCH(QString, unselected);

        QIcon::setThemeName(theme);
        const QIcon selectedIcon = ZARSysResourceManager::GetSelectedIcon();
        const QIcon unselectedIcon = ZARSysResourceManager::GetUnSelectedIcon();
        QCOMPARE(selectedIcon.name(), u"nesting-arrow-selected"_s);
        QCOMPARE(unselectedIcon.name(), u"nesting-arrow-unselected"_s);
        QCOMPARE(normalized(selectedIcon.pixmap(32).toImage()), normalized(QImage(selected)));
        QCOMPARE(normalized(unselectedIcon.pixmap(32).toImage()), normalized(QImage(unselected)));
    }

    void styleSheet_data()
    {
        QTest::addColumn<QString>("styleSheet");
        QTest::addColumn<QString>("placeholder");
        QTest::addColumn<QString>("resolved");

        const QString path = themed + u"button-collapse-up.png"_s;
        addRow("twice", u"QLabel { image: url(@P@); border-image: url(@P@); }"_s, u"@P@"_s,
               u"QLabel { image: url(%1); border-image: url(%1); }"_s.arg(path));
        addRow("none", u"QLabel { color: red; }"_s, u"@P@"_s, u"QLabel { color: red; }"_s);
        addRow("case-sensitive", u"QLabel { image: url(@p@); border-image: url(@P@); }"_s, u"@P@"_s,
               u"QLabel { image: url(@p@); border-image: url(%1); }"_s.arg(path));
        addRow("empty placeholder", u"QLabel { image: url(x); }"_s, QString(),
               u"QLabel { image: url(x); }"_s);
    }

    void styleSheet()
    {
        QFETCH(QString, styleSheet);
        QFETCH(QString, placeholder);

        QLabel label;
        label.setStyleSheet(styleSheet);
        ZARSysResourceManager::ResolveStyleSheetImage(&label, placeholder, u"button-collapse-up"_s);
        QTEST(label.styleSheet(), "resolved");

        ZARSysResourceManager::ResolveStyleSheetImage(nullptr, placeholder,
                                                      u"button-collapse-up"_s);
    }

    void themedWidget()
    {
        // A panel as the SDK's widgets build it: check boxes whose indicators come from the
        // placeholders, and labels with the selection icons.
        QIcon::setThemeName(u"loom-default"_s);
        QWidget panel;
        panel.setObjectName(u"panel"_s);
        panel.setStyleSheet(u"#panel { background: white; }"
                            "QCheckBox { spacing: 8px; font-size: 13px; }"
                            "QCheckBox::indicator { width: 32px; height: 32px; }"
                            "QCheckBox::indicator:unchecked { image: url(@@@unchecked-image@@@); }"
                            "QCheckBox::indicator:checked { image: url(@@@checked-image@@@); }"_s);
        ZARSysResourceManager::ResolveUpDownImagesOfStyleSheet(&panel);
        QVERIFY(!panel.styleSheet().contains(u"@@@"_s));

        auto *layout = new QVBoxLayout(&panel);
        auto *collapsed = new QCheckBox(u"Collapsed section"_s);
        auto *expanded = new QCheckBox(u"Expanded section"_s);
        expanded->setChecked(true);
        layout->addWidget(collapsed);
        layout->addWidget(expanded);
        for (const auto &[icon, text] :
             {std::pair {ZARSysResourceManager::GetSelectedIcon(), u"Selected part"_s},
              std::pair {ZARSysResourceManager::GetUnSelectedIcon(), u"Unselected part"_s}}) {
            auto *row = new QHBoxLayout;
            auto *image = new QLabel;
            image->setPixmap(icon.pixmap(32));
            row->addWidget(image);
            row->addWidget(new QLabel(text), 1);
            layout->addLayout(row);
        }
        panel.resize(260, panel.sizeHint().height());
        const QImage shot = normalized(panel.grab().toImage());

        // Each indicator shows the image its placeholder stands for over the white background.
        for (const auto &[box, name] : {std::pair {collapsed, u"button-collapse-down"_s},
                                        std::pair {expanded, u"button-collapse-up"_s}}) {
            QStyleOptionButton option;
            option.initFrom(box);
            const QRect indicator = box->style()
                                        ->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box)
                                        .translated(box->pos());
            QCOMPARE(indicator.size(), QSize(32, 32));
            QImage expected(indicator.size(), QImage::Format_ARGB32_Premultiplied);
            expected.fill(Qt::white);
            QPainter(&expected).drawImage(0, 0, fallbackImage(name));
            QVERIFY2(difference(shot.copy(indicator), expected) <= 2, qPrintable(name));
        }

        const QString folder = qEnvironmentVariable("ZARSYS_SCREENSHOT_DIR");
        if (!folder.isEmpty())
            QVERIFY(shot.save(folder + u"/resource-theme.png"_s));
    }
};

QTEST_MAIN(tst_ResourceManager)
#include "tst_resourcemanager.moc"
