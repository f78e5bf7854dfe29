#include "ZARSysResourceManager.h"

#include <QWidget>

namespace {

const QString fallbackTheme = QStringLiteral("loom-default");

QString imagePath(const QString &theme, const QString &name)
{
    return QStringLiteral(":/icons/") + theme + QStringLiteral("/images/") + name
        + QStringLiteral(".png");
}

} // namespace

QPixmap ZARSysResourceManager::GetImage(const QString &name)
{
    if (name.isEmpty())
        return QPixmap();
    QPixmap image(imagePath(QIcon::themeName(), name));
    if (image.isNull())
        image.load(imagePath(fallbackTheme, name));
    return image;
}

QString ZARSysResourceManager::GetImageResourcePath(const QString &name)
{
    if (name.isEmpty())
        return QString();
    // Loaded, not merely looked up: a file that does not decode is as good as missing.
    const QString themed = imagePath(QIcon::themeName(), name);
    if (!QPixmap(themed).isNull())
        return themed;
    return imagePath(fallbackTheme, name);
}

QIcon ZARSysResourceManager::GetSelectedIcon()
{
    return QIcon::fromTheme(QStringLiteral("nesting-arrow-selected"));
}

QIcon ZARSysResourceManager::GetUnSelectedIcon()
{
    return QIcon::fromTheme(QStringLiteral("nesting-arrow-unselected"));
}

void ZARSysResourceManager::ResolveStyleSheetImage(QWidget *widget, const QString &placeholder,
                                                   const QString &imageName)
{
    if (!widget)
        return;
    QString styleSheet = widget->styleSheet();
    // QString would insert the path between all characters for an empty placeholder.
    if (!placeholder.isEmpty())
        styleSheet.replace(placeholder, GetImageResourcePath(imageName), Qt::CaseSensitive);
    widget->setStyleSheet(styleSheet);
}

void ZARSysResourceManager::ResolveUpDownImagesOfStyleSheet(QWidget *widget)
{
    ResolveStyleSheetImage(widget, QStringLiteral("@@@unchecked-image@@@"),
                           QStringLiteral("button-collapse-down"));
    ResolveStyleSheetImage(widget, QStringLiteral("@@@checked-image@@@"),
                           QStringLiteral("button-collapse-up"));
}
