#ifndef ZARSYSURLUTILITYPRIVATE_H
#define ZARSYSURLUTILITYPRIVATE_H

#include <QString>

// Whether the "/" at the start of a URL's path is to go. With Windows rules, before anything
// but a second "/" ("/C:/folder" becomes "C:/folder", "//server/share" stays, and so does "//");
// elsewhere, where a leading "/" makes a path absolute, only before a drive letter and colon.
inline bool ZARSysDropsLeadingSlash(const QString &path, bool windowsRules)
{
    if (windowsRules)
        return path.size() >= 2 && path.at(0) == u'/' && (path.at(1) != u'/' || path.size() == 2);
    const auto isDriveLetter = [](QChar c) {
        return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
    };
    return path.size() >= 3 && path.at(0) == u'/' && isDriveLetter(path.at(1))
        && path.at(2) == u':';
}

#endif // ZARSYSURLUTILITYPRIVATE_H
