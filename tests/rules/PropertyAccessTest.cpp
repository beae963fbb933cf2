#include "PhotoUtil/ISerializableBase.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/Reflection/Schema.h"
#include "Proc/Settings/Settings.h"
#include "PropertyTree/PropertyTree.h"
#include "support/TreeText.h"
#include "support/WholeRecordAccess.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <exception>
#include <limits>
#include <memory>
#include <string>
#include <typeinfo>
#include <vector>

namespace Ombrel::PhotoCore
{

// Names the class in a failed test.
static void PrintTo(const EffectClass& effectClass, std::ostream* out)
{
    *out << effectClass.className;
}

} // namespace Ombrel::PhotoCore

// A property access touches one field alone. What it answers is told here by the whole record: written out and looked up, or
// read from a map with the one key. Both must agree for every property of every class, whatever is asked or set.
namespace
{

using namespace Ombrel::PhotoCore;
using namespace Ombrel::Proc;
using Ombrel::PropertyTree;
using Support::List;
using Support::Map;
using Support::WholeRecordAccess;
using IPropertyAccess = Ombrel::PhotoUtil::ISerializableBase::IPropertyAccess;

void* RecordOf(IEffectSettings& effect)
{
    return dynamic_cast<void*>(&effect.GetEffectSettingsRef());
}

// What came of setting a property: the failure, if any, and the whole record after it, as text, in which a NaN equals a NaN.
struct Result
{
    std::string failure;
    std::string record;

    bool operator==(const Result&) const = default;
};

void PrintTo(const Result& result, std::ostream* out)
{
    *out << result.failure << ' ' << result.record;
}

Result ResultOfSetting(const EffectClass& effectClass, bool isWhole, const std::string& key, const PropertyTree& value)
{
    const auto effect = effectClass.create();
    WholeRecordAccess whole(*effectClass.getSchema(), RecordOf(*effect));
    const auto single = effect->GetPropertyAccess();
    IPropertyAccess& access = isWhole ? static_cast<IPropertyAccess&>(whole) : *single;
    std::string failure;
    try
    {
        access.SetProperty(key, value);
    }
    catch (const std::exception& exception)
    {
        failure = std::string(typeid(exception).name()) + ": " + exception.what();
    }
    return {failure, testing::PrintToString(whole.WriteAll())};
}

// Values that suit some kind, and values that suit none.
std::vector<PropertyTree> Values()
{
    const double infinity = std::numeric_limits<double>::infinity();
    return {
        PropertyTree(),
        true,
        0,
        7,
        -1,
        std::int64_t{5000000000},
        std::numeric_limits<std::int64_t>::min(),
        0.5,
        1e300,
        infinity,
        "",
        "text",
        "80402010",
        "Rectangle",
        std::string("a\0b", 3),
        Map({}),
        Map({{"x", 3}}),
        Map({{"angle", "Angle_90"}, {"foreground", 3}, {"radius", 2}, {"strength", "wrong"}}),
        List({}),
        List({1, 2}),
        List({PropertyTree()}),
        List({Map({{"name", "EFFECT_ACID"}}), Map({{"name", "EFFECT_OF_TOMORROW"}})}),
        List({Map({{"key", 3}, {"value", "102030ff"}})}),
    };
}

class PropertyAccessOfEveryClass : public testing::TestWithParam<EffectClass>
{
};

TEST_P(PropertyAccessOfEveryClass, AnswersAsTheWholeRecord)
{
    const auto effect = GetParam().create();
    const auto access = effect->GetPropertyAccess();
    const WholeRecordAccess whole(*GetParam().getSchema(), RecordOf(*effect));
    EXPECT_EQ(access->ListProperties(), whole.ListProperties());

    std::vector<std::string> keys = whole.ListProperties();
    keys.insert(keys.end(), {"", "no key", "name", "implName", "helperSettings", std::string("radius\0", 7)});
    for (const std::string& key : keys)
    {
        EXPECT_EQ(access->GetProperty(key), whole.GetProperty(key)) << key;
        for (const PropertyTree& value : Values())
        {
            EXPECT_EQ(ResultOfSetting(GetParam(), false, key, value), ResultOfSetting(GetParam(), true, key, value))
                << key << ", " << testing::PrintToString(value);
        }
    }
}

std::vector<EffectClass> ClassesWithPropertyAccess()
{
    std::vector<EffectClass> classes;
    std::ranges::copy_if(EffectClasses(), std::back_inserter(classes),
                         [](const EffectClass& effectClass) { return effectClass.create()->GetPropertyAccess() != nullptr; });
    return classes;
}

INSTANTIATE_TEST_SUITE_P(All, PropertyAccessOfEveryClass, testing::ValuesIn(ClassesWithPropertyAccess()),
                         [](const auto& effectClass) { return std::string(effectClass.param.className); });

} // namespace
