// ZARSysUrlUtility on arbitrary URLs and paths.

#include "FuzzCommon.h"

#include <ZARSysUrlUtility.h>

#include <QUrl>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    Fuzz::start();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const QString first = Fuzz::text(data, 256);
    const QString second = Fuzz::text(data, 256);
    const QUrl base(first);
    const QUrl url(second);

    // An absolute path survives the way to a URL and back.
    const QUrl local = ZARSysUrlUtility::FromLocalFile(first);
    const QString back = ZARSysUrlUtility::ToLocalFile(local);
    if (first.startsWith(u'/') && first.isValidUtf16() && back != first)
        Fuzz::fail("a path does not come back from its URL", first + QStringLiteral(" -> ") + back);
    (void)ZARSysUrlUtility::ToLocalFile(url);
    (void)ZARSysUrlUtility::GetFilePathFromURL(url);
    (void)ZARSysUrlUtility::GetAbsoluteFilePathFromURL(base, url);
    (void)ZARSysUrlUtility::GetLocalFileAbsolutePath(base, url);
    (void)ZARSysUrlUtility::GetLocalFileRelativePath(base, url);
    (void)ZARSysUrlUtility::GetLocalFileRelativePath(local,
                                                     ZARSysUrlUtility::FromLocalFile(second));
    return 0;
}
