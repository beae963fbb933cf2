#ifndef OMBREL_FUZZ_LITERAL_CODEC_H
#define OMBREL_FUZZ_LITERAL_CODEC_H

#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <string>

// Reading and writing as they are told: one field after the other, in declaration order, each by a search of its own in the
// map. The library walks map and fields side by side, and makes the entries of a write before it fills them.
namespace Fuzz
{

void LiteralRead(const Ombrel::Proc::RecordSchema& schema, void* record, const Ombrel::PropertyTree::Map& source,
                 const Ombrel::Proc::ReadFlags& flags);

void LiteralWrite(const Ombrel::Proc::RecordSchema& schema, const void* record, Ombrel::PropertyTree::Map& target,
                  const Ombrel::Proc::WriteFlags& flags);

} // namespace Fuzz

#endif
