#ifndef OMBREL_INSPECTION_FORMS_H
#define OMBREL_INSPECTION_FORMS_H

#include "OmbrelExport.h"
#include "PropertyTree/PropertyTree.h"

// Three forms of a stored effect or a list of them. Each takes its argument by value: move a tree that is not needed any more.
//
// `Thin` and `Freeze` work on the stored values alone. They know the keys of each class and their defaults, and run no setter
// and no getter on a value. The trees that they give are read as the same effects: a read of them fails where a read of the
// given tree fails, and otherwise gives effects that are equal and are written alike. For any tree, with numbers compared by
// value:
//
//     Thin(Freeze(tree)) is Thin(tree)      Thin(Thin(tree)) is Thin(tree)
//     Freeze(Thin(tree)) is Freeze(tree)    Freeze(Freeze(tree)) is Freeze(tree)
//
// What stays as it stands, with the maps around it:
//
// - A key that is not known.
// - A value for which `Check` has an error, or a warning other than `ChangesOnWrite`. A value that is written otherwise only
//   because it is computed, such as a radius that is scaled by an intensity, is read as any other, so its stored value counts:
//   one that is its default can be left out.
// - An effect that is unknown, not registered, without a schema or nested too deep, and one that its class cannot make, with
//   all that stands in it.
// - A key whose default has no stored form: the number of an enumeration that has no name, an effect, or a default that the
//   setter or codec of a caller's class does not take. It is not added either.
//
// What is added is added as it is written, and so is the order of a set or a colour map that is its default.
//
// Threads: any number may run at once, also over copies of one tree.
namespace Ombrel::Inspection
{

/// Leaves out what is its default, at each level: in a map, each key with the default that it has in such a map; and a whole
/// nested map where it says what the map around it has by default. What is written by default too, "backgroundSettings", is
/// there, thin. In a tree without findings but `DefaultWritten`, this is what is written.
/// @throws std::bad_alloc and nothing else, whatever the tree holds
OMBREL_INSPECTION_API PropertyTree Thin(PropertyTree effectOrList);

/// Puts in every key at every depth, "implName" and "helperSettings" too, so that defaults of a later version change nothing.
/// The elements of lists, sets and colour maps stay as many as they are.
/// @throws std::bad_alloc and nothing else, whatever the tree holds
OMBREL_INSPECTION_API PropertyTree Freeze(PropertyTree effectOrList);

/// What `EffectSettings::SerializePtr` writes of what `EffectSettings::DeserializePtr` reads, for the tree or each element of
/// the list. One that cannot be read or written stays as it stands as a whole: without an effect that stands in it, it would be
/// another effect.
///
/// What is read again is equal where `Check` has neither `ChangesOnWrite` nor `LostByCopy`, and no number that is cut,
/// truncated or narrowed has a value that is computed from it.
/// @throws std::bad_alloc and nothing else, whatever the tree holds
OMBREL_INSPECTION_API PropertyTree Normalise(PropertyTree effectOrList);

} // namespace Ombrel::Inspection

#endif
