#ifndef OMBREL_FUZZ_MUTATION_H
#define OMBREL_FUZZ_MUTATION_H

#include "StoredEffects.h"

#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/Reflection/EnumNameTable.h"
#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <utility>

namespace Fuzz
{

/// Changes stored effects by what their classes say of their fields.
class Mutation
{
public:
    explicit Mutation(unsigned seed) : m_random(seed) {}

    std::size_t Below(std::size_t limit) { return m_random() % limit; }
    bool IsOneIn(std::size_t count) { return Below(count) == 0; }

    // An effect, or a list of those that are read one after the other.
    void ChangeInput(Ombrel::PropertyTree& input)
    {
        if (input.isNull() || input.isScalar() || IsOneIn(50))
        {
            input = MakeEffect(0);
        }
        if (!input.isList() && IsOneIn(20))
        {
            PropertyTree first = std::exchange(input, {});
            input.append(std::move(first));
        }
        if (!input.isList())
        {
            ChangeEffect(input, 0);
            return;
        }
        PropertyTree::List& list = input.getList();
        if (list.empty() || (list.size() < 4 && IsOneIn(4)))
        {
            list.push_back(list.empty() ? MakeEffect(0) : list.front());
        }
        ChangeEffect(list[Below(list.size())], 0);
    }

private:
    using RecordSchema = Ombrel::Proc::RecordSchema;
    using ValueKind = Ombrel::Proc::ValueKind;
    using ValueSchema = Ombrel::Proc::ValueSchema;
    using PropertyTree = Ombrel::PropertyTree;

    static constexpr int MAX_DEPTH = 6;

    template <class Range> decltype(auto) AnyOf(const Range& range) { return range[Below(std::size(range))]; }

    PropertyTree MakeEffect(int depth)
    {
        const Ombrel::PhotoCore::EffectClass& effectClass = AnyOf(Ombrel::PhotoCore::EffectClasses());
        PropertyTree tree;
        tree["name"] = effectClass.classId;
        const std::size_t count = depth < MAX_DEPTH ? Below(4) : 0;
        for (std::size_t i = 0; i < count && effectClass.getSchema(); ++i)
        {
            ChangeField(tree, *effectClass.getSchema(), depth);
        }
        return tree;
    }

    void ChangeEffect(PropertyTree& tree, int depth)
    {
        const Ombrel::PhotoCore::EffectClass* const effectClass = ClassOf(tree);
        if (!effectClass)
        {
            tree = IsOneIn(10) ? MakeScalar() : MakeEffect(depth);
            return;
        }
        const std::size_t choice = Below(20);
        if (choice == 0)
        {
            tree["name"] = IsOneIn(4) ? MakeScalar() : PropertyTree(AnyOf(Ombrel::PhotoCore::EffectClasses()).classId);
        }
        else if (choice == 1)
        {
            tree["implName"] = MakeScalar();
        }
        else if (choice == 2)
        {
            tree["helperSettings"] = MakeHelperSettings();
        }
        else if (choice == 3)
        {
            tree[MakeText()] = MakeScalar();
        }
        else if (effectClass->getSchema())
        {
            ChangeField(tree, *effectClass->getSchema(), depth);
        }
    }

    void ChangeField(PropertyTree& tree, const RecordSchema& schema, int depth)
    {
        if (schema.fields.empty())
        {
            return;
        }
        const Ombrel::Proc::FieldSchema& field = AnyOf(schema.fields);
        if (IsOneIn(10))
        {
            tree.getMap().erase(field.key);
            return;
        }
        PropertyTree& child = tree[field.key];
        if (!ChangeInside(child, *field.value, depth + 1))
        {
            child = IsOneIn(12) ? MakeOther() : MakeValue(*field.value, depth + 1);
        }
    }

    // Changes a part of a value that has parts.
    bool ChangeInside(PropertyTree& child, const ValueSchema& schema, int depth)
    {
        if (child.isNull() || child.isScalar() || IsOneIn(8))
        {
            return false;
        }
        if (child.isList())
        {
            PropertyTree::List& list = child.getList();
            if (list.empty() || !schema.element)
            {
                return false;
            }
            PropertyTree& element = list[Below(list.size())];
            if (IsOneIn(3) && list.size() < 20)
            {
                PropertyTree another = IsOneIn(2) ? element : MakeValue(*schema.element, depth);
                list.push_back(std::move(another));
            }
            else if (!ChangeInside(element, *schema.element, depth))
            {
                element = IsOneIn(12) ? MakeOther() : MakeValue(*schema.element, depth);
            }
            return true;
        }
        if (schema.kind == ValueKind::Record)
        {
            ChangeField(child, schema.record(), depth);
            return true;
        }
        if (schema.kind == ValueKind::Effect)
        {
            ChangeEffect(child, depth);
            return true;
        }
        return false;
    }

    PropertyTree MakeValue(const ValueSchema& schema, int depth)
    {
        switch (schema.kind)
        {
        case ValueKind::Int32:
        case ValueKind::UInt32:
        case ValueKind::UInt8:
        case ValueKind::Int64:
        case ValueKind::UInt64:
            return IsOneIn(8) ? PropertyTree(MakeFloat()) : PropertyTree(MakeInteger());
        case ValueKind::Float64:
        case ValueKind::Float32:
            return IsOneIn(4) ? PropertyTree(MakeInteger()) : PropertyTree(MakeFloat());
        case ValueKind::Bool:
            return IsOneIn(2);
        case ValueKind::String:
        case ValueKind::Other:
            return MakeText();
        case ValueKind::Enum:
            return IsOneIn(5) ? PropertyTree(MakeText()) : PropertyTree(std::string(AnyOf(schema.names->rows).name));
        case ValueKind::Color:
            return MakeColor();
        case ValueKind::ColorMap:
            return MakeList([this, depth] { return MakePlace(depth); });
        case ValueKind::Record:
            return MakeRecord(schema.record(), depth);
        case ValueKind::List:
        case ValueKind::Set:
            return MakeList([this, &schema, depth]
                            { return depth < MAX_DEPTH ? MakeValue(*schema.element, depth + 1) : PropertyTree(); });
        case ValueKind::Effect:
            return IsOneIn(6) || depth >= MAX_DEPTH ? PropertyTree() : MakeEffect(depth + 1);
        }
        return {};
    }

    PropertyTree MakeRecord(const RecordSchema& schema, int depth)
    {
        PropertyTree tree;
        tree.convertToMap();
        for (std::size_t count = depth < MAX_DEPTH ? Below(4) : 0; count > 0; --count)
        {
            ChangeField(tree, schema, depth);
        }
        return tree;
    }

    template <class MakeElement> PropertyTree MakeList(MakeElement makeElement)
    {
        PropertyTree list;
        list.convertToList();
        for (std::size_t count = Below(5); count > 0; --count)
        {
            list.append(makeElement());
        }
        return list;
    }

    PropertyTree MakePlace(int)
    {
        PropertyTree place;
        place["key"] = MakeInteger();
        place["value"] = IsOneIn(8) ? MakeScalar() : PropertyTree(MakeColor());
        return place;
    }

    PropertyTree MakeHelperSettings()
    {
        constexpr const char* modes[] = {"Invalid",   "ApplyToMaskOnly", "ApplyWithMask",    "ApplyAndSetMask",
                                         "ApplyStop", "ApplyToAlpha",    "ApplyAndAddToUndo"};
        PropertyTree tree;
        tree.convertToMap();
        tree["undoSet"] = IsOneIn(10) ? MakeScalar() : PropertyTree(IsOneIn(2));
        tree["applyMode"] = MakeList([&] { return IsOneIn(6) ? MakeScalar() : PropertyTree(AnyOf(modes)); });
        tree[IsOneIn(2) ? "maxWidth" : "maxHeight"] = MakeInteger();
        return tree;
    }

    std::int64_t MakeInteger()
    {
        constexpr std::int64_t limits[] = {0,
                                           1,
                                           -1,
                                           255,
                                           256,
                                           std::numeric_limits<std::int32_t>::max(),
                                           std::numeric_limits<std::int32_t>::min(),
                                           std::numeric_limits<std::uint32_t>::max(),
                                           std::numeric_limits<std::int64_t>::max(),
                                           std::numeric_limits<std::int64_t>::min()};
        return IsOneIn(2) ? AnyOf(limits) : static_cast<std::int64_t>(Below(2000)) - 1000;
    }

    double MakeFloat()
    {
        constexpr double limits[] = {0.0,
                                     -0.0,
                                     1.0,
                                     0.1,
                                     1e300,
                                     -1e300,
                                     3.5e38,
                                     9.3e18,
                                     std::numeric_limits<double>::denorm_min(),
                                     std::numeric_limits<double>::infinity(),
                                     -std::numeric_limits<double>::infinity(),
                                     std::numeric_limits<double>::quiet_NaN()};
        return IsOneIn(2) ? AnyOf(limits) : static_cast<double>(MakeInteger()) / 8;
    }

    std::string MakeText()
    {
        constexpr std::string_view texts[] = {"", "text", std::string_view("a\0b", 3), "\xEF\xBF\xBD", "ffmpeg", "EFFECT_ACID"};
        return IsOneIn(20) ? std::string(Below(300), 'x') : std::string(AnyOf(texts));
    }

    std::string MakeColor()
    {
        constexpr const char* texts[] = {"ff0000ff", "80402010", "ff", "0x1", " -1", "1ff0000ff", "", "g", "000000ff"};
        return AnyOf(texts);
    }

    PropertyTree MakeScalar()
    {
        switch (Below(5))
        {
        case 0:
            return MakeInteger();
        case 1:
            return MakeFloat();
        case 2:
            return IsOneIn(2);
        case 3:
            return PropertyTree();
        default:
            return MakeText();
        }
    }

    PropertyTree MakeOther()
    {
        PropertyTree container;
        if (IsOneIn(2))
        {
            container["x"] = MakeScalar();
        }
        else
        {
            container.append(MakeScalar());
        }
        return IsOneIn(2) ? container : MakeScalar();
    }

    std::minstd_rand m_random;
};

} // namespace Fuzz

#endif
