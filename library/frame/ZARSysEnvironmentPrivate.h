#ifndef ZARSYSENVIRONMENTPRIVATE_H
#define ZARSYSENVIRONMENTPRIVATE_H

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstring>

// The library's own start-up work, run by the first ZARSysInitContext as the first flagged
// initialiser: logging, the types of variants, Qt's configuration, the loader's search folder,
// the variables of Qt and its web engine (all left alone when flags holds 0), the icon theme
// and the program search path. Failures of the system are ignored. Returns true.
bool ZARSysSetUpEnvironment(const QList<int> &flags);

// What ZARSysPatchQtConfResource() did.
enum class ZARSysQtConfPatch {
    Patched,
    NoPlaceholder, // no 'X' at all: the bytes are left as they are
    TooLong, // the folder does not fit: the bytes are left as they are and must not be used
};

// Writes directory into the compiled resource file resource, which holds a qt.conf whose prefix
// is a placeholder run of 'X': from the first 'X' on, the directory's Latin-1 bytes, a line feed
// and a ';', so that what is left of the run becomes a comment line. The size of the data does
// not change. Nothing is written when the directory and the two bytes after it do not fit
// into the run: writing past it would break the structure of the resource file, and the
// placeholder itself is no prefix to give Qt.
inline ZARSysQtConfPatch ZARSysPatchQtConfResource(QByteArray &resource, const QString &directory)
{
    const qsizetype start = resource.indexOf('X');
    if (start < 0)
        return ZARSysQtConfPatch::NoPlaceholder;
    qsizetype end = start;
    while (end < resource.size() && resource.at(end) == 'X')
        ++end;
    const QByteArray bytes = directory.toLatin1();
    if (bytes.size() + 2 > end - start)
        return ZARSysQtConfPatch::TooLong;
    char *const placeholder = resource.data() + start;
    std::memcpy(placeholder, bytes.constData(), size_t(bytes.size()));
    placeholder[bytes.size()] = '\n';
    placeholder[bytes.size() + 1] = ';';
    return ZARSysQtConfPatch::Patched;
}

#endif // ZARSYSENVIRONMENTPRIVATE_H
