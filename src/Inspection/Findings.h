#ifndef OMBREL_INSPECTION_FINDINGS_H
#define OMBREL_INSPECTION_FINDINGS_H

#include "Inspection/CheckContext.h"
#include "Inspection/Finding.h"
#include "Inspection/Place.h"

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <variant>
#include <vector>

namespace Ombrel::Inspection
{

/// An effect that stands in a tree, still to be checked.
struct EffectNode
{
    const PropertyTree* tree = nullptr;
    const Place* place = nullptr;
    const PropertyTree* full = nullptr; // its full form, for the check for a release
    std::size_t depth = 1;              // in how many effects it stands, itself included
    bool isCopied = false;              // by a face package, which clones what it reads
};

/// What is found in one effect, in reading order, with the effects in it at their places.
class Findings
{
public:
    using Item = std::variant<Finding, EffectNode>;

    explicit Findings(CheckContext& context) : m_context(context) {}

    /// `at` is the value that the finding is about; null for one that is missing.
    Finding& Add(FindingCode code, const Place& place, const PropertyTree* at, std::string message);

    void AddEffect(const EffectNode& node) { m_items.push_back(std::make_unique<Item>(node)); }

    /// The first of the gravest findings about a value itself, or null.
    Finding* About(const PropertyTree& value);
    bool HasError(const PropertyTree& value);

    /// Whether a mended tree does not have the value, though a read may take it: one with an error, or a name that has no other
    /// form.
    bool IsLeftOut(const PropertyTree& value);
    static bool IsLeftOut(const Finding& finding) noexcept;

    bool IsEmpty() const noexcept { return m_items.empty(); }
    std::size_t ErrorCount() const noexcept { return m_errors; }

    std::vector<std::unique_ptr<Item>>& Items() noexcept { return m_items; }

private:
    CheckContext& m_context;
    const Place* m_effect = nullptr; // the last in which something was found, with its path
    std::shared_ptr<const Path> m_pathOfEffect;
    std::vector<std::unique_ptr<Item>> m_items; // which stay where they are
    std::unordered_map<const PropertyTree*, Finding*> m_byValue;
    std::size_t m_errors = 0;
};

} // namespace Ombrel::Inspection

#endif
