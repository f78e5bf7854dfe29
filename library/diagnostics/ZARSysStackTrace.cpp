#include "ZARSysStackTrace.h"

#include "ZARSysPlatform.h"
#include "ZARSysStackTracePrivate.h"

#include <utility>

// Entries.

ZARSysStackTraceEntryPrivate::ZARSysStackTraceEntryPrivate(void *address)
    : address(address)
{ }

ZARSysStackTraceEntry::ZARSysStackTraceEntry()
    : ZARSysStackTraceEntry(nullptr)
{ }

ZARSysStackTraceEntry::ZARSysStackTraceEntry(void *address)
    : d(new ZARSysStackTraceEntryPrivate(address))
{ }

ZARSysStackTraceEntry::ZARSysStackTraceEntry(const ZARSysStackTraceEntry &other) = default;
ZARSysStackTraceEntry &
ZARSysStackTraceEntry::operator=(const ZARSysStackTraceEntry &other) = default;
ZARSysStackTraceEntry::~ZARSysStackTraceEntry() = default;

bool ZARSysStackTraceEntry::IsValid() const
{
    return d->address != nullptr;
}

void *ZARSysStackTraceEntry::GetAddress() const
{
    return d->address;
}

const ZARSysStackTraceEntryPrivate *ZARSysStackTraceEntry::Resolved() const
{
    ZARSysStackTraceEntryPrivate *const data = d.data();
    std::call_once(data->resolution, [data] {
        if (!data->address)
            return;
        const ZARSysPlatform::FrameSymbol symbol = ZARSysPlatform::ResolveFrame(data->address);
        data->name = QString::fromStdU16String(symbol.function);
        data->offsetFromLine = symbol.offsetFromLine;
        data->lineNumber = symbol.line;
        data->fileName = QString::fromStdU16String(symbol.sourceFile);
        data->moduleName = QString::fromStdU16String(symbol.module);
        data->imagePath = QString::fromStdU16String(symbol.imagePath);
    });
    return data;
}

QString ZARSysStackTraceEntry::GetName() const
{
    return Resolved()->name;
}

QString ZARSysStackTraceEntry::GetFileName() const
{
    return Resolved()->fileName;
}

QString ZARSysStackTraceEntry::GetModuleName() const
{
    return Resolved()->moduleName;
}

QString ZARSysStackTraceEntry::GetImagePath() const
{
    return Resolved()->imagePath;
}

int ZARSysStackTraceEntry::GetLineNumber() const
{
    return Resolved()->lineNumber;
}

int ZARSysStackTraceEntry::GetOffsetFromLine() const
{
    return Resolved()->offsetFromLine;
}

QString ZARSysStackTraceEntry::ToString(const QString &format) const
{
    const ZARSysStackTraceEntryPrivate *const data = Resolved();
    if (format.isEmpty()) {
        return QStringLiteral("%1 (%2) : %3")
            .arg(data->name, QString::number(data->lineNumber), data->fileName);
    }
    QString text = format;
    text.replace(QLatin1StringView("%N"), data->name)
        .replace(QLatin1StringView("%c"), QString::number(data->offsetFromLine))
        .replace(QLatin1StringView("%l"), QString::number(data->lineNumber))
        .replace(QLatin1StringView("%f"), data->fileName)
        .replace(QLatin1StringView("%m"), data->moduleName)
        .replace(QLatin1StringView("%i"), data->imagePath);
    return text;
}

// Traces.

ZARSysStackTracePrivate::ZARSysStackTracePrivate(const ZARSysStackTracePrivate &other)
    : QSharedData(other)
    , label(other.label)
    , count(other.count)
{
    SetEntries(other.Entries());
}

void ZARSysStackTracePrivate::SetEntries(const QList<ZARSysStackTraceEntry> &list)
{
    entries = list;
    count = list.size();
    std::call_once(entriesMade, [] {});
}

void ZARSysStackTracePrivate::SetAddresses(void *const *frames, qsizetype frameCount)
{
    addresses.assign(frames, frames + frameCount);
    count = frameCount;
}

const QList<ZARSysStackTraceEntry> &ZARSysStackTracePrivate::Entries() const
{
    // Made aside and moved in, so that a failure leaves nothing half made for the next call to
    // add to.
    std::call_once(entriesMade, [this] {
        QList<ZARSysStackTraceEntry> made;
        made.reserve(qsizetype(addresses.size()));
        for (void *address : addresses)
            made.append(ZARSysStackTraceEntry(address));
        entries = std::move(made);
    });
    return entries;
}

ZARSysStackTrace::ZARSysStackTrace()
    : d(new ZARSysStackTracePrivate)
{ }

ZARSysStackTrace::ZARSysStackTrace(const QString &label,
                                   const QList<ZARSysStackTraceEntry> &entries)
    : d(new ZARSysStackTracePrivate)
{
    d->label = label;
    d->SetEntries(entries);
}

ZARSysStackTrace::ZARSysStackTrace(const ZARSysStackTrace &other) = default;
ZARSysStackTrace &ZARSysStackTrace::operator=(const ZARSysStackTrace &other) = default;
ZARSysStackTrace::~ZARSysStackTrace() = default;

QString ZARSysStackTrace::GetLabel() const
{
    return d->label;
}

void ZARSysStackTrace::SetLabel(const QString &label)
{
    d.detach();
    d->label = label;
}

QList<ZARSysStackTraceEntry> ZARSysStackTrace::GetEntries() const
{
    return d->Entries();
}

ZARSysStackTraceEntry ZARSysStackTrace::GetEntry(int index) const
{
    return d->Entries().at(index);
}

int ZARSysStackTrace::GetNumEntries() const
{
    return int(d->count);
}

QString ZARSysStackTrace::ToSTring(const QString &format, int maxEntries) const
{
    QString text;
    if (!d->label.isEmpty())
        text = QStringLiteral("Stack Trace '") + d->label + QStringLiteral("' :");
    const QList<ZARSysStackTraceEntry> &entries = d->Entries();
    qsizetype count = entries.size();
    if (maxEntries != 0)
        count = std::min<qsizetype>(count, maxEntries);
    for (qsizetype i = 0; i < count; ++i) {
        if (!text.isEmpty())
            text += QLatin1Char('\n');
        text += entries.at(i).ToString(format);
    }
    return text;
}
