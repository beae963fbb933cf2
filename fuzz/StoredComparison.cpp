#include "StoredComparison.h"

#include "Fuzz.h"
#include "StoredEffects.h"

#include "Inspection/Check.h"
#include "Inspection/StoredEffects.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/EffectSettings/EffectsPackageWithBrushSettings.h"
#include "Proc/EffectSettings/FacePackageSettings.h"
#include "Proc/EffectSettings/TileSettings.h"
#include "Proc/Settings/StoredKeys.h"
#include "PropertyTree/PropertyTreeOutput.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace Fuzz
{
namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;
using Inspection::StoredEffects;
using PhotoCore::EffectSettings;
using PhotoCore::IEffectSettings;

// The tree as a text from which each bit of it can be told.
void AddExact(const PropertyTree& tree, std::string& text)
{
    if (tree.isScalar() && tree.getScalar().kind() == PropertyTreeScalar::Kind::Float)
    {
        text += 'f' + std::to_string(std::bit_cast<std::uint64_t>(tree.getScalar().toDouble()));
    }
    else if (tree.isScalar())
    {
        std::ostringstream out;
        out << static_cast<int>(tree.getScalar().kind()) << tree;
        text += out.str();
    }
    else if (tree.isList())
    {
        text += '[';
        for (const PropertyTree& element : tree.getList())
        {
            AddExact(element, text);
            text += ',';
        }
        text += ']';
    }
    else if (tree.isMap())
    {
        text += '{';
        for (const auto& [key, child] : tree.getMap())
        {
            text += std::to_string(key.size()) + key + ':';
            AddExact(child, text);
            text += ',';
        }
        text += '}';
    }
    else
    {
        text += '0';
    }
}

std::string ExactText(const PropertyTree& tree)
{
    std::string text;
    AddExact(tree, text);
    return text;
}

std::string TextOf(const PropertyTree& tree)
{
    std::ostringstream text;
    text << tree;
    return text.str();
}

bool IsReadable(const PropertyTree& effect, PropertyTree* written = nullptr)
{
    std::shared_ptr<IEffectSettings> read;
    const bool isRead = !FailureOf([&] { EffectSettings::DeserializePtr(effect, read); });
    if (isRead && written)
    {
        EffectSettings::SerializePtr(*written, read);
    }
    return isRead;
}

PropertyTree::List* ListUnder(PropertyTree& map, const char* key)
{
    return map.contains(key) && map[key].isList() ? &map[key].getList() : nullptr;
}

// Takes out the effects of a list that cannot be read, the innermost first.
bool TakeOutRefused(PropertyTree& effect, int depth);

void TakeOutOfList(PropertyTree::List* list, int depth)
{
    if (list)
    {
        std::erase_if(*list, [depth](PropertyTree& element) { return !TakeOutRefused(element, depth); });
    }
}

// Whether the effect can be read then. By hand for the three classes that hold effects.
bool TakeOutRefused(PropertyTree& effect, int depth = 1)
{
    if (depth > 512)
    {
        return effect.isNull();
    }
    const PhotoCore::EffectClass* effectClass = ClassOf(effect);
    const std::string_view name = effectClass ? effectClass->className : std::string_view();
    if (name == "TileSettings")
    {
        TakeOutOfList(ListUnder(effect, "pre"), depth + 1);
        TakeOutOfList(ListUnder(effect, "post"), depth + 1);
        if (PropertyTree::List* rows = ListUnder(effect, "effectRows"))
        {
            for (PropertyTree& row : *rows)
            {
                PropertyTree::List* cells = row.isMap() ? ListUnder(row, "cols") : nullptr;
                for (std::size_t cell = 0; cells && cell != cells->size(); ++cell)
                {
                    TakeOutOfList((*cells)[cell].isList() ? &(*cells)[cell].getList() : nullptr, depth + 1);
                }
            }
        }
    }
    else if (name == "EffectsPackageWithBrushSettings")
    {
        TakeOutOfList(ListUnder(effect, "foregroundEffects"), depth + 1);
        TakeOutOfList(ListUnder(effect, "backgroundEffects"), depth + 1);
    }
    else if (PropertyTree::List* faces = name == "FacePackageSettings" ? ListUnder(effect, "facesEffects") : nullptr)
    {
        for (PropertyTree& face : *faces)
        {
            if (face.contains("effect") && !TakeOutRefused(face["effect"], depth + 1))
            {
                face.getMap().erase("effect");
            }
        }
    }
    return IsReadable(effect);
}

// What is read is what a read makes of the tree without the effects that it refuses.
void CompareLoaded(const StoredEffects& stored, const PropertyTree& tree)
{
    const std::size_t size = tree.isList() ? tree.getList().size() : 1;
    Require(stored.Size() == size, "items are missing", TextOf(tree));
    for (std::size_t index = 0; index != size; ++index)
    {
        const PropertyTree& given = tree.isList() ? tree.getList()[index] : tree;
        PropertyTree expected;
        PropertyTree reduced = given;
        if (TakeOutRefused(reduced))
        {
            IsReadable(reduced, &expected);
        }
        PropertyTree found;
        EffectSettings::SerializePtr(found, stored.Effect(index));
        RequireSame(expected, found, "an item is read otherwise: " + TextOf(given));
    }
}

void CompareStrict(const PropertyTree& tree, const StoredEffects& tolerant)
{
    StoredEffects strict;
    const auto failure = FailureOf([&] { strict.LoadStrict(tree); });
    const bool hasErrors = std::ranges::any_of(tolerant.Findings(), [](const Finding& finding)
                                               { return SeverityOf(finding.code) == Severity::Error; });
    Require(failure.has_value() == hasErrors, failure ? *failure : "a strict load does not fail", TextOf(tree));
    Require(failure ? strict.Size() == 0 : ExactText(strict.Save()) == ExactText(tree), "a strict load changes what it holds",
            TextOf(tree));
}

// Effects that change when they are read and written again promise nothing of what another read gives.
bool IsStable(const PropertyTree& written)
{
    PropertyTree again;
    return IsReadable(written, &again) && ExactText(written) == ExactText(again);
}

bool IsKeptAsItIs(const std::vector<Finding>& findings)
{
    return std::ranges::none_of(
        findings, [](const Finding& finding)
        { return finding.code == FindingCode::ChangesOnWrite || finding.code == FindingCode::LostByCopy; });
}

// How often each unreadable effect stands in the lists of the effect itself.
std::vector<std::string> RefusedIn(PropertyTree effect)
{
    std::vector<std::string> texts;
    for (const char* key : {"pre", "post", "foregroundEffects", "backgroundEffects"})
    {
        if (PropertyTree::List* list = ClassOf(effect)->getSchema() ? ListUnder(effect, key) : nullptr)
        {
            for (PropertyTree& element : *list)
            {
                std::string text = key + ExactText(element);
                if (!TakeOutRefused(element, 2))
                {
                    texts.push_back(std::move(text));
                }
            }
        }
    }
    std::ranges::sort(texts);
    return texts;
}

// Whether what is saved would be read otherwise with the loaded value under the key.
bool MustChange(const PropertyTree& saved, const std::string& key, const PropertyTree& loaded, const PropertyTree& now)
{
    PropertyTree tree = saved;
    tree[key] = loaded;
    StoredEffects stored;
    stored.Load(tree);
    PropertyTree read;
    EffectSettings::SerializePtr(read, stored.Effect(0));
    return ExactText(read) != ExactText(now);
}

// What was not written otherwise stands as it stood; what was is read as it was changed.
void CompareChanged(const PropertyTree& given, const PropertyTree& saved, const PropertyTree& before, const PropertyTree& now)
{
    const std::string shown =
        "given " + TextOf(given) + "\nwrote " + TextOf(before) + "\nnow   " + TextOf(now) + "\nsaved " + TextOf(saved);
    for (const auto& [key, child] : given.getMap())
    {
        const bool wasWritten = before.contains(key);
        const bool isWritten = now.contains(key);
        const bool isSame = wasWritten && isWritten && ExactText(before[key]) == ExactText(now[key]);
        if (isSame || (!wasWritten && !isWritten))
        {
            Require((saved.contains(key) && ExactText(saved[key]) == ExactText(child)) || MustChange(saved, key, child, now),
                    "a value that was not changed is changed", key + "\n" + shown);
        }
    }
    for (const auto& [key, child] : saved.getMap())
    {
        Require(given.contains(key) || now.contains(key), "a key comes from nowhere", key + "\n" + shown);
    }
    Require(RefusedIn(given) == RefusedIn(saved), "an effect that was not read is lost", shown);
    if (IsStable(before) && IsStable(now) && IsKeptAsItIs(Check(given)))
    {
        StoredEffects again;
        again.Load(saved);
        PropertyTree read;
        EffectSettings::SerializePtr(read, again.Effect(0));
        RequireSame(now, read, "what is saved is read otherwise: " + shown);
    }
}

// One property is set to what it is in another effect of the class.
void CompareOneProperty(StoredEffects& stored, std::size_t index, const IEffectSettings& other)
{
    const auto access = stored.Effect(index)->GetPropertyAccess();
    const auto otherAccess = other.GetPropertyAccess();
    const std::vector<std::string> keys = access ? access->ListProperties() : std::vector<std::string>();
    const std::string* changed = nullptr;
    for (const std::string& key : keys)
    {
        if (!changed && ExactText(access->GetProperty(key)) != ExactText(otherAccess->GetProperty(key)))
        {
            changed = &key;
        }
    }
    if (!changed)
    {
        return;
    }
    PropertyTree before;
    EffectSettings::SerializePtr(before, stored.Effect(index));
    if (FailureOf([&] { access->SetProperty(*changed, otherAccess->GetProperty(*changed)); }))
    {
        return;
    }
    PropertyTree now;
    EffectSettings::SerializePtr(now, stored.Effect(index));
    CompareChanged(stored.Loaded(index), stored.Save(index), before, now);
}

// The effects in an effect.
void AddEffects(IEffectSettings& effect, std::vector<IEffectSettings*>& effects);

template <class List> void AddEffectsOf(const List& list, std::vector<IEffectSettings*>& effects)
{
    for (const auto& effect : list)
    {
        if (effect)
        {
            AddEffects(const_cast<IEffectSettings&>(*effect), effects); // of a brush package, which shares what it was given
        }
    }
}

void AddEffects(IEffectSettings& effect, std::vector<IEffectSettings*>& effects)
{
    effects.push_back(&effect);
    if (auto* tile = dynamic_cast<PhotoCore::TileSettings*>(&effect))
    {
        AddEffectsOf(tile->Pre(), effects);
        AddEffectsOf(tile->Post(), effects);
    }
    else if (auto* brush = dynamic_cast<PhotoCore::EffectsPackageWithBrushSettings*>(&effect))
    {
        AddEffectsOf(brush->GetTypedSettings().GetForegroundEffects(), effects);
        AddEffectsOf(brush->GetTypedSettings().GetBackgroundEffects(), effects);
    }
    else if (auto* faces = dynamic_cast<PhotoCore::FacePackageSettings*>(&effect))
    {
        for (const auto& face : faces->GetTypedSettings().GetFaces())
        {
            AddEffectsOf(std::vector{face.effect}, effects);
        }
    }
}

void TakeOutUndoSet(PropertyTree& tree)
{
    if (tree.isList())
    {
        std::ranges::for_each(tree.getList(), &TakeOutUndoSet);
    }
    else if (tree.isMap())
    {
        for (auto& [key, child] : tree.getMap())
        {
            TakeOutUndoSet(child);
        }
        if (tree.contains("helperSettings") && tree["helperSettings"].isMap())
        {
            tree["helperSettings"].getMap().erase("undoSet");
            if (tree["helperSettings"].getMap().empty())
            {
                tree.getMap().erase("helperSettings");
            }
        }
    }
}

std::string TextWithoutUndoSet(PropertyTree tree)
{
    TakeOutUndoSet(tree);
    return ExactText(tree);
}

// One value of an effect at any depth is changed: no other value changes, known or not.
void CompareOneInside(const PropertyTree& tree)
{
    StoredEffects stored;
    stored.Load(tree);
    std::vector<IEffectSettings*> effects;
    AddEffectsOf(stored.Effects(), effects);
    const bool isLost =
        std::ranges::any_of(stored.Findings(), [](const Finding& finding) { return finding.code == FindingCode::LostByCopy; });
    const std::size_t step = 1 + effects.size() / 20; // of a few, since each is saved with all the others
    for (std::size_t index = 0; index < effects.size(); index += step)
    {
        IEffectSettings* const effect = effects[index];
        const bool undoSet = effect->GetHelperSettings().GetUndoSet();
        effect->HelperSetting().SetUndoSet(!undoSet);
        const PropertyTree saved = stored.Save();
        const std::string shown = TextOf(tree) + "\n" + TextOf(saved);
        Require(isLost || ExactText(saved) != ExactText(tree), "a change is not saved", shown);
        Require(TextWithoutUndoSet(saved) == TextWithoutUndoSet(tree), "another value is changed", shown);
        effect->HelperSetting().SetUndoSet(undoSet);
    }
}

} // namespace

void CompareStored(const PropertyTree& tree, const PropertyTree& other)
{
    StoredEffects stored;
    stored.Load(tree);
    Require(ExactText(stored.Save()) == ExactText(tree), "what was not changed is saved otherwise",
            TextOf(tree) + "\n" + TextOf(stored.Save()));
    CompareLoaded(stored, tree);
    CompareStrict(tree, stored);
    CompareOneInside(tree);

    StoredEffects changes;
    changes.Load(other);
    for (std::size_t index = 0; index != std::min(stored.Size(), changes.Size()); ++index)
    {
        if (!stored.Effect(index) || !changes.Effect(index) ||
            stored.Effect(index)->GetClassId() != changes.Effect(index)->GetClassId())
        {
            continue;
        }
        PropertyTree before;
        EffectSettings::SerializePtr(before, stored.Effect(index));
        CompareOneProperty(stored, index, *changes.Effect(index));
        PropertyTree now;
        EffectSettings::SerializePtr(now, changes.Effect(index));
        stored.Replace(index, changes.Effect(index));
        CompareChanged(stored.Loaded(index), stored.Save(index), before, now);
    }
}

} // namespace Fuzz
