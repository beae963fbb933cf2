#include "UseAll.h"

#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/HelperSettings.h"
#include "Proc/EffectSettings/ResizeSettings.h"
#include "Proc/EffectSettings/SharedValues.h"
#include "Proc/ImplNames.h"
#include "Proc/Reflection/Schema.h"
#include "Proc/Settings/Settings.h"
#include "PropertyTree/PropertyTree.h"
#include "support/AllClasses.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace Lifetime
{
namespace
{

using namespace Ombrel;
using namespace Ombrel::PhotoCore;

void Expect(bool condition, const char* when, std::string_view classId, const char* what)
{
    if (!condition)
    {
        std::fprintf(stderr, "%s: %.*s: %s\n", when, static_cast<int>(classId.size()), classId.data(), what);
        std::_Exit(EXIT_FAILURE);
    }
}

void Use(const EffectClass& effectClass, const char* when)
{
    const std::string_view id = effectClass.classId;
    const std::shared_ptr<IEffectSettings> effect = effectClass.create();
    Expect(effect->GetClassId() == id, when, id, "has another class id");
    Expect(effect->GetEffectSettings().GetClassId() == id, when, id, "its record has another class id");
    Expect(effect->GetImplName() == (id == "EFFECT_RESIZE" ? "ffmpeg" : "default"), when, id, "has another implementation");
    Expect(effect->GetHelperSettings().GetClassId() == "HelperSettings", when, id, "its helper has another class id");

    effect->HelperSetting().SetApplyModeFlag(HelperSettings::ApplySetting::ApplyWithMask, true);
    PropertyTree tree;
    EffectSettings::SerializePtr(tree, effect);
    Expect(tree["name"].getScalar().toString() == id, when, id, "is stored under another name");
    Expect(tree["helperSettings"]["applyMode"].getList().at(0).getScalar().toString() == "ApplyWithMask", when, id,
           "stores another apply mode");
    Expect(!tree.contains("implName"), when, id, "stores an implementation name");

    const std::shared_ptr<IEffectSettings> clone = effect->Clone();
    Expect(*clone == *effect || id == "effectSettingsSimple", when, id, "is not equal to its clone");
    if (effectClass.registration != Registration::None)
    {
        std::shared_ptr<IEffectSettings> read;
        EffectSettings::DeserializePtr(tree, read);
        Expect(*read == *effect || id == "effectSettingsSimple", when, id, "is read back as another");
        PropertyTree again;
        EffectSettings::SerializePtr(again, read);
        Expect(again == tree, when, id, "is written otherwise than it was read");
    }
    if (const Proc::RecordSchema* schema = effectClass.getSchema())
    {
        // The background's map is always stored: that field never equals its default.
        Expect(schema->equal(schema->defaults(), schema->defaults()) || id == "EFFECT_REMOVE_BACKGROUND", when, id,
               "has a default that differs from itself");
    }
    if (const auto access = effect->GetPropertyAccess())
    {
        for (const std::string& key : access->ListProperties())
        {
            access->SetProperty(key, access->GetProperty(key));
        }
    }
}

} // namespace

void UseAll(const char* when)
{
    for (const EffectClass& effectClass : EffectClasses())
    {
        Use(effectClass, when);
    }
    const auto acid = IEffectSettings::CreateEffectSettings("EFFECT_ACID");
    const auto blur = IEffectSettings::CreateEffectSettings("EFFECT_BLUR_ADAPTIVE");
    Expect(!(*acid == *blur), when, "EFFECT_ACID", "equals another effect");
}

void UseConstants(const char* when)
{
    Support::ForEach<Support::ClassesWithAnId>(
        [when]<class Class>()
        { Expect(Class::CLASS_ID == Class::CLASS_NAME, when, Class::CLASS_NAME, "the public constant has another text"); });
    Expect(Proc::ImplNames::DEFAULT == "default" && Proc::ImplNames::FFMPEG == "ffmpeg", when, "ImplNames", "have other texts");
    Expect(Const::CorePixelFormats == std::vector{PixFmt::RGB24, PixFmt::BGRA, PixFmt::BGR0}, when, "CorePixelFormats",
           "are others");
    Expect(ResizeSettings::FRAME_SIZE_MODE == "frameSize" && ResizeSettings::SCALE_FACTOR == "scaleFactor" &&
               ResizeSettings::MODE == "resizeMode" && ResizeSettings::METHOD == "resizeMethod" && ResizeSettings::UOM == "UOM",
           when, "ResizeSettings", "has other texts");
}

} // namespace Lifetime
