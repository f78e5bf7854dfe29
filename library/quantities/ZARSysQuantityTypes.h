#ifndef ZARSYSQUANTITYTYPES_H
#define ZARSYSQUANTITYTYPES_H

// Fills the units catalogue (ZARSysValue::Initialize()), then registers the quantity types with
// the meta-type system: the converters of the typed values, of ZARSysValue and ZARSysRatio, and
// the types' names. Run once by the library's start-up.
void ZARSysRegisterQuantityTypes();

#endif // ZARSYSQUANTITYTYPES_H
