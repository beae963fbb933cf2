#ifndef OMBREL_INSPECTION_JSON_SCHEMA_H
#define OMBREL_INSPECTION_JSON_SCHEMA_H

#include "OmbrelExport.h"
#include "PropertyTree/PropertyTree.h"

#include <optional>
#include <string_view>

namespace Ombrel::Inspection
{

/// What a schema takes beside what is read and written without a loss.
struct JsonSchemaOptions
{
    /// Takes keys that no class has. A read ignores them, and they are lost when the effect is written again.
    bool allowUnknownKeys = true;

    /// Takes the texts "NaN", "Infinity" and "-Infinity" where a float stands. To be set as for the reader of the documents.
    bool nonFiniteAsText = false;
};

/// A JSON Schema, draft 2020-12, of a stored effect or a list of them, of all classes that are registered when it is made. It
/// is a tree, to be written as JSON. Each effect and each record stands in its "$defs" once.
///
/// A document passes where `Check` has neither an error nor a warning. It is refused where there is one, but for these, which
/// no schema can tell: `too-deep`, `narrowed-float`, `lost-by-copy`, `changes-on-write`, `refused`, a `duplicate-element` that
/// is not the same text or number, and what a codec of a caller's own refuses. Unknown keys are refused only if the options say
/// so.
///
/// Threads: any number may make schemas at once.
/// @throws std::bad_alloc and nothing else
OMBREL_INSPECTION_API PropertyTree JsonSchema(const JsonSchemaOptions& options = {});

/// The same of the effects of one class, or a list of them; effects that stand in them may be of any class. Nothing for an id
/// that is not registered.
OMBREL_INSPECTION_API std::optional<PropertyTree> JsonSchema(std::string_view classId, const JsonSchemaOptions& options = {});

} // namespace Ombrel::Inspection

#endif
