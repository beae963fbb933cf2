#include "Proc/Settings/SettingsEffectImageBlender.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{
namespace
{

using Blender = SettingsEffectColorBlender;

void SetAlpha(SettingsEffectImageBlender& record, std::int32_t value)
{
    record.SetIntensity(static_cast<float>(value) / 255.0f);
}

// Sets the intensity as "alpha" does, and not the mode: what is stored has always been read so.
void SetFromBlendingMode(SettingsEffectImageBlender& record, Blender::BlendingMode value)
{
    SetAlpha(record, static_cast<std::int32_t>(value));
}

} // namespace

const std::string SettingsEffectImageBlender::CLASS_ID{CLASS_NAME};

template <> struct EnumNames<Blender::BlendingMode>
{
    using E = Blender::BlendingMode;

    static constexpr EnumNameRow ROWS[] = {
        {"Default", E::Default},
        {"KeepDstAlpha", E::KeepDstAlpha},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct Fields<SettingsEffectImageBlender>
{
    using R = SettingsEffectImageBlender;
    using List = FieldList<FieldDescriptor<&R::m_positionX>, FieldDescriptor<&R::m_positionY>,
                           AccessorDescriptor<"alpha", &SetAlpha, &R::GetAlpha>,
                           AccessorDescriptor<"blendingMode", &SetFromBlendingMode, &R::GetBlendingMode>>;
};

template struct Reflected<SettingsEffectImageBlender>;

bool SettingsEffectImageBlender::IsEmpty() const
{
    return *this == Reflected<SettingsEffectImageBlender>::Default();
}

} // namespace Ombrel::Proc
