#ifndef OMBREL_INSPECTION_RELEASE_H
#define OMBREL_INSPECTION_RELEASE_H

#include "Inspection/Check.h"
#include "Inspection/Finding.h"
#include "OmbrelExport.h"
#include "PropertyTree/PropertyTree.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

// What other releases of this library make of a tree. A release is known by its manifest: its classes with their keys, kinds,
// both levels of default, names and fallbacks. The code of its classes is not, so where a setter or getter of a class changes
// values, it is taken that it does the same in both releases.
namespace Ombrel::Inspection
{

/// What one release reads and writes. Never changes.
///
/// Threads: any number may use one release at once.
class OMBREL_INSPECTION_API Release
{
public:
    /// @param manifest as `Manifest` makes it: the content of a `manifest.json`, also of a release newer than this library
    /// @throws std::invalid_argument for a tree that is no manifest, std::bad_alloc
    explicit Release(const PropertyTree& manifest);

    Release(const Release&) = delete;
    Release& operator=(const Release&) = delete;
    ~Release();

    /// "0.1"
    const std::string& Name() const noexcept;

    /// For the functions of this library; its content is detail.
    struct Model;
    const Model& GetModel() const noexcept { return *m_model; }

private:
    std::unique_ptr<const Model> m_model;
};

/// The releases whose manifests this library contains, the oldest first. A patch release is the same as its minor release.
OMBREL_INSPECTION_API std::vector<std::string_view> ReleaseNames();

/// One of these releases. It is made anew by each call, in some milliseconds.
/// @throws std::invalid_argument for another name, std::bad_alloc
OMBREL_INSPECTION_API std::shared_ptr<const Release> ReadRelease(std::string_view name);

/// Makes `Check` say what a release would do with a tree that this library reads: what it would refuse, lose, or silently read
/// as something else. A value that it lacks and that is the default here is no loss, so nothing is said of it.
///
/// Classes that callers have registered are no part of a release. What is found in them is what `Check` finds without one.
/// @throws as `ReadRelease`
OMBREL_INSPECTION_API CheckOptions ForRelease(std::string_view name);

/// What a tree becomes for another release.
struct Conversion
{
    PropertyTree tree; // to be written for that release

    /// What that release refuses of the tree, and what it loses or reads otherwise than this library.
    std::vector<Finding> losses;
};

/// The tree as a release reads it to the same values, where it can: values that have another default there are put in, keys
/// that it does not know and that have their default are left out, and a name that it does not know becomes its own for the
/// same number. All else stays as it stands. This library reads the same of both trees.
/// @throws std::bad_alloc and nothing else, whatever the tree holds
OMBREL_INSPECTION_API Conversion ConvertedFor(const Release& release, PropertyTree effectOrList);

/// The manifest of this build, with all classes of the library, in the order of `PhotoCore::EffectClasses`. It takes some
/// hundred milliseconds.
/// @param release the name that the manifest says
/// @throws std::bad_alloc
OMBREL_INSPECTION_API PropertyTree Manifest(std::string_view release);

} // namespace Ombrel::Inspection

#endif
