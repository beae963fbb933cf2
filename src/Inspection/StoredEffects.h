#ifndef OMBREL_INSPECTION_STORED_EFFECTS_H
#define OMBREL_INSPECTION_STORED_EFFECTS_H

#include "Inspection/Finding.h"
#include "OmbrelExport.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <memory>
#include <span>
#include <unordered_set>
#include <vector>

namespace Ombrel::PhotoCore
{
class IEffectSettings;
}

namespace Ombrel::Inspection
{

/// A stored list of effects, or one stored effect, that can be changed and saved again without losing what is not known: the
/// effects of a newer version or of a plugin that is not there, effects with a value that no read takes, and keys that no field
/// has.
///
/// Each element of the list is an item. An item that can be read has an effect; every other item is kept as its tree: an
/// unknown class id, a value that is refused, nothing (null), no map. The same holds for effects in effects: the innermost
/// effect that is refused is kept as its tree, and the effect around it is read without it: the outer effect's list does not
/// have it, not even as a null pointer, and a field that holds one effect is empty.
///
/// What is saved:
/// - An item whose effect still writes what it wrote when it was loaded is saved exactly as it was loaded.
/// - Of a changed effect only the difference between what it wrote when loaded and what it writes now goes into its loaded
///   tree. All else stays as it stood: other keys, unknown keys, and values that a read and a write change, such as a computed
///   radius or a colour in capitals. A value that would then be read otherwise, since it depends on one that was changed, goes
///   in as well. Numbers are compared by value: 5 is 5.0, -0.0 is 0.0, a NaN is a NaN.
/// - A key goes when the effect no longer writes it, since its value is then the default. A nested record stays, with its
///   default values, where it also holds what the effect did not write before, such as an unknown key.
/// - The elements of a list are found again by what they hold, wherever they moved; a changed effect by its class id and by
///   what it still holds. So unknown keys and effects that are kept as trees stay although the list was replaced as a whole.
/// - An effect that is kept as a tree stays behind the element that it followed, also when that moved. If that element was
///   removed, it stays behind the one before, or at the beginning. It goes with the effect or record around the list.
/// - Sets and maps of colours are compared by content.
/// - Lost is only what stood in something that was removed or replaced: in an effect, in a record that was an element of a
///   list, or in the field of one effect that now has one of another class or none.
///
/// Effects are shared with whoever holds them: an effect is changed through its pointer, and `Save` sees the change. An effect
/// that was loaded belongs to one item; do not insert it a second time.
///
/// Nothing recurses on the depth of a tree but the classes' own reading and writing, which ends at 512 effects in each other.
/// Loading and saving take time linear in the size of the tree.
///
/// Threads: as a standard container, many readers or one writer. `Save` reads the effects.
class OMBREL_INSPECTION_API StoredEffects
{
public:
    /// An effect, shared with whoever holds it.
    using EffectPtr = std::shared_ptr<PhotoCore::IEffectSettings>;

    /// An empty list.
    StoredEffects() noexcept;

    StoredEffects(StoredEffects&&) noexcept;
    StoredEffects& operator=(StoredEffects&&) noexcept;
    ~StoredEffects();

    /// Replaces the content by the effects of a list, or by the one effect that the tree is.
    /// @throws std::bad_alloc and nothing else, whatever the tree holds; the content is then unchanged
    void Load(PropertyTree effectOrList);

    /// The same, but all or nothing. Unknown keys are kept here too.
    /// @throws what `EffectSettings::DeserializePtr` throws, and what `SerializePtr` throws for an effect that it read; the
    /// content
    ///         is then unchanged
    void LoadStrict(PropertyTree effectOrList);

    /// What `Check` says of the tree that was loaded; its paths are places in that tree. An effect that is kept as a tree has
    /// an error, also where only its class's own code failed (`Refused`). Changes of the list do not change the findings.
    const std::vector<Finding>& Findings() const noexcept { return m_findings; }

    /// How many items there are.
    std::size_t Size() const noexcept { return m_items.size(); }

    /// The effect of an item; null for one that is kept as its tree.
    /// @throws std::out_of_range for an index that is not less than `Size()`, as all functions below that take one
    const EffectPtr& Effect(std::size_t index) const;

    /// The tree of an item as it was loaded; null for one that was inserted. It is valid until the list is changed.
    const PropertyTree& Loaded(std::size_t index) const;

    /// Inserts an item before the one at `index`, or at the end if `index` is `Size()`. A null pointer is saved as null.
    void Insert(std::size_t index, EffectPtr effect);

    /// Gives an item another effect. If the class is the same, this is a change of the effect, such as a changed clone of it,
    /// so that unknown keys are kept. The loaded tree of any other is lost.
    void Replace(std::size_t index, EffectPtr effect);

    /// Takes out an item, with all that it holds. `index` must be less than `Size()`.
    void Remove(std::size_t index);

    /// Moves an item so that it then has the index `to`. Only this one moves, also if items without an effect follow it.
    void Move(std::size_t from, std::size_t to);

    /// The effects of all items that have one, in order.
    std::vector<EffectPtr> Effects() const;

    /// Makes these the effects, in this order. A pointer that `Effects()` has stands for its item, the others are new, and an
    /// item whose effect is not there goes. Items without an effect stay behind the item that they followed, as in lists of
    /// effects within effects.
    void SetEffects(std::span<const EffectPtr> effects);

    /// The tree of one item as it is saved.
    /// @throws what `EffectSettings::SerializePtr` throws for the effect, and what a getter of its record throws
    PropertyTree Save(std::size_t index) const;

    /// The whole tree: a list, but the tree of the one item if a single effect was loaded and there is one item.
    /// @throws the same for all effects
    PropertyTree Save() const;

private:
    struct Item
    {
        EffectPtr effect;
        PropertyTree loaded;
        PropertyTree written; // what the effect wrote when it was loaded; null without an effect or where it was inserted
    };

    OMBREL_LOCAL static PropertyTree SaveItem(const Item& item, const std::unordered_set<const PropertyTree*>& kept);

    OMBREL_LOCAL static PropertyTree Settled(PropertyTree merged, const PropertyTree& now);

    std::vector<Item> m_items;
    std::vector<Finding> m_findings;
    std::unordered_set<const PropertyTree*> m_kept; // effects in effects that are kept as trees, in the loaded trees
    bool m_isSingle = false;
};

} // namespace Ombrel::Inspection

#endif
