#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "PropertyTreeJson/PropertyTreeJson.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

// Every registered class has a stored effect beside the code, which comes back as it stands.
namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;

const std::filesystem::path EFFECTS = std::filesystem::path(OMBREL_EXAMPLES) / "effects";

std::string TextOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Examples, EveryRegisteredClassHasOneThatComesBack)
{
    std::size_t count = 0;
    for (const EffectClass& effectClass : EffectClasses())
    {
        if (effectClass.registration == Registration::None)
        {
            continue;
        }
        ++count;
        const std::string text = TextOf(EFFECTS / (std::string(effectClass.classId) + ".json"));
        ASSERT_FALSE(text.empty()) << effectClass.classId;
        const PropertyTree stored = Ombrel::ReadJson(text);
        EXPECT_EQ(stored["name"], PropertyTree(effectClass.classId));
        std::shared_ptr<IEffectSettings> effect;
        EffectSettings::DeserializePtr(stored, effect);
        const auto access = effect->GetPropertyAccess();
        if (access && !access->ListProperties().empty())
        {
            EXPECT_GT(stored.getMap().size(), 1u) << effectClass.classId << " shows nothing but its name";
        }
        PropertyTree written;
        EffectSettings::SerializePtr(written, effect);
        EXPECT_EQ(written, stored) << effectClass.classId;
        EXPECT_EQ(Ombrel::WriteJson(written, {.indent = 4}) + "\n", text) << effectClass.classId;
    }
    const auto files = std::distance(std::filesystem::directory_iterator(EFFECTS), {});
    EXPECT_EQ(static_cast<std::size_t>(files), count) << "there are files of no registered class";
}

} // namespace
