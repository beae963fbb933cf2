#include "ReferencePages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

// The column with the way in C++, from a schema that is written here by hand.
namespace Ombrel::EffectsTool
{
namespace
{

using Proc::FieldSchema;
using Proc::RecordSchema;
using Proc::ValueKind;
using Proc::ValueSchema;
using testing::HasSubstr;

constexpr ValueSchema NUMBER{ValueKind::Int32};

FieldSchema Field(std::string_view key, const ValueSchema& value, std::string_view access)
{
    FieldSchema field{};
    field.key = key;
    field.value = &value;
    field.access = access;
    return field;
}

// Of records without any state.
const void* NoDefaults()
{
    return nullptr;
}

const RecordSchema& Frame()
{
    static const std::vector<FieldSchema> fields{Field("width", NUMBER, "width")};
    static const RecordSchema schema = []
    {
        RecordSchema record{};
        record.name = "Frame";
        record.fields = {fields.data(), fields.size()};
        record.defaults = &NoDefaults;
        record.write = [](const void*, PropertyTree::Map& target, auto...) { target["width"] = 0; };
        return record;
    }();
    return schema;
}

const RecordSchema* Turn() noexcept
{
    static const ValueSchema frame{.kind = ValueKind::Record, .record = &Frame};
    static const std::vector<FieldSchema> fields{Field("radius", NUMBER, "m_radius"), Field("hue", NUMBER, "SetHue, GetHue"),
                                                 Field("frame", frame, "m_frame"), Field("other", NUMBER, "")};
    static const RecordSchema schema = []
    {
        RecordSchema record{};
        record.name = "Turn";
        record.fields = {fields.data(), fields.size()};
        record.defaults = &NoDefaults;
        record.write = [](const void*, PropertyTree::Map& target, auto...)
        {
            target["radius"] = 3;
            target["hue"] = 0;
            target["frame"]["width"] = 0;
            target["other"] = 0;
        };
        return record;
    }();
    return &schema;
}

TEST(ReferencePages, ShowTheWayInCpp)
{
    PhotoCore::EffectClass effectClass{};
    effectClass.className = "TurnSettings";
    effectClass.classId = "EFFECT_TURN";
    effectClass.create = [] { return PhotoCore::IEffectSettings::CreateEffectSettings("EFFECT_ACID"); };
    effectClass.getSchema = &Turn;
    effectClass.registration = PhotoCore::Registration::None;
    NotedClass noted{};
    noted.effectClass = &effectClass;
    ReferenceNotes notes;
    notes.pages.push_back({"turns", "Turns", {noted}});

    EXPECT_THAT(PageText(notes, 0, ReferenceSections(notes.pages)), HasSubstr("\n| Key | Kind | Default | C++ |\n"
                                                                              "|---|---|---|---|\n"
                                                                              "| `radius` | int32 | `3` | `m_radius` |\n"
                                                                              "| `hue` | int32 | `0` | `SetHue, GetHue` |\n"
                                                                              "| `frame` | record | its own | `m_frame` |\n"
                                                                              "| `frame/width` | int32 | `0` | `width` |\n"
                                                                              "| `other` | int32 | `0` | |\n"));
}

} // namespace
} // namespace Ombrel::EffectsTool
