// Text: the "$@" encoding of ZARSysStringUtilities beside the chain it is made of (the marker
// plus URL-safe Base64 of the UTF-8 bytes, and back), and ZARSysAsciiUnicodeMap on 100,000
// distinct texts beside SHA-1 of the same texts (inserting) and a std::map of the same keys
// (looking up). The map is used through its public interface only.

#include "BenchCommon.h"

#include <ZARSysAsciiUnicodeMap.h>
#include <ZARSysStringUtilities.h>

#include <QByteArray>
#include <QCryptographicHash>
#include <QList>
#include <QString>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace {

// 30 characters, six of them outside ASCII.
const QString encodedText = QStringLiteral("Blechstärke Ø 2,5 mm – Größe №");

QByteArray referenceEncode(const QString &text)
{
    return QByteArrayLiteral("$@")
        + text.toUtf8().toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
}

QString referenceDecode(const QByteArray &ascii)
{
    return QString::fromUtf8(
        QByteArray::fromBase64(ascii.sliced(2), QByteArray::Base64UrlEncoding));
}

void encode(benchmark::State &state)
{
    QString text = encodedText;
    if (ZARSysStringUtilities::EncodeUnicodeToAscii(text) != referenceEncode(text)) {
        state.SkipWithError("the encoding differs from the chain's");
        return;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(text);
        const QByteArray ascii = ZARSysStringUtilities::EncodeUnicodeToAscii(text);
        benchmark::DoNotOptimize(ascii);
    }
    state.SetItemsProcessed(state.iterations());
}

void encodeChain(benchmark::State &state)
{
    QString text = encodedText;
    for (auto _ : state) {
        benchmark::DoNotOptimize(text);
        const QByteArray ascii = referenceEncode(text);
        benchmark::DoNotOptimize(ascii);
    }
    state.SetItemsProcessed(state.iterations());
}

void decode(benchmark::State &state)
{
    QByteArray ascii = referenceEncode(encodedText);
    if (ZARSysStringUtilities::DecodeUnicodeFromAscii(ascii) != encodedText) {
        state.SkipWithError("the decoding does not give the text back");
        return;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(ascii);
        const QString text = ZARSysStringUtilities::DecodeUnicodeFromAscii(ascii);
        benchmark::DoNotOptimize(text);
    }
    state.SetItemsProcessed(state.iterations());
}

void decodeChain(benchmark::State &state)
{
    QByteArray ascii = referenceEncode(encodedText);
    if (referenceDecode(ascii) != encodedText) {
        state.SkipWithError("the chain does not give the text back");
        return;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(ascii);
        const QString text = referenceDecode(ascii);
        benchmark::DoNotOptimize(text);
    }
    state.SetItemsProcessed(state.iterations());
}

// The map

constexpr qsizetype textCount = 100000;

// Distinct texts of about 30 characters, with letters outside ASCII.
const QList<QString> &mapTexts()
{
    static const QList<QString> list = [] {
        QList<QString> result;
        result.reserve(textCount);
        for (qsizetype i = 0; i < textCount; ++i) {
            result.append(QStringLiteral("Blech %1 – Stärke %2 µm, Ø%3")
                              .arg(i)
                              .arg((i * 37) % 100)
                              .arg(i % 10));
        }
        return result;
    }();
    return list;
}

QByteArray sha1Hex(const QString &text)
{
    return QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex();
}

// The keys of the texts, in the same order.
const QList<QByteArray> &mapKeys()
{
    static const QList<QByteArray> list = [] {
        QList<QByteArray> result;
        result.reserve(textCount);
        for (const QString &text : mapTexts())
            result.append(sha1Hex(text));
        return result;
    }();
    return list;
}

const ZARSysAsciiUnicodeMap &filledMap()
{
    static const ZARSysAsciiUnicodeMap map = [] {
        ZARSysAsciiUnicodeMap result;
        for (const QString &text : mapTexts())
            result.Insert(text);
        return result;
    }();
    return map;
}

void mapInsert(benchmark::State &state)
{
    const QList<QString> &texts = mapTexts();
    {
        ZARSysAsciiUnicodeMap map;
        for (qsizetype i = 0; i < texts.size(); ++i) {
            if (map.Insert(texts.at(i)) != mapKeys().at(i)) {
                state.SkipWithError("a key is not the SHA-1 digest of its text");
                return;
            }
        }
    }
    for (auto _ : state) {
        auto map = std::make_unique<ZARSysAsciiUnicodeMap>();
        for (const QString &text : texts) {
            const QByteArray key = map->Insert(text);
            benchmark::DoNotOptimize(key);
        }
        // Freeing 100,000 entries is not inserting.
        state.PauseTiming();
        map.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * texts.size());
}

void sha1OfTexts(benchmark::State &state)
{
    const QList<QString> &texts = mapTexts();
    for (auto _ : state) {
        for (const QString &text : texts) {
            const QByteArray key = sha1Hex(text);
            benchmark::DoNotOptimize(key);
        }
    }
    state.SetItemsProcessed(state.iterations() * texts.size());
}

void mapLookup(benchmark::State &state, qsizetype keyLength)
{
    const ZARSysAsciiUnicodeMap &map = filledMap();
    QList<QByteArray> keys;
    keys.reserve(textCount);
    for (const QByteArray &key : mapKeys())
        keys.append(key.first(keyLength));
    // Six digits are 24 bits: among 100,000 keys a few share their first six, and a look-up
    // then finds the first of them. Every other text must be found.
    qsizetype found = 0;
    for (qsizetype i = 0; i < keys.size(); ++i) {
        QString text;
        found += map.Lookup(keys.at(i), text) && text == mapTexts().at(i);
    }
    if (found < (keyLength == 40 ? textCount : textCount * 99 / 100)) {
        state.SkipWithError("look-ups do not find their texts");
        return;
    }
    for (auto _ : state) {
        QString text;
        for (const QByteArray &key : keys) {
            const bool hit = map.Lookup(key, text);
            benchmark::DoNotOptimize(hit);
        }
        benchmark::DoNotOptimize(text);
    }
    state.SetItemsProcessed(state.iterations() * keys.size());
}

void stdMapLookup(benchmark::State &state)
{
    std::map<std::string, QString> map;
    std::vector<std::string> keys;
    keys.reserve(textCount);
    for (qsizetype i = 0; i < textCount; ++i) {
        keys.push_back(mapKeys().at(i).toStdString());
        map.emplace(keys.back(), mapTexts().at(i));
    }
    for (auto _ : state) {
        for (const std::string &key : keys) {
            const auto entry = map.find(key);
            benchmark::DoNotOptimize(entry);
        }
    }
    state.SetItemsProcessed(state.iterations() * qsizetype(keys.size()));
}

} // namespace

void Bench::registerTextBenchmarks()
{
    const char *const chainText = "\"$@\" + URL-safe Base64 of UTF-8";
    add("StringUtilities::EncodeUnicodeToAscii/30 chars", encode);
    add("Reference.Base64 chain/encode 30 chars", encodeChain);
    addRow({"ZARSysStringUtilities::EncodeUnicodeToAscii, 30 characters",
            "StringUtilities::EncodeUnicodeToAscii/30 chars", chainText,
            "Reference.Base64 chain/encode 30 chars", Goal::Faster, 0.9, "≥ 0.9x"});
    add("StringUtilities::DecodeUnicodeFromAscii/30 chars", decode);
    add("Reference.Base64 chain/decode 30 chars", decodeChain);
    addRow({"ZARSysStringUtilities::DecodeUnicodeFromAscii, 30 characters",
            "StringUtilities::DecodeUnicodeFromAscii/30 chars", "the same chain backwards",
            "Reference.Base64 chain/decode 30 chars", Goal::Faster, 0.9, "≥ 0.9x"});

    add("AsciiUnicodeMap::Insert/100k", mapInsert);
    add("Reference.SHA-1 hex of UTF-8/100k", sha1OfTexts);
    addRow({"ZARSysAsciiUnicodeMap::Insert, 100k texts", "AsciiUnicodeMap::Insert/100k",
            "QCryptographicHash SHA-1 hex of the UTF-8", "Reference.SHA-1 hex of UTF-8/100k",
            Goal::Faster, 0.8, "≥ 0.8x"});
    add("Reference.std::map::find/100k", stdMapLookup);
    add("AsciiUnicodeMap::Lookup/full keys/100k",
        [](benchmark::State &state) { mapLookup(state, 40); });
    addRow({"ZARSysAsciiUnicodeMap::Lookup, full keys, 100k",
            "AsciiUnicodeMap::Lookup/full keys/100k", "std::map<std::string, QString>::find",
            "Reference.std::map::find/100k", Goal::Faster, 0.8, "≥ 0.8x"});
    add("AsciiUnicodeMap::Lookup/6-digit keys/100k",
        [](benchmark::State &state) { mapLookup(state, 6); });
    addRow({"ZARSysAsciiUnicodeMap::Lookup, 6-digit keys, 100k",
            "AsciiUnicodeMap::Lookup/6-digit keys/100k", "std::map<std::string, QString>::find",
            "Reference.std::map::find/100k", Goal::Faster, 0.8, "≥ 0.8x"});
}
