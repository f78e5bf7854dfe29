#ifndef ZARSYSVARIANTSTREAMREADER_H
#define ZARSYSVARIANTSTREAMREADER_H

#include <QDataStream>
#include <QVariant>

// The reader of the base values of filters, which may come from untrusted files.
//
// Qt's reader of QVariant recurses into nested variants, pairs, lists and maps as deep as the
// data says and reserves room for as many elements as a count claims, so hostile bytes could
// exhaust the stack or ask for terabytes. Streams of Qt 6 versions are therefore read here, in
// Qt's own format, with a depth limit and without trusting counts; values of other types are
// read by their type's own reader. The depth counts across nested filters too, since a filter
// is itself a type that a QVariant can hold. Older formats number types differently; Qt reads
// them.
namespace ZARSysVariantStreamReader {

// Reads a variant written by Qt's operator<< into value, as Qt's operator>> does but with the
// guards above. Returns whether it was read; on failure the stream's status says why, and value
// may be invalid or partly read.
bool readVariant(QDataStream &stream, QVariant &value);

} // namespace ZARSysVariantStreamReader

#endif // ZARSYSVARIANTSTREAMREADER_H
