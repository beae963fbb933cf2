#ifndef OMBREL_PROC_EFFECT_SETTINGS_OWN_EFFECT_H
#define OMBREL_PROC_EFFECT_SETTINGS_OWN_EFFECT_H

#include "Proc/EffectSettings/EffectPointerCodec.h"
#include "Proc/Reflection/PropertyAccess.h"
#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/RgbaColorCodec.h"

// What the source files of a caller's own effect include. Promised, and used as the library's own effects use it:
//
// - For the record, in its source file: `Describe`, `FieldList`, `FieldDescriptor`, `AccessorDescriptor`, `EnumNames`,
//   `EnumNameRow`, `EnumNameTable`, `Fields` for a type that cannot have a `Schema` function, `ClassIdOf`, `OMBREL_EARLY_INIT`.
// - To read and write a record without its effect: `Reflected`, `ReadContext`, `WriteContext`, `PropertyAccessImpl`.
//
// Everything else in `Proc/Reflection` is detail and may change.

#endif
