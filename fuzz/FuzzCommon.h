// What every fuzz target shares: the library started once per process, as a host starts it,
// with its settings in a temporary folder, and a few helpers to build Qt values from the
// fuzzer's bytes.

#ifndef ZARSYS_FUZZCOMMON_H
#define ZARSYS_FUZZCOMMON_H

#include <ZARSysLocalizationManager.h>
#include <ZARSysSettingsManager.h>
#include <ZARSystem.h>

#include <QCoreApplication>
#include <QLocale>
#include <QSettings>
#include <QString>
#include <QTemporaryDir>

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>

namespace Fuzz {

// Starts the library. Everything is left alive until the process ends: the fuzzer never
// returns from its loop normally.
inline void start()
{
    static int argc = 1;
    static char name[] = "zarsys-fuzz";
    static char *argv[] = {name, nullptr};
    static QCoreApplication *application = new QCoreApplication(argc, argv);
    static QTemporaryDir *folder = new QTemporaryDir;
    static ZARSysInitContext *context = new ZARSysInitContext;
    ZARSysSettingsManager::GetManager()->SetSource(
        new QSettings(folder->filePath(QStringLiteral("fuzz.ini")), QSettings::IniFormat));
    Q_UNUSED(application);
    Q_UNUSED(context);
}

// Switches the library's locale to one the fuzzer's bytes choose (their notations of numbers
// differ), only when it changes: switching loads catalogues.
inline void useLocale(FuzzedDataProvider &data)
{
    static const char *const names[] = {"en_US", "de_DE", "fr_FR", "C"};
    const QLocale locale(
        QString::fromLatin1(names[data.ConsumeIntegralInRange<size_t>(0, std::size(names) - 1)]));
    static bool first = true;
    ZARSysLocalizationManager *manager = ZARSysLocalizationManager::GetManager();
    if (first || manager->GetLocale() != locale)
        manager->SetLocale(locale);
    first = false;
}

// Text from the fuzzer's bytes in one of two ways: as UTF-8 (always valid text) or as raw
// UTF-16 code units (lone surrogates and all).
inline QString text(FuzzedDataProvider &data, size_t maxBytes)
{
    const bool utf16 = data.ConsumeBool();
    const std::string bytes = data.ConsumeRandomLengthString(maxBytes);
    if (!utf16)
        return QString::fromUtf8(bytes.data(), qsizetype(bytes.size()));
    QString result(qsizetype(bytes.size() / 2), Qt::Uninitialized);
    std::memcpy(result.data(), bytes.data(), size_t(result.size()) * sizeof(QChar));
    return result;
}

// A property the target asserts failed: report and abort, which the fuzzer records as a
// crash with the input that caused it.
[[noreturn]] inline void fail(const char *what, const QString &detail = QString())
{
    std::fprintf(stderr, "property violated: %s\n%s\n", what, detail.toUtf8().constData());
    std::abort();
}

} // namespace Fuzz

#endif // ZARSYS_FUZZCOMMON_H
