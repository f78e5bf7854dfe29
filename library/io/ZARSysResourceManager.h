#ifndef ZARSYSRESOURCEMANAGER_H
#define ZARSYSRESOURCEMANAGER_H

#include <zarsystem_export.h>

#include <QIcon>
#include <QPixmap>
#include <QString>

class QWidget;

/*!
    \class ZARSysResourceManager
    \brief Themed images in the library's resources, and style sheets that refer to them.

    Images live in icon themes under ":/icons", as ":/icons/<theme>/images/<name>.png". An
    image is taken from Qt's current icon theme (QIcon::themeName()) when that theme has it, and
    from the fallback theme "loom-default" otherwise. Start-up registers the resource file that
    holds "loom-default"; ZARSysInitResources() makes ":/icons" the icon theme search path, which
    the icons returned here need.

    Style sheets of the SDK's widgets name their indicator images with the placeholders
    "@@@unchecked-image@@@" and "@@@checked-image@@@"; ResolveUpDownImagesOfStyleSheet() puts
    the images' resource paths in their place:

    \code
    auto *expander = new QCheckBox(tr("Details"));
    expander->setStyleSheet(QStringLiteral(
        "QCheckBox::indicator:unchecked { image: url(@@@unchecked-image@@@); }"
        "QCheckBox::indicator:checked { image: url(@@@checked-image@@@); }"));
    ZARSysResourceManager::ResolveUpDownImagesOfStyleSheet(expander);
    \endcode

    Use the class from the GUI thread only.
*/
class ZARSYSTEM_EXPORT ZARSysResourceManager
{
public:
    /*!
        Returns the image \a name (without ".png") of the current icon theme, or of
        "loom-default" when the current theme's does not load. A null pixmap for an empty
        \a name or when neither loads.
    */
    static QPixmap GetImage(const QString &name);

    /*!
        Returns the resource path of the image \a name: the current theme's when it loads as a
        pixmap (a file that exists but does not decode counts as missing), otherwise the path in
        "loom-default", whether or not that exists. Empty for an empty \a name.
    */
    static QString GetImageResourcePath(const QString &name);

    /*! Returns QIcon::fromTheme("nesting-arrow-selected"), the icon of a selected item. */
    static QIcon GetSelectedIcon();
    /*! Returns QIcon::fromTheme("nesting-arrow-unselected"), the icon of an unselected item. */
    static QIcon GetUnSelectedIcon();

    /*!
        Replaces every occurrence of \a placeholder (case-sensitive) in the style sheet of
        \a widget by GetImageResourcePath(\a imageName). The style sheet is set again even
        when nothing was replaced, and when \a placeholder is empty. A null \a widget is
        ignored.
    */
    static void ResolveStyleSheetImage(QWidget *widget, const QString &placeholder,
                                       const QString &imageName);

    /*!
        Replaces "@@@unchecked-image@@@" by the path of "button-collapse-down", then
        "@@@checked-image@@@" by the path of "button-collapse-up", in the style sheet of
        \a widget.
    */
    static void ResolveUpDownImagesOfStyleSheet(QWidget *widget);
};

#endif // ZARSYSRESOURCEMANAGER_H
